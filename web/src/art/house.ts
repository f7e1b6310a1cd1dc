// Houses, from a cabin to a castle, with garden and sky. A name that contains a kind gets that kind.

import { kindIn } from "./names";
import { Chance } from "./random";
import {
  bush,
  firTree,
  ground,
  groundLine,
  height,
  hills,
  lightOf,
  palmTree,
  roundTree,
  sky,
  width,
} from "./scenery";
import type { Light } from "./scenery";
import { circle, ellipse, many, mix, n, path, picture, rect, stroke } from "./svg";

interface Paint {
  readonly wall: string;
  readonly trim: string;
  readonly roof: string;
  readonly door: string;
  readonly light: Light;
}

type Builder = (chance: Chance, paint: Paint) => string;

const foot = groundLine;

function panes(x: number, y: number, w: number, h: number, { trim, light }: Paint): string {
  return (
    rect(x - 1, y - 1, w + 2, h + 2, trim) +
    rect(x, y, w, h, light.glass) +
    stroke(`M${n(x + w / 2)} ${n(y)}v${n(h)}M${n(x)} ${n(y + h / 2)}h${n(w)}`, trim, 0.8)
  );
}

function entrance(x: number, w: number, h: number, { trim, door }: Paint): string {
  return (
    rect(x - 1.2, foot - h - 1.2, w + 2.4, h + 1.2, trim) +
    rect(x, foot - h, w, h, door) +
    circle(x + w - 2, foot - h / 2, 0.8, "#f4d58a")
  );
}

const gable = (x: number, y: number, w: number, rise: number, colour: string): string =>
  path(`M${n(x - 4)} ${n(y)}L${n(x + w / 2)} ${n(y - rise)}L${n(x + w + 4)} ${n(y)}Z`, colour);

const cottage: Builder = (chance, paint) => {
  const x = chance.between(44, 54);
  return (
    rect(x + 46, foot - 60, 8, 22, mix(paint.roof, "#000000", 0.2)) +
    rect(x, foot - 32, 62, 32, paint.wall) +
    path(
      `M${n(x - 6)} ${foot - 31}L${n(x + 10)} ${foot - 58}H${n(x + 52)}L${n(x + 68)} ${foot - 31}Z`,
      paint.roof,
    ) +
    panes(x + 7, foot - 24, 13, 12, paint) +
    panes(x + 42, foot - 24, 13, 12, paint) +
    entrance(x + 26, 10, 20, paint)
  );
};

const suburban: Builder = (_chance, paint) =>
  rect(34, foot - 34, 92, 34, paint.wall) +
  path(`M30 ${foot - 33}L44 ${foot - 54}H118L130 ${foot - 33}Z`, paint.roof) +
  rect(38, foot - 46, 36, 46, mix(paint.wall, "#ffffff", 0.2)) +
  gable(38, foot - 46, 36, 22, mix(paint.roof, "#000000", 0.15)) +
  panes(46, foot - 42, 20, 14, paint) +
  panes(46, foot - 18, 20, 12, paint) +
  entrance(80, 10, 20, paint) +
  rect(96, foot - 20, 26, 20, paint.trim) +
  many(4, (index) => rect(97, foot - 19 + index * 5, 24, 3.6, mix(paint.wall, "#000000", 0.12)));

const modern: Builder = (chance, paint) => {
  const flip = chance.likely(0.5);
  const body =
    rect(30, foot - 26, 84, 26, "#f2f0ec") +
    rect(58, foot - 52, 72, 27, mix(paint.wall, "#3a3a40", 0.55)) +
    rect(54, foot - 54, 80, 4, "#fafafa") +
    rect(26, foot - 28, 92, 4, "#fafafa") +
    rect(64, foot - 47, 38, 18, paint.light.glass) +
    many(3, (index) => rect(73 + index * 9.5, foot - 47, 1, 18, "#44464c")) +
    rect(38, foot - 21, 40, 21, paint.light.glass) +
    many(3, (index) => rect(48 + index * 10, foot - 21, 1, 21, "#44464c")) +
    rect(86, foot - 19, 10, 19, paint.door) +
    rect(118, foot - 25, 4, 25, "#d8d5cf") +
    path(`M18 ${foot + 8}h50l6 9H10Z`, "#57b8d8") +
    path(`M22 ${foot + 10}h20`, "none", { stroke: "#bfe8f4", "stroke-width": 1.2 });
  return flip ? `<g transform="translate(160 0) scale(-1 1)">${body}</g>` : body;
};

