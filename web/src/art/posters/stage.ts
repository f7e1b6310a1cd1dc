// Parts of poster scenes: backdrops for the sheet of 200 by 300, and people.

import type { Palette } from "../palettes";
import type { Chance } from "../random";
import {
  circle, ellipse, fall, group, mix, n, path, polygon, rect, stroke,
} from "../svg";

// `y` is the vertical center of the subject, which leaves room for the title above or below.
export interface Stage {
  readonly p: Palette;
  readonly chance: Chance;
  readonly y: number;
}

export interface Drawn {
  readonly art: string;
  readonly sky: string; // the color behind a title at the top
  readonly ground: string; // the color behind a title at the bottom
}

export type Scene = (stage: Stage) => Drawn;

export const fill = (colour: string): string => rect(0, 0, 200, 300, colour);

export function sky(...colours: readonly string[]): string {
  const shade = fall("sky", colours);
  return shade.defs + fill(shade.paint);
}

// Places content that is centered at 0, 0.
export const at = (x: number, y: number, content: string, scale = 1, turn = 0): string =>
  group(content, {
    transform: `translate(${n(x)} ${n(y)})${turn === 0 ? "" : `rotate(${n(turn)})`}${scale === 1 ? "" : `scale(${n(scale)})`}`,
  });

export const round = { "stroke-linecap": "round", "stroke-linejoin": "round" } as const;

// Beams in all directions from a point.
export function rays(x: number, y: number, count: number, colour: string, share = 0.5, length = 320): string {
  return path(
    Array.from({ length: count }, (_, index) => {
      const from = ((index - share / 2) / count) * Math.PI * 2 - Math.PI / 2;
      const to = ((index + share / 2) / count) * Math.PI * 2 - Math.PI / 2;
      return polygon([
        [x, y],
        [x + Math.cos(from) * length, y + Math.sin(from) * length],
        [x + Math.cos(to) * length, y + Math.sin(to) * length],
      ]);
    }).join(""),
    colour,
  );
}

// A star with many points, such as an explosion or a seal.
export function burst(x: number, y: number, points: number, outer: number, inner: number, colour: string): string {
  return path(
    polygon(
      Array.from({ length: points * 2 }, (_, index): [number, number] => {
        const angle = (index / points) * Math.PI - Math.PI / 2;
        const r = index % 2 === 0 ? outer : inner;
        return [x + Math.cos(angle) * r, y + Math.sin(angle) * r];
      }),
    ),
    colour,
  );
}

// Hills across the sheet, down to the bottom.
export function hills(chance: Chance, y: number, height: number, colour: string): string {
  const a = chance.between(-height, height);
  const b = chance.between(-height, height);
  return path(`M0 ${n(y + b)}C40 ${n(y - a)} 70 ${n(y - height)} 110 ${n(y + a / 2)}S170 ${n(y + b)} 200 ${n(y - b)}V300H0Z`, colour);
}

// Mountains, with snow if `cap` is given.
export function peaks(chance: Chance, y: number, height: number, colour: string, cap = ""): string {
  let way = `M-20 300V${n(y)}`;
  let caps = "";
  for (let x = -20; x < 200; ) {
    const half = chance.between(0.5, 0.8) * height;
    const top = y - height * chance.between(0.65, 1.1);
    way += `L${n(x + half)} ${n(top)}L${n(x + half * 1.9)} ${n(y - height * 0.12)}`;
    const c = height * 0.3;
    const slope = half / (y - top);
    caps += `M${n(x + half)} ${n(top)}l${n(-c * slope)} ${n(c)}l${n(c * slope * 0.6)} ${n(-c * 0.3)}l${n(c * slope * 0.5)} ${n(c * 0.35)}l${n(c * slope * 0.7)} ${n(-c * 0.05)}Z`;
    x += half * 1.9;
  }
  return path(`${way}L220 300Z`, colour) + (cap === "" ? "" : path(caps, cap));
}

// A row of houses, with windows if `lit` is given.
export function skyline(chance: Chance, foot: number, least: number, most: number, colour: string, lit = ""): string {
  let way = "";
  let windows = "";
  for (let x = -6; x < 204; ) {
    const width = chance.between(16, 30);
    const top = foot - chance.between(least, most);
    way += `M${n(x)} 300V${n(top)}h${n(width)}V300Z`;
    if (chance.likely(0.25)) way += `M${n(x + width / 2 - 1)} ${n(top)}v-12h2v12Z`;
    if (lit !== "") {
      for (let y = top + 7; y < foot; y += 9) {
        for (let at = x + 4; at < x + width - 5; at += 7)
          if (chance.likely(0.4)) windows += `M${n(at)} ${n(y)}h3v4.6h-3Z`;
      }
    }
    x += width + (chance.likely(0.3) ? 3 : 0);
  }
  return path(way, colour) + (windows === "" ? "" : path(windows, lit));
}

