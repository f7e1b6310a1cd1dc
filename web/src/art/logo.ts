// Company logos: initials or a mark on a colored badge.

import { drawable, hands, lettering } from "./lettering";
import { wordsOf } from "./names";
import { palettes } from "./palettes";
import type { Palette } from "./palettes";
import { Chance } from "./random";
import { circle, fall, group, many, mix, n, path, picture, polygon, rect, stroke, turned } from "./svg";

type Mark = (chance: Chance, ink: string, accent: string) => string;

const petals: Mark = (chance, ink) => {
  const count = chance.pick([5, 6, 8]);
  return many(count, (index) =>
    turned(
      (index * 360) / count,
      50,
      50,
      `<ellipse cx="50" cy="32" rx="8" ry="17" fill="${ink}" opacity=".85"/>`,
    ),
  );
};

const play: Mark = (_chance, ink, accent) =>
  circle(50, 50, 29, ink) +
  path("M42 36L66 50L42 64Z", accent, { stroke: accent, "stroke-width": 4, "stroke-linejoin": "round" });

const orbit: Mark = (chance, ink, accent) => {
  const tilt = chance.between(-50, 50);
  const ring = turned(
    tilt,
    50,
    50,
    `<ellipse cx="50" cy="50" rx="36" ry="14" fill="none" stroke="${ink}" stroke-width="5"/>`,
  );
  return (
    circle(50, 50, 17, ink) +
    ring +
    circle(
      50 + 36 * Math.cos((tilt * Math.PI) / 180),
      50 + 36 * Math.sin((tilt * Math.PI) / 180),
      6.5,
      accent,
    )
  );
};

const rungs: Mark = (chance, ink) => {
  const heights = Array.from({ length: 4 }, () => chance.between(16, 52)).sort((a, b) =>
    chance.likely(0.5) ? a - b : b - a,
  );
  return heights
    .map((height, index) => rect(24 + index * 14, 76 - height, 10, height, ink, { rx: 5 }))
    .join("");
};

const waves: Mark = (_chance, ink) =>
  many(3, (index) =>
    stroke(`M20 ${34 + index * 16}q10-11 20 0t20 0t20 0`, ink, 6, {
      "stroke-linecap": "round",
      opacity: 1 - index * 0.22,
    }),
  );

const peaks: Mark = (_chance, ink, accent) =>
  path("M16 74L42 30L56 54L64 42L84 74Z", ink, { "stroke-linejoin": "round" }) + circle(70, 29, 7.5, accent);

const star: Mark = (chance, ink) => {
  const count = chance.pick([4, 5, 8]);
  const points = Array.from({ length: count * 2 }, (_, index): [number, number] => {
    const angle = (index / count) * Math.PI - Math.PI / 2;
    const reach = index % 2 === 0 ? 36 : count === 4 ? 11 : 16;
    return [50 + Math.cos(angle) * reach, 50 + Math.sin(angle) * reach];
  });
  return path(polygon(points), ink);
};

const arcs: Mark = (chance, ink, accent) => {
  const turn = chance.pick([0, 90, 180, 270]);
  const bows = many(3, (index) =>
    stroke(
      `M${n(26)} ${n(74 - index * 16)}A${n(index * 16 + 2)} ${n(index * 16 + 2)} 0 0 1 ${n(28 + index * 16)} 74`,
      ink,
      7,
      { "stroke-linecap": "round" },
    ),
  );
  return turned(turn, 50, 50, bows + circle(28, 73, 6, accent));
};

const links: Mark = (_chance, ink, accent) =>
  circle(40, 50, 19, "none", { stroke: ink, "stroke-width": 8 }) +
  circle(60, 50, 19, "none", { stroke: accent, "stroke-width": 8 }) +
  path("M50 33.8A19 19 0 0 1 57 42", "none", { stroke: ink, "stroke-width": 8 });

const reel: Mark = (chance, ink, accent) => {
  const holes = chance.pick([5, 6]);
  return (
    circle(50, 50, 34, ink) +
    circle(50, 50, 6, accent) +
    many(holes, (index) =>
      circle(
        50 + 20 * Math.cos((index / holes) * Math.PI * 2),
        50 + 20 * Math.sin((index / holes) * Math.PI * 2),
        7,
        accent,
      ),
    )
  );
};

const marks: readonly Mark[] = [petals, play, orbit, rungs, waves, peaks, star, arcs, links, reel];

// The initials of up to three words.
function initialsOf(name: string): string {
  const words = wordsOf(name);
  const letters =
    words.length === 1
      ? words[0]!.slice(0, 1)
      : words
          .slice(0, 3)
          .map((word) => word.slice(0, 1))
          .join("");
  return drawable(letters);
}

function monogram(chance: Chance, letters: string, ink: string, ground: string): string {
  const hand = chance.pick([hands.heavy, hands.round, hands.inline, hands.racing, hands.plain]);
  const room =
    letters.length === 1 ? { x: 26, y: 24, width: 48, height: 52 } : { x: 14, y: 30, width: 72, height: 40 };
  return lettering(letters, room, hand, ink, ground);
}

function badge(
  chance: Chance,
  p: Palette,
  id: string,
): { readonly art: string; readonly ink: string; readonly accent: string; readonly ground: string } {
  const looks = chance.whole(0, 3);
  if (looks === 0) return { art: rect(0, 0, 100, 100, p.light), ink: p.deep, accent: p.mid, ground: p.light };
  if (looks === 1)
    return { art: rect(0, 0, 100, 100, p.night), ink: p.pop, accent: p.light, ground: p.night };
  const shade = fall(id, looks === 2 ? [mix(p.mid, p.deep, 0.4), p.deep] : [p.deep, p.night], true);
  return { art: shade.defs + rect(0, 0, 100, 100, shade.paint), ink: p.light, accent: p.pop, ground: p.deep };
}

export function logo(name: string): string {
  const chance = new Chance(`logo ${name}`);
  const palette = chance.pick(palettes);
  const id = `logo-${Math.floor(chance.unit() * 1e9).toString(36)}`;
  const { art, ink, accent, ground } = badge(chance, palette, id);
  const letters = initialsOf(name);
  const sign =
    letters !== "" && chance.likely(0.6)
      ? monogram(chance, letters, ink, ground)
      : chance.pick(marks)(chance, ink, accent);
  const underline = chance.likely(0.25) && letters.length === 1 ? rect(34, 82, 32, 4, accent, { rx: 2 }) : "";
  return picture(100, 100, art + group(sign) + underline);
}
