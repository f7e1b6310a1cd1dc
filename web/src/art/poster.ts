// Posters: the genre determines scene, colors and lettering, the format the layout; the rest is random,
// seeded by name and title.

import type { Picture, PosterFormat } from "../view_types";
import { isTitle } from "./names";
import { commercial, feature, series, shortFilm, student } from "./posters/formats";
import type { Job, Sheet } from "./posters/formats";
import { genres } from "./posters/genres";
import { Chance } from "./random";
import { picture } from "./svg";

const formats: Readonly<Record<PosterFormat, (job: Job) => Sheet>> = { feature, series, commercial, student, shortFilm };

export type PosterWords = Pick<Picture, "name" | "title" | "genre" | "format" | "season" | "billed">;

export function posterSheet({ name, title, genre, format, season, billed }: PosterWords): Sheet {
  const seed = `${name} ${title} ${season}`;
  const kind = genres[genre] ?? new Chance(seed).pick(Object.values(genres));
  const chance = new Chance(`poster ${kind.salt} ${seed}`);
  const words = title === "" && isTitle(name) ? name : title;
  return formats[format]({ title: words, billed, season, genre: kind, chance });
}

export const poster = (words: PosterWords): string => picture(200, 300, posterSheet(words).art);
