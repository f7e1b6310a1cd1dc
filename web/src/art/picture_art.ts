// Draws every kind of picture from its fields only.

import type { Picture, PictureKind } from "../view_types";
import { avatar } from "./avatar";
import { house } from "./house";
import { icon } from "./icon";
import { logo } from "./logo";
import { photo } from "./photo";
import { poster } from "./poster";
import { tradingCard } from "./trading_card";
import { vehicle } from "./vehicle";

const artists: Readonly<Record<PictureKind, (shown: Picture) => string>> = {
  avatar: ({ name, age }) => avatar(name, age),
  poster,
  logo: ({ name }) => logo(name),
  house: ({ name }) => house(name),
  vehicle: ({ name }) => vehicle(name),
  card: ({ name }) => tradingCard(name),
  photo: ({ name }) => photo(name),
  icon: ({ name }) => icon(name),
};

// The picture as an SVG document. Deterministic.
export const pictureArt = (shown: Picture): string => artists[shown.kind](shown);