export function stars(chance: Chance, count: number, foot: number, colour: string): string {
  return path(
    Array.from({ length: count }, () => {
      const r = chance.between(0.5, 1.4);
      return `M${n(chance.between(2, 198))} ${n(chance.between(4, foot))}l${n(r)} ${n(r)}l${n(-r)} ${n(r)}l${n(-r)} ${n(-r)}Z`;
    }).join(""),
    colour,
  );
}

export function rain(chance: Chance, colour: string, opacity = 0.35): string {
  const ways = Array.from(
    { length: 46 },
    () => `M${n(chance.between(0, 210))} ${n(chance.between(-10, 295))}l-5 17`,
  ).join("");
  return stroke(ways, colour, 1, { opacity });
}

export function sea(y: number, colours: readonly string[]): string {
  return colours
    .map((colour, index) => {
      const top = y + index * (14 + index * 6);
      return path(`M${-20 + (index % 2) * -14} ${n(top)}${"q7-6 14 0t14 0".repeat(9)}V300H-40Z`, colour);
    })
    .join("");
}

// Fir trees with their bottom at y.
export function firs(chance: Chance, y: number, height: number, colour: string): string {
  let way = "";
  for (let x = -8; x < 210; ) {
    const h = height * chance.between(0.6, 1.1);
    const half = h * 0.2;
    way += `M${n(x)} ${n(y - h)}l${n(half * 0.7)} ${n(h * 0.42)}h${n(-half * 0.3)}l${n(half * 0.7)} ${n(h * 0.4)}h${n(-half * 0.9)}V${n(y + 2)}h${n(-half * 0.4)}v${n(-h * 0.2)}h${n(-half * 0.9)}l${n(half * 0.7)} ${n(-h * 0.4)}h${n(-half * 0.3)}Z`;
    x += half * chance.between(1.2, 2.4);
  }
  return path(way, colour) + rect(0, y, 200, 300 - y, colour);
}

export const birds = (x: number, y: number, colour: string): string =>
  stroke(`M${x} ${y}q4-5 7 0q3-5 7 0M${x + 19} ${y + 9}q3-4 5 0q2-4 5 0M${x + 24} ${y - 9}q3-4 5 0q2-4 5 0`, colour, 1.3);

// A pictogram of a person, feet at 0, 0, ten high: limbs are thick strokes.
export interface Pose {
  readonly legs: string;
  readonly arms: string;
  readonly lean: number; // horizontal offset of the head
  readonly trunk: string;
}

const trunk = "M-1.35-7.9Q0-8.5 1.35-7.9L.95-4.3H-.95Z";
export const poses = {
  standing: { legs: "M-.5-4.6L-.65-.3M.5-4.6L.65-.3", arms: "M-1.2-7.6L-1.75-4.3M1.2-7.6L1.75-4.3", lean: 0, trunk },
  walking: { legs: "M-.2-4.6L1.1-2.5L1.4-.3M.2-4.6L-.7-2.4L-1.9-.5", arms: "M-1-7.6L-1.7-5.6L-.9-4.2M1-7.6L1.8-5.8L2.4-4.8", lean: 0.15, trunk },
  running: {
    legs: "M0-4.6L1.9-3.6L1.5-1.3M0-4.6L-1.2-2.7L-3.1-2.3",
    arms: "M.5-7.5L-1.2-6.5L-2-7.6M.9-7.4L2-6L3.1-6.9",
    lean: 0.75,
    trunk: "M-.8-7.9Q.6-8.5 1.7-7.7L.8-4.2H-.9Z",
  },
  falling: { legs: "M-.4-4.6L-1.7-2.6L-3-3M.4-4.6L1.4-2.7L1-.6", arms: "M-1.1-7.6L-2.7-8.4L-3.3-9.9M1.1-7.6L2.7-7.3L4-8.3", lean: 0.2, trunk },
  arms: { legs: "M-.4-4.6L-1.3-.3M.4-4.6L1.3-.3", arms: "M-1.1-7.6L-2.4-9.4L-2-11.2M1.1-7.6L2.4-9.4L2-11.2", lean: 0, trunk },
  sitting: { legs: "M-.3-4.6L1.9-4.2L2-1.9M.2-4.6L1.4-4.3L1.5-1.9", arms: "M.6-7.4L1.2-5.7L2.1-5", lean: 0.3, trunk },
  coat: { legs: "M-.5-3L-.6-.3M.5-3L.6-.3", arms: "M-1.3-7.5L-1.9-4.4M1.3-7.5L1.9-4.4", lean: 0, trunk: "M-1.6-7.9Q0-8.6 1.6-7.9L1.95-1.9H-1.95Z" },
  dress: { legs: "M-.4-2.4L-.45-.3M.4-2.4L.45-.3", arms: "M-.9-7.5L-1.6-5L-.9-4.2M.9-7.5L1.6-5", lean: 0, trunk: "M-1-7.9Q0-8.3 1-7.9L.7-5.7L2-1.9H-2L-.7-5.7Z" },
  stride: { legs: "M-.4-4.6L-1.7-.3M.4-4.6L1.7-.3", arms: "M-1.2-7.6L-2.4-5.8L-1.9-4.3M1.2-7.6L2.4-5.8L1.9-4.3", lean: 0, trunk },
} as const satisfies Record<string, Pose>;