const apartments: Builder = (chance, paint) => {
  const floors = chance.whole(4, 5);
  const top = foot - floors * 15 - 4;
  const balcony = (x: number, y: number): string =>
    rect(x - 2, y + 8, 15, 4, mix(paint.trim, "#000000", 0.15));
  return (
    rect(42, top, 76, foot - top, paint.wall) +
    rect(39, top - 3, 82, 4, paint.trim) +
    many(floors, (floor) =>
      many(4, (index) => {
        const x = 48 + index * 17.5;
        const y = top + 5 + floor * 15;
        return floor === floors - 1 && index === 1
          ? ""
          : rect(
              x,
              y,
              11,
              9,
              chance.likely(0.7) ? paint.light.glass : mix(paint.light.glass, "#2a3140", 0.6),
            ) + (index % 3 === 0 ? balcony(x, y) : "");
      }),
    ) +
    entrance(66, 11, 13, paint) +
    path(`M62 ${foot - 14}h19v-2H62Z`, paint.roof)
  );
};

const tower: Builder = (chance, paint) => {
  const slab = (x: number, w: number, h: number, colour: string): string =>
    rect(x, foot - h, w, h, colour) +
    many(Math.floor(h / 6) - 1, (row) =>
      many(Math.floor(w / 6), (index) =>
        rect(
          x + 2 + index * 6,
          foot - h + 4 + row * 6,
          3.6,
          3.6,
          chance.likely(0.6) ? paint.light.glass : mix(colour, "#000000", 0.25),
        ),
      ),
    );
  const dark = mix(paint.wall, "#2a3a55", 0.62);
  return (
    slab(24, 26, 44, mix(dark, paint.light.land, 0.5)) +
    slab(108, 30, 52, mix(dark, paint.light.land, 0.4)) +
    slab(58, 44, 78, dark) +
    rect(76, foot - 84, 8, 6, dark) +
    stroke(`M80 ${foot - 84}v-9`, dark, 1.4) +
    rect(70, foot - 9, 20, 9, paint.light.glass)
  );
};

const townhouse: Builder = (chance, paint) => {
  const colours = ["#a4543c", "#c27a52", "#8a5a4a", "#d6b48a", "#6f7f8a"];
  const turn = chance.whole(0, 4);
  return many(3, (index) => {
    const x = 29 + index * 34;
    const wall = colours[(index + turn) % colours.length]!;
    const own = { ...paint, wall };
    return (
      rect(x, foot - 58, 33, 58, wall) +
      rect(x - 1, foot - 61, 35, 5, mix(wall, "#000000", 0.3)) +
      panes(x + 5, foot - 52, 8, 12, own) +
      panes(x + 20, foot - 52, 8, 12, own) +
      panes(x + 5, foot - 34, 8, 12, own) +
      panes(x + 20, foot - 34, 8, 12, own) +
      panes(x + 20, foot - 15, 8, 8, own) +
      entrance(x + 5, 9, 16, { ...own, door: colours[(index + turn + 2) % 5]! }) +
      rect(x + 3, foot - 2, 13, 2, "#d8d2c8")
    );
  });
};

const mansion: Builder = (_chance, paint) => {
  const wall = mix(paint.wall, "#ffffff", 0.45);
  const own = { ...paint, wall };
  return (
    rect(22, foot - 34, 116, 34, wall) +
    path(`M18 ${foot - 33}L28 ${foot - 47}H132L142 ${foot - 33}Z`, paint.roof) +
    rect(58, foot - 44, 44, 44, wall) +
    gable(58, foot - 44, 44, 17, mix(wall, "#000000", 0.08)) +
    circle(80, foot - 49, 3, paint.light.glass) +
    many(4, (index) => rect(60 + index * 12.4, foot - 42, 3, 42, "#ffffff")) +
    entrance(75.5, 9, 20, own) +
    panes(73, foot - 38, 14, 11, own) +
    many(
      2,
      (index) =>
        panes(28 + index * 14, foot - 28, 8, 18, own) + panes(110 + index * 14, foot - 28, 8, 18, own),
    ) +
    path(`M66 ${foot}h28l8 12H58Z`, "#e3dccd") +
    ellipse(80, foot + 16, 16, 3.4, "#bcd8e0")
  );
};

