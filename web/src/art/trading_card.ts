// Collectible cards: a creature in a frame with a name and symbols. Some are shiny.

import { creature } from "./creature";
import { hands, lettering } from "./lettering";
import { isTitle } from "./names";
import { Chance } from "./random";
import { circle, element, fall, group, many, mix, n, path, picture, rect, stroke } from "./svg";

const width = 126;
const height = 176;
const view = { x: 13, y: 28, width: 100, height: 78 };

interface Kind {
  readonly frame: string;
  readonly sky: readonly [string, string];
  readonly coats: readonly string[];
  readonly mark: string;
  readonly sign: string; // a path in a square of 12 around 0, 0
}

const elements: readonly Kind[] = [
  {
    frame: "#d9532c",
    sky: ["#ffb25c", "#8a2a1c"],
    coats: ["#e8622f", "#f08a3a", "#c2402a"],
    mark: "#ffd34d",
    sign: "M0-6q6 5 3 11h-6q-4-4 0-7q0 3 2 2q0-4 1-6Z",
  },
  {
    frame: "#2f7fc2",
    sky: ["#9fdcf5", "#1f4f94"],
    coats: ["#3f8fd6", "#5fb8d9", "#3a6bb0"],
    mark: "#d8f3ff",
    sign: "M0-6q6 7 4 9.500a4.500 4.500 0 0 1-8 0q-2-2.500 4-9.500Z",
  },
  {
    frame: "#4a8f3f",
    sky: ["#d6ee9a", "#2f6b3a"],
    coats: ["#5aa84a", "#86bd4f", "#3f8a5a"],
    mark: "#ff8fa8",
    sign: "M-5 4Q-5-5 5-5Q5 5-4 4L1-1Z",
  },
  {
    frame: "#d9a520",
    sky: ["#fff2a8", "#b87a14"],
    coats: ["#f2c230", "#e8a82a", "#d9c24a"],
    mark: "#6b3f1a",
    sign: "M1-6L-4 1H0L-1 6L4-1H0Z",
  },
  {
    frame: "#7a4fa8",
    sky: ["#e3b5f0", "#3f2470"],
    coats: ["#9a66c9", "#b57ad6", "#6f4fae"],
    mark: "#ffd9f2",
    sign: "M0-6A6 6 0 1 0 5 4A5 5 0 1 1 0-6Z",
  },
  {
    frame: "#8a6a4c",
    sky: ["#e8d2a8", "#6b4a30"],
    coats: ["#a8794f", "#c29a6b", "#8a6450"],
    mark: "#f2e2c0",
    sign: "M-6 5L-1-5L2 0L4-3L6 5Z",
  },
  {
    frame: "#3f4658",
    sky: ["#a8b4d0", "#1c2233"],
    coats: ["#566078", "#6b7a94", "#434a66"],
    mark: "#e04f5a",
    sign: "M0-6L2-2H6L3 1L4 6L0 3L-4 6L-3 1L-6-2H-2Z",
  },
];

function scenery(chance: Chance, { sky }: Kind, id: string): string {
  const shade = fall(id, sky);
  const { x, y } = view;
  const land = mix(sky[1], "#000000", 0.2);
  const rays = many(12, (index) =>
    path(
      `M${x + 50} ${y + 40}L${n(x + 50 + Math.cos(index * 0.524) * 90)} ${n(y + 40 + Math.sin(index * 0.524) * 90)}L${n(x + 50 + Math.cos(index * 0.524 + 0.2) * 90)} ${n(y + 40 + Math.sin(index * 0.524 + 0.2) * 90)}Z`,
      "#ffffff",
      { opacity: 0.16 },
    ),
  );
  const hill = path(`M${x} ${y + 60}q${n(chance.between(14, 30))} -14 50 -4t50 -2v30h-100Z`, land);
  const motes = many(9, () =>
    circle(x + chance.between(4, 96), y + chance.between(4, 60), chance.between(0.7, 2), "#ffffff", {
      opacity: 0.7,
    }),
  );
  return shade.defs + rect(x, y, view.width, view.height, shade.paint) + rays + hill + motes;
}

function shine(chance: Chance, id: string): string {
  const rainbow = fall(id, ["#ff8fb2", "#ffe28a", "#9af0c0", "#8fc8ff", "#d6a0ff"], true);
  const glints = many(7, () => {
    const x = chance.between(16, 110);
    const y = chance.between(30, 104);
    return path(`M${n(x)} ${n(y - 4)}l1 3l3 1l-3 1l-1 3l-1-3l-3-1l3-1Z`, "#ffffff", { opacity: 0.9 });
  });
  return (
    rainbow.defs + rect(view.x, view.y, view.width, view.height, rainbow.paint, { opacity: 0.24 }) + glints
  );
}

function rules(chance: Chance, { frame, sign }: Kind): string {
  return (
    many(2, (index) => {
      const y = 120 + index * 22;
      const lines = many(2, (line) =>
        rect(36, y - 4 + line * 6, chance.between(34, 62), 2.4, "#4a3f38", { opacity: 0.55 }),
      );
      return (
        circle(23, y, 7, frame) +
        path(sign, "#ffffff", { transform: `translate(23 ${y}) scale(.78)` }) +
        lines
      );
    }) +
    stroke("M13 131H113M13 153H113", frame, 0.8, { opacity: 0.6 }) +
    many(3, (index) => rect(20 + index * 32, 159, 22, 3, "#4a3f38", { opacity: 0.35 }))
  );
}

export function tradingCard(name: string): string {
  const chance = new Chance(`card ${name}`);
  const kind = chance.pick(elements);
  const id = `card-${Math.floor(chance.unit() * 1e9).toString(36)}`;
  const shines = /holo|rare|first|gold/iu.test(name) || chance.likely(0.3);
  const border = shines ? "#d9b34a" : "#f2d675";
  const paper = mix(kind.frame, "#fff8ea", 0.8);
  const beast = group(creature(chance, { coat: chance.pick(kind.coats), mark: kind.mark }), {
    transform: "translate(63 70) scale(.86)",
  });
  const label = isTitle(name)
    ? lettering(
        name,
        { x: 14, y: 13, width: 78, height: 9 },
        hands.plain,
        mix(kind.frame, "#000000", 0.55),
        paper,
      )
    : rect(15, 15, chance.between(36, 60), 5, mix(kind.frame, "#000000", 0.5), { rx: 2 });
  const art =
    rect(0, 0, width, height, border, { rx: 7 }) +
    rect(6, 6, width - 12, height - 12, paper, { rx: 4 }) +
    label +
    circle(107, 17, 6.5, kind.frame) +
    path(kind.sign, "#ffffff", { transform: "translate(107 17) scale(.72)" }) +
    element("clipPath", { id: `${id}c` }, rect(view.x, view.y, view.width, view.height, "#fff")) +
    group(scenery(chance, kind, id) + beast + (shines ? shine(chance, `${id}b`) : ""), {
      "clip-path": `url(#${id}c)`,
    }) +
    rect(view.x, view.y, view.width, view.height, "none", { stroke: kind.frame, "stroke-width": 3 }) +
    rules(chance, kind);
  return picture(width, height, art);
}
