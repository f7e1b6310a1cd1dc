// The art of every kind of picture, drawn from its name alone.

import type { PictureKind } from "../view_types";
import { avatar } from "./avatar";
import { house } from "./house";
import { icon } from "./icon";
import { logo } from "./logo";
import { photo } from "./photo";
import { poster } from "./poster";
import { tradingCard } from "./trading_card";
import { vehicle } from "./vehicle";

const artists: Readonly<Record<PictureKind, (name: string) => string>> = {
  avatar,
  poster,
  logo,
  house,
  vehicle,
  card: tradingCard,
  photo,
  icon,
};

// Pictures come again with every page that is drawn; a career meets some hundreds of them.
const drawn = new Map<string, string>();
const mostKept = 600;

// The picture as an SVG document. The same for the same kind and name, every time and everywhere.
export function pictureArt(kind: PictureKind, name: string): string {
  const key = `${kind} ${name}`;
  const kept = drawn.get(key);
  if (kept !== undefined) return kept;
  if (drawn.size >= mostKept) drawn.clear();
  const art = artists[kind](name);
  drawn.set(key, art);
  return art;
}
