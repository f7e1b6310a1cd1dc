// The badges of the RottenBanana page: bananas for critics, popcorn for audiences.

import { circle, many, moved, path, picture, polygon, rect, stroke, turned } from "./svg";

// In a square of 48 around 0, 0.
const banana = (flesh: string, shade: string, tip: string): string =>
  path("M14-19L19-18Q22 0 12 11T-15 16Q-19 15-18 12Q-2 12 7 3T14-19Z", flesh) +
  stroke("M17-12Q17 0 9 8T-11 14", shade, 2, { "stroke-linecap": "round" }) +
  path("M13-18L14-23L19-22L19-17Z", tip) +
  circle(-17, 14, 2, tip);

const kernels = (corn: string): string =>
  [
    [-9, -7, 6],
    [9, -7, 6],
    [0, -12, 7],
    [-4, -5, 6],
    [5, -4, 6],
  ]
    .map(([x, y, r]) => circle(x!, y!, r!, corn))
    .join("");

const popcorn = (corn: string, bucket: string, stripe: string): string =>
  kernels(corn) +
  path("M-14-4H14L10 19H-10Z", bucket) +
  path("M-9-4H-4L-3 19H-7ZM4-4H9L7 19H3Z", stripe);

const seal = (colour: string): string =>
  path(
    polygon(
      Array.from({ length: 36 }, (_, index): [number, number] => [
        Math.sin(index * 0.17453) * (index % 2 === 0 ? 30 : 26),
        Math.cos(index * 0.17453) * (index % 2 === 0 ? 30 : 26),
      ]),
    ),
    colour,
  );
const flame = path("M0-29Q13-17 9-6Q7-12 4-12Q4-4-2 0Q-12-6-9-14Q-7-10-5-10Q-6-19 0-29Z", "#ff8a1f");
const spots = circle(4, 6, 2.6, "#3b2412") + circle(11, 0, 2, "#3b2412") + circle(-5, 11, 2.2, "#3b2412");
const spilt = many(4, (index) => circle(-19 + index * 5, index % 2 === 0 ? 13 : 17, 3.4, "#c9c08b"));

interface Badge {
  readonly ground: string;
  readonly sign: string;
}

const badges: Readonly<Record<string, Badge>> = {
  "certifiedFreshBanana.png": {
    ground: "#0c5f4a",
    sign: seal("#f4b52e") + circle(0, 0, 23, "#0c5f4a") + banana("#ffd84a", "#e0a51c", "#6b4a12"),
  },
  "bananaOnly.png": { ground: "#1f6f8b", sign: banana("#ffd84a", "#e0a51c", "#6b4a12") },
  "spoiledBanana.png": { ground: "#4a4156", sign: banana("#8a6a35", "#66491f", "#2b1a0c") + spots },
  "verifiedHot.png": {
    ground: "#8f1230",
    sign: flame + moved(0, 4, popcorn("#fff3cf", "#ffffff", "#e03a3a")),
  },
  "popcornOnly.png": { ground: "#20407a", sign: popcorn("#fff3cf", "#ffffff", "#e03a3a") },
  "rottenPopcorn.png": {
    ground: "#3c4a2c",
    sign: spilt + turned(-100, 0, 0, moved(-2, 0, popcorn("#c9c08b", "#cfd3c0", "#7d8a4e"))),
  },
};

export function badge(name: string): string | undefined {
  const known = badges[name];
  return known && picture(64, 64, rect(0, 0, 64, 64, known.ground) + moved(32, 32, known.sign));
}
