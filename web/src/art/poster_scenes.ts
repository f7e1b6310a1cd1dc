// Posters that show a place: a wide view with something small and telling in it. 200 by 300.

import type { Scene, SceneArtist } from "./poster";
import { circle, ellipse, fall, group, many, mix, n, path, polygon, rect, stroke } from "./svg";

const titleAtFoot = { x: 16, y: 212, width: 168, height: 58 };
const titleOnTop = { x: 16, y: 22, width: 168, height: 62 };

// A ridge of hills from edge to edge, down to the foot.
function ridge(
  chance: { between: (a: number, b: number) => number },
  height: number,
  rough: number,
  steps: number,
): string {
  const points = Array.from({ length: steps + 1 }, (_, index): [number, number] => [
    (index / steps) * 200,
    height + chance.between(-rough, rough),
  ]);
  return polygon([...points, [200, 300], [0, 300]]);
}

// Someone standing, feet at x, y.
export function figure(x: number, y: number, size: number, colour: string): string {
  const s = size / 10;
  const at = (dx: number, dy: number): string => `${n(x + dx * s)} ${n(y + dy * s)}`;
  return (
    circle(x, y - 9 * s, 1.15 * s, colour) +
    path(
      `M${at(-1.6, -7.4)}Q${at(0, -8.2)} ${at(1.6, -7.4)}L${at(1.3, -3.6)}L${at(1.2, 0)}L${at(0.3, 0)}L${at(0, -3.2)}L${at(-0.3, 0)}L${at(-1.2, 0)}L${at(-1.3, -3.6)}Z`,
      colour,
    )
  );
}

const sunset: SceneArtist = (chance, p, id) => {
  const sky = fall(id, [p.night, p.deep, p.mid, p.pop]);
  const sunX = chance.between(60, 140);
  const cuts = chance.likely(0.5);
  const sun =
    circle(sunX, 142, 46, p.light) +
    (cuts
      ? many(5, (index) => rect(0, 146 + index * 9, 200, 1.5 + index * 1.2, mix(p.mid, p.pop, 0.5)))
      : "");
  const lands = [mix(p.mid, p.deep, 0.5), p.deep, mix(p.deep, p.night, 0.6), p.night]
    .map((colour, index) => path(ridge(chance, 168 + index * 22, 12 - index * 2, 7 + index), colour))
    .join("");
  const who = figure(chance.between(50, 150), 240, 26, p.pop);
  return {
    art: sky.defs + rect(0, 0, 200, 300, sky.paint) + sun + lands + who,
    title: titleOnTop,
    ink: p.light,
    ground: p.deep,
  };
};

const city: SceneArtist = (chance, p, id) => {
  const sky = fall(id, [p.night, p.deep, mix(p.deep, p.mid, 0.6)]);
  const row = (foot: number, least: number, most: number, colour: string, lit: string): string => {
    let art = "";
    for (let x = -6; x < 204;) {
      const width = chance.between(18, 32);
      const top = foot - chance.between(least, most);
      art += rect(x, top, width - 1.5, 300 - top, colour);
      if (chance.likely(0.3)) art += rect(x + width / 2 - 0.6, top - 14, 1.2, 14, colour);
      for (let y = top + 7; y < foot; y += 9) {
        for (let at = x + 4; at < x + width - 6; at += 7)
          if (chance.likely(0.34)) art += rect(at, y, 3, 4.4, lit);
      }
      x += width;
    }
    return art;
  };
  const moon = circle(chance.between(40, 160), 106, chance.between(18, 30), p.pop);
  const far = row(220, 60, 120, mix(p.deep, p.mid, 0.3), mix(p.mid, p.pop, 0.3));
  const near = row(262, 40, 92, p.night, p.pop);
  const street = path("M0 300V272Q100 258 200 272V300Z", mix(p.night, "#000000", 0.4));
  const who = figure(chance.between(60, 140), 284, 34, p.light);
  const art = sky.defs + rect(0, 0, 200, 300, sky.paint) + moon + far + near + street + who;
  return { art, title: titleOnTop, ink: p.light, ground: p.night };
};

