// A film's poster: a scene or a sign in five colours, the title in letters of its own, and the small print at
// the foot.

import { hands, lettering } from "./lettering";
import type { Box, Hand } from "./lettering";
import { isTitle } from "./names";
import { palettes } from "./palettes";
import type { Palette } from "./palettes";
import { scenes } from "./poster_scenes";
import { signs } from "./poster_signs";
import { Chance } from "./random";
import { many, picture, rect } from "./svg";

export interface Scene {
  readonly art: string;
  readonly title: Box; // the room that the scene leaves for the title
  readonly ink: string; // that is read on it
  readonly ground: string;
}

// `id` is free for the names of gradients: it is the same for the same poster only.
export type SceneArtist = (chance: Chance, palette: Palette, id: string) => Scene;

const allHands: readonly Hand[] = Object.values(hands);

// The lines of small print under a title, too small to be read, as on any poster.
function smallPrint(chance: Chance, ink: string): string {
  return many(2, (line) => {
    let x = 40 + line * 14;
    const end = 160 - line * 14;
    let print = "";
    while (x < end) {
      const width = Math.min(chance.between(3, 11), end - x);
      print += rect(x, 281 + line * 6, width, 2.6, ink, { opacity: 0.55 });
      x += width + 1.8;
    }
    return print;
  });
}

export function poster(name: string): string {
  const chance = new Chance(`poster ${name}`);
  const palette = chance.pick(palettes);
  const id = `poster-${Math.floor(chance.unit() * 1e9).toString(36)}`;
  const scene = chance.pick(chance.likely(0.52) ? scenes : signs)(chance, palette, id);
  const hand = chance.pick(allHands);
  const title = isTitle(name) ? lettering(name, scene.title, hand, scene.ink, scene.ground) : "";
  return picture(200, 300, scene.art + title + smallPrint(chance, scene.ink));
}