const castle: Builder = (_chance, paint) => {
  const stone = mix(paint.wall, "#8d8a92", 0.6);
  const dark = mix(stone, "#000000", 0.14);
  const turret = (x: number, w: number, h: number): string =>
    rect(x, foot - h, w, h, dark) +
    path(
      `M${n(x - 2)} ${n(foot - h)}L${n(x + w / 2)} ${n(foot - h - w * 1.25)}L${n(x + w + 2)} ${n(foot - h)}Z`,
      paint.roof,
    ) +
    rect(x + w / 2 - 1.5, foot - h + 7, 3, 8, paint.light.glass) +
    stroke(`M${n(x + w / 2)} ${n(foot - h - w * 1.25)}v-6h6l-2 1.6l2 1.6h-6`, paint.door, 1);
  const teeth = (x: number, count: number, y: number): string =>
    many(count, (index) => rect(x + index * 7, y - 4, 4, 4, stone));
  return (
    rect(44, foot - 36, 72, 36, stone) +
    teeth(44, 11, foot - 36) +
    turret(34, 16, 52) +
    turret(110, 16, 52) +
    turret(71, 18, 58) +
    path(`M73 ${foot}v-14a7 7 0 0 1 14 0v14Z`, "#4a3427") +
    many(3, (index) => rect(52 + index * 25 - (index === 1 ? 99 : 0), foot - 26, 3, 8, paint.light.glass))
  );
};

const cabin: Builder = (_chance, paint) => {
  const wood = "#9a6a42";
  return (
    path(`M48 ${foot}L80 ${foot - 66}L112 ${foot}Z`, wood) +
    many(8, (index) =>
      rect(
        80 - (58 - index * 7) * 0.48,
        foot - 8 - index * 7,
        (58 - index * 7) * 0.96,
        0.8,
        mix(wood, "#000000", 0.25),
        { opacity: 0.6 },
      ),
    ) +
    path(`M42 ${foot + 2}L80 ${foot - 72}L118 ${foot + 2}H111L80 ${foot - 60}L49 ${foot + 2}Z`, paint.roof) +
    path(`M80 ${foot - 52}L94 ${foot - 24}H66Z`, paint.light.glass) +
    stroke(`M80 ${foot - 52}v28`, wood, 1.4) +
    rect(60, foot - 22, 40, 2, "#c9935f") +
    entrance(75, 10, 18, paint) +
    many(7, (index) => rect(52 + index * 9, foot - 8, 1.4, 8, "#c9935f")) +
    rect(50, foot - 9, 22, 1.6, "#c9935f") +
    rect(88, foot - 9, 24, 1.6, "#c9935f")
  );
};

const beach: Builder = (_chance, paint) =>
  many(5, (index) => rect(46 + index * 16, foot - 16, 3, 20, "#8a6a4c")) +
  rect(38, foot - 18, 84, 4, "#b28a5f") +
  rect(44, foot - 46, 70, 28, mix(paint.wall, "#ffffff", 0.35)) +
  path(`M36 ${foot - 45}L62 ${foot - 64}H98L122 ${foot - 45}Z`, paint.roof) +
  rect(50, foot - 40, 26, 20, paint.light.glass) +
  stroke(`M63 ${foot - 40}v20`, paint.trim, 1.2) +
  panes(86, foot - 40, 20, 12, paint) +
  many(10, (index) => rect(38 + index * 9, foot - 26, 1.2, 9, "#ffffff")) +
  rect(38, foot - 27, 84, 1.6, "#ffffff") +
  path(`M120 ${foot - 16}L136 ${foot + 4}`, "none", { stroke: "#b28a5f", "stroke-width": 3 });