const sea: SceneArtist = (chance, p, id) => {
  const sky = fall(id, [p.light, mix(p.light, p.pop, 0.5), p.pop]);
  const wave = (y: number, height: number, colour: string): string => {
    const step = chance.between(22, 34);
    let way = `M-10 ${n(y)}`;
    for (let x = -10; x < 210; x += step)
      way += `q${n(step / 4)} ${n(-height)} ${n(step / 2)} 0t${n(step / 2)} 0`;
    return path(`${way}V300H-10Z`, colour);
  };
  const boatX = chance.between(60, 140);
  const boat =
    path(`M${n(boatX - 26)} 168h52l-9 14h-36Z`, p.night) +
    path(`M${n(boatX)} 166V112l26 50Z`, p.deep) +
    path(`M${n(boatX - 3)} 164V122l-19 42Z`, mix(p.deep, p.mid, 0.5)) +
    stroke(`M${n(boatX - 1.5)} 168V106`, p.night, 1.6);
  const sun = circle(chance.between(30, 170), 118, 24, chance.likely(0.5) ? p.mid : p.deep);
  const waves = [mix(p.mid, p.light, 0.3), p.mid, mix(p.mid, p.deep, 0.5), p.deep, p.night]
    .map((colour, index) => (index === 1 ? boat : "") + wave(172 + index * 22, 7, colour))
    .join("");
  const birds = many(3, () => {
    const x = chance.between(20, 180);
    const y = chance.between(92, 130);
    return stroke(`M${n(x)} ${n(y)}q3 -4 5 0q2 -4 5 0`, p.night, 1);
  });
  return {
    art: sky.defs + rect(0, 0, 200, 300, sky.paint) + sun + birds + waves,
    title: titleOnTop,
    ink: p.night,
    ground: p.light,
  };
};