export function person(x: number, y: number, height: number, colour: string, pose: Pose = poses.standing, hat = ""): string {
  const scale = height / 10;
  const art =
    circle(pose.lean, -9.15, 0.88, colour) +
    path(pose.trunk, colour) +
    stroke(pose.legs, colour, 0.98, round) +
    stroke(pose.arms, colour, 0.68, round) +
    (hat === "" ? "" : path(hats[hat] ?? "", colour, { transform: `translate(${n(pose.lean)} .25)` }));
  return at(x, y, art, scale);
}

const hats: Readonly<Record<string, string>> = {
  cowboy: "M-2.1-9.5Q0-8.8 2.1-9.5Q1.2-9.9.9-9.9L.8-10.8Q.4-11 0-10.7Q-.4-11-.8-10.8L-.9-9.9Q-1.2-9.9-2.1-9.5Z",
  fedora: "M-1.7-9.4Q0-9 1.7-9.4L1-9.8L.8-10.7Q0-11-.8-10.7L-1-9.8Z",
  helmet: "M-1.35-9Q-1.3-10.5 0-10.5T1.35-9Z",
  tall: "M-1.3-9.6H1.3V-10H.85V-11.9H-.85V-10H-1.3Z",
};

// An embracing couple, feet at 0, 0, ten high.
export const couple = (x: number, y: number, height: number, his: string, hers: string): string =>
  at(
    x,
    y,
    circle(-0.62, -9, 0.85, his) +
      path("M-2.3-7.2Q-1.6-8.3-.1-7.8L.3-4.2H-1.9Z", his) +
      stroke("M-1.5-4.4L-1.6-.3M-.4-4.4L-.2-.3", his, 0.95, round) +
      circle(0.72, -8.6, 0.82, hers) +
      path("M.9-9.4Q2-8.8 1.7-7.2L1-7.6Z", hers) +
      path("M.1-7.3Q1.2-8 2-7L1.5-5.4L2.9-1.6H-.1L.3-5.2Z", hers) +
      stroke("M.8-1.8L.8-.3M1.7-1.8L1.8-.3M1.4-6.8L-1-7.2", hers, 0.62, round) +
      stroke("M-.6-6.9L1.4-5.7", his, 0.62, round),
    height / 10,
  );

// A shadow on the ground toward the viewer.
export const shadow = (x: number, y: number, width: number, length: number, lean: number, colour: string): string =>
  path(`M${n(x - width)} ${n(y)}h${n(width * 2)}L${n(x + lean + width * 2.2)} ${n(y + length)}H${n(x + lean - width * 2.2)}Z`, colour);

export const moon = (x: number, y: number, r: number, colour: string, dark: string): string =>
  circle(x, y, r, colour) +
  ellipse(x - r * 0.3, y - r * 0.25, r * 0.22, r * 0.18, mix(colour, dark, 0.14)) +
  circle(x + r * 0.35, y + r * 0.3, r * 0.16, mix(colour, dark, 0.14)) +
  circle(x + r * 0.2, y - r * 0.5, r * 0.1, mix(colour, dark, 0.14));

// A cloud with its flat bottom at y.
export const cloud = (x: number, y: number, scale: number, colour: string): string =>
  at(x, y, path("M-26 0Q-36 0-34-9Q-30-17-21-13Q-18-25-6-23Q4-22 7-13Q16-19 22-11Q34-11 32-3Q31 0 26 0Z", colour), scale);

export const heart = (x: number, y: number, scale: number, colour: string): string =>
  at(x, y, path("M0 40C-56 4-42-34-20-34C-8-34 0-26 0-20C0-26 8-34 20-34C42-34 56 4 0 40Z", colour), scale);