const barn: Builder = (_chance, paint) => {
  const red = "#a83a2c";
  return (
    rect(50, foot - 36, 60, 36, red) +
    path(
      `M46 ${foot - 35}L54 ${foot - 52}L80 ${foot - 64}L106 ${foot - 52}L114 ${foot - 35}Z`,
      mix(red, "#000000", 0.45),
    ) +
    path(`M52 ${foot - 35}L58 ${foot - 49}L80 ${foot - 59}L102 ${foot - 49}L108 ${foot - 35}Z`, red) +
    rect(68, foot - 24, 24, 24, "#f3ece0") +
    rect(70, foot - 22, 20, 22, red) +
    stroke(`M70 ${foot - 22}L90 ${foot}M90 ${foot - 22}L70 ${foot}`, "#f3ece0", 1.8) +
    rect(75, foot - 48, 10, 9, "#f3ece0") +
    rect(76.5, foot - 46.5, 7, 7.5, paint.light.glass) +
    rect(116, foot - 50, 16, 50, "#c9c4bb") +
    path(`M116 ${foot - 50}a8 9 0 0 1 16 0Z`, "#8f8b85")
  );
};

const builders = {
  cottage,
  suburban,
  modern,
  apartments,
  tower,
  townhouse,
  mansion,
  castle,
  cabin,
  beach,
  barn,
};

const named: Readonly<Record<keyof typeof builders, RegExp>> = {
  castle: /castle|ch[aâ]teau|palace|fort/iu,
  mansion: /mansion|estate|manor|villa/iu,
  tower: /tower|penthouse|condo|sky|high.?rise/iu,
  apartments: /apartment|flat|studio|loft|unit|block/iu,
  townhouse: /town|brownstone|row|duplex/iu,
  cabin: /cabin|lodge|chalet|mountain|forest|lake/iu,
  beach: /beach|island|bungalow|ocean|coast/iu,
  barn: /barn|farm|ranch/iu,
  modern: /modern|glass|hills|contemporary/iu,
  cottage: /cottage|tiny|starter/iu,
  suburban: /suburb|family/iu,
};

const walls = ["#e8d9c2", "#d9c2a8", "#f1e9dc", "#b9c7cf", "#cfd8c2", "#e5b9a0", "#d8c8e0", "#f0d28a"];
const roofs = ["#8a4636", "#5c4a52", "#3f4d5c", "#a05a3a", "#4a5a4a", "#6b3a4a"];
const doors = ["#2f6f8a", "#a33b3b", "#e0a22f", "#3f7a4f", "#4a3a6b", "#54102a"];

function garden(chance: Chance, kind: keyof typeof builders, light: Light): string {
  if (kind === "tower") return "";
  const tree =
    kind === "beach"
      ? palmTree
      : kind === "cabin"
        ? firTree
        : chance.pick([roundTree, firTree, roundTree, palmTree]);
  return (
    tree(chance.between(12, 24), chance.between(34, 50), light) +
    tree(chance.between(136, 150), chance.between(28, 46), light)
  );
}

export function house(name: string): string {
  const chance = new Chance(`house ${name}`);
  const light = lightOf(chance);
  const id = `house-${Math.floor(chance.unit() * 1e9).toString(36)}`;
  const kind = kindIn(name, named) ?? chance.pick(Object.keys(builders) as (keyof typeof builders)[]);
  const shade = (colour: string): string => (light.isDark ? mix(colour, "#2a2148", 0.36) : colour);
  const paint: Paint = {
    wall: shade(chance.pick(walls)),
    trim: shade("#fbf7ef"),
    roof: shade(chance.pick(roofs)),
    door: chance.pick(doors),
    light,
  };
  const land = kind === "beach" ? mix("#ecd9ad", light.grass, light.isDark ? 0.5 : 0) : light.grass;
  const path_ =
    kind === "modern" || kind === "mansion" || kind === "beach"
      ? ""
      : path(`M72 ${foot + 24}L77 ${foot}h8l8 24Z`, mix(land, "#f4ead8", 0.6));
  const bushes =
    kind === "beach" || kind === "tower"
      ? ""
      : bush(chance.between(34, 42), 5, light) + bush(chance.between(116, 124), 6, light);
  const art =
    sky(chance, light, id) +
    hills(chance, light) +
    ground(land) +
    garden(chance, kind, light) +
    builders[kind](chance, paint) +
    path_ +
    bushes;
  return picture(width, height, art);
}