const forest: SceneArtist = (chance, p, id) => {
  const sky = fall(id, [p.pop, mix(p.pop, p.mid, 0.7), p.deep]);
  const trees = (count: number, foot: number, height: number, colour: string): string =>
    many(count, (index) => {
      const x = (index / count) * 210 + chance.between(-8, 8);
      const top = foot - height * chance.between(0.7, 1.15);
      const half = (foot - top) * 0.2;
      return many(4, (tier) => {
        const y = top + ((foot - top) / 4) * tier;
        const spread = half * (0.4 + tier * 0.22);
        return path(
          `M${n(x)} ${n(y)}L${n(x + spread)} ${n(y + (foot - top) * 0.38)}H${n(x - spread)}Z`,
          colour,
        );
      });
    });
  const moon = circle(100, 118, 40, p.light);
  const house =
    path("M84 226v-30l16-16 16 16v30Z", p.night) +
    rect(96, 196, 8, 9, p.pop) +
    rect(106, 172, 5, 14, p.night);
  const layers =
    trees(9, 226, 96, mix(p.mid, p.deep, 0.6)) +
    path(ridge(chance, 222, 4, 8), mix(p.deep, p.night, 0.4)) +
    (chance.likely(0.6) ? house : figure(100, 236, 34, p.night)) +
    trees(7, 262, 110, mix(p.deep, p.night, 0.7)).replace(/<path[^>]*d="M(8|9|10|11)\d[^>]*>/gu, "") +
    path(ridge(chance, 254, 4, 8), p.night);
  return {
    art: sky.defs + rect(0, 0, 200, 300, sky.paint) + moon + layers,
    title: titleOnTop,
    ink: p.night,
    ground: p.pop,
  };
};

const space: SceneArtist = (chance, p, id) => {
  const sky = fall(id, [p.night, mix(p.night, p.deep, 0.6), p.deep]);
  const stars = many(70, () =>
    circle(chance.between(0, 200), chance.between(0, 300), chance.between(0.3, 1.1), p.light, {
      opacity: chance.between(0.3, 1),
    }),
  );
  const x = chance.between(70, 130);
  const r = chance.between(48, 66);
  const globe = fall(`${id}b`, [p.pop, p.mid, p.deep], true);
  const bands = many(4, (index) =>
    ellipse(x, 118 - r + ((index + 1) * 2 * r) / 5, r, 3.4, mix(p.deep, p.mid, 0.4), {
      opacity: 0.45,
      "clip-path": `url(#${id}c)`,
    }),
  );
  const clip = `<clipPath id="${id}c">${circle(x, 118, r, "#fff")}</clipPath>`;
  const ring = group(
    ellipse(x, 118, r * 1.75, r * 0.42, "none", { stroke: p.light, "stroke-width": 3 }) +
      ellipse(x, 118, r * 1.55, r * 0.34, "none", { stroke: p.pop, "stroke-width": 1.4 }),
    { transform: `rotate(-18 ${n(x)} 118)` },
  );
  const half = path(`M${n(x - r)} 118A${n(r)} ${n(r)} 0 0 1 ${n(x + r)} 118Z`, globe.paint, {
    transform: `rotate(-18 ${n(x)} 118)`,
  });
  const ground = path(ridge(chance, 238, 8, 6), p.night) + figure(chance.between(50, 150), 240, 24, p.pop);
  const art =
    sky.defs +
    globe.defs +
    clip +
    rect(0, 0, 200, 300, sky.paint) +
    stars +
    circle(x, 118, r, globe.paint) +
    bands +
    ring +
    half +
    ground;
  return { art, title: { ...titleAtFoot, y: 250, height: 30 }, ink: p.light, ground: p.night };
};

const road: SceneArtist = (chance, p, id) => {
  const sky = fall(id, [p.pop, mix(p.pop, p.light, 0.6), p.light]);
  const middle = chance.between(80, 120);
  const fields =
    path(ridge(chance, 140, 16, 6), mix(p.mid, p.light, 0.2)) +
    path(ridge(chance, 156, 8, 5), p.mid) +
    rect(0, 168, 200, 132, p.deep);
  const way = path(`M${n(middle - 3)} 168h6L172 300H28Z`, p.night);
  const dashes = many(5, (index) => {
    const y = 176 + index * index * 5.5;
    const size = 0.8 + index * 1.2;
    const x = middle + ((100 - middle) * (y - 168)) / 132;
    return path(
      polygon([
        [x - size / 2, y],
        [x + size / 2, y],
        [x + size * 0.8, y + 5 + index * 4],
        [x - size * 0.8, y + 5 + index * 4],
      ]),
      p.light,
    );
  });
  const poles = many(4, (index) => {
    const x = middle - 16 - index * index * 9;
    const foot = 172 + index * index * 6;
    return stroke(
      `M${n(x)} ${n(foot)}V${n(foot - 16 - index * 14)}m${n(-3 - index * 2)} ${n(3 + index)}h${n(6 + index * 4)}`,
      p.night,
      0.8 + index * 0.5,
    );
  });
  return {
    art:
      sky.defs +
      rect(0, 0, 200, 300, sky.paint) +
      circle(middle, 128, 26, p.light) +
      fields +
      way +
      dashes +
      poles,
    title: titleOnTop,
    ink: p.night,
    ground: p.pop,
  };
};

const window: SceneArtist = (chance, p) => {
  const lit = chance.whole(0, 8);
  const panes = many(9, (index) => {
    const x = 32 + (index % 3) * 48;
    const y = 74 + Math.floor(index / 3) * 46;
    const isLit = index === lit;
    const curtain = isLit ? "" : path(`M${x} ${y}h40v6q-20 8-40 0Z`, mix(p.deep, p.night, 0.4));
    const who = isLit ? figure(x + 14, y + 38, 30, p.night) + figure(x + 27, y + 38, 27, p.deep) : "";
    return (
      rect(x, y, 40, 38, isLit ? p.pop : mix(p.deep, p.mid, 0.35)) +
      curtain +
      who +
      stroke(`M${x + 20} ${y}v38M${x} ${y + 19}h40`, isLit ? mix(p.pop, p.deep, 0.4) : p.deep, 1.4) +
      rect(x - 3, y + 38, 46, 4, p.light)
    );
  });
  const rain = many(40, () => {
    const x = chance.between(0, 210);
    const y = chance.between(-10, 300);
    return stroke(`M${n(x)} ${n(y)}l-5 16`, p.light, 0.7, { opacity: 0.35 });
  });
  const wall =
    rect(0, 0, 200, 300, p.deep) +
    many(15, (index) => rect(0, index * 20, 200, 0.8, mix(p.deep, p.night, 0.4)));
  return { art: wall + panes + rain, title: titleAtFoot, ink: p.light, ground: p.deep };
};

export const scenes: readonly SceneArtist[] = [sunset, city, sea, forest, space, road, window];
export type { Scene };
