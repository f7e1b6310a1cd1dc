// Sky and plants for houses, vehicles and photos. 160 by 112, the ground at y = 88.

import type { Chance } from "./random";
import { circle, ellipse, fall, many, mix, n, path, rect } from "./svg";

export const width = 160;
export const height = 112;
export const groundLine = 88;

export interface Light {
  readonly sky: readonly string[];
  readonly sun: string;
  readonly land: string; // far hills
  readonly grass: string;
  readonly leaves: string;
  readonly glass: string; // windows, lit or reflecting
  readonly isDark: boolean;
}

const lights: readonly Light[] = [
  {
    sky: ["#6fb3e8", "#cfe8f5"],
    sun: "#fff3c4",
    land: "#8fb98a",
    grass: "#6fa65c",
    leaves: "#3f7d4c",
    glass: "#bfe0ef",
    isDark: false,
  },
  {
    sky: ["#7fc4e0", "#fbe9c6"],
    sun: "#ffe08a",
    land: "#b9b67c",
    grass: "#8fae58",
    leaves: "#56803f",
    glass: "#cde6ea",
    isDark: false,
  },
  {
    sky: ["#5b4a8a", "#e8798a", "#fbc48a"],
    sun: "#ffe3a0",
    land: "#8a5570",
    grass: "#6b6a4c",
    leaves: "#474f3c",
    glass: "#ffd98a",
    isDark: true,
  },
  {
    sky: ["#f08a5d", "#fbd28a", "#fdeec8"],
    sun: "#fff6d8",
    land: "#c58a6a",
    grass: "#9a9a55",
    leaves: "#6d7a3f",
    glass: "#ffe7ad",
    isDark: false,
  },
  {
    sky: ["#141b3c", "#2f3f78", "#5d5f9a"],
    sun: "#eef0ff",
    land: "#28305a",
    grass: "#2c4a4a",
    leaves: "#1e3a3c",
    glass: "#ffd36e",
    isDark: true,
  },
  {
    sky: ["#9fc9d9", "#e6f1f2"],
    sun: "#ffffff",
    land: "#a9c3bd",
    grass: "#86ad8a",
    leaves: "#4d8069",
    glass: "#d7ebf0",
    isDark: false,
  },
];

export const lightOf = (chance: Chance): Light => chance.pick(lights);

export function sky(chance: Chance, light: Light, id: string): string {
  const shade = fall(id, light.sky);
  const x = chance.between(20, 140);
  const y = chance.between(16, 36);
  const stars =
    light === lights[4]
      ? many(22, () =>
          circle(chance.between(0, width), chance.between(0, 60), 0.6, "#ffffff", { opacity: 0.8 }),
        )
      : "";
  const cloud = (at: number, up: number, size: number): string =>
    ellipse(at, up, 12 * size, 4 * size, "#ffffff", { opacity: 0.7 }) +
    ellipse(at + 8 * size, up - 3 * size, 8 * size, 5 * size, "#ffffff", { opacity: 0.7 });
  const clouds = light.isDark
    ? ""
    : many(chance.whole(1, 3), () =>
        cloud(chance.between(0, width), chance.between(10, 44), chance.between(0.7, 1.3)),
      );
  return (
    shade.defs +
    rect(0, 0, width, height, shade.paint) +
    stars +
    circle(x, y, light.isDark ? 8 : 11, light.sun) +
    clouds
  );
}

export function hills(chance: Chance, light: Light): string {
  const hill = (y: number, colour: string): string => {
    const rise = chance.between(8, 22);
    return path(`M0 ${n(y)}Q40 ${n(y - rise)} 80 ${n(y - rise / 3)}T160 ${n(y - 4)}V112H0Z`, colour);
  };
  return hill(82, mix(light.land, light.sky[light.sky.length - 1]!, 0.45)) + hill(87, light.land);
}

export const ground = (colour: string): string => rect(0, groundLine, width, height - groundLine, colour);

export function roundTree(x: number, size: number, light: Light): string {
  return (
    rect(x - size * 0.07, groundLine - size * 0.5, size * 0.14, size * 0.54, "#6b4a35") +
    circle(x, groundLine - size * 0.72, size * 0.36, light.leaves) +
    circle(x + size * 0.12, groundLine - size * 0.8, size * 0.2, mix(light.leaves, "#ffffff", 0.14))
  );
}

export function firTree(x: number, size: number, light: Light): string {
  const tier = (up: number, half: number): string =>
    path(
      `M${n(x)} ${n(groundLine - size * (up + 0.42))}l${n(size * half)} ${n(size * 0.42)}h${n(-size * half * 2)}Z`,
      light.leaves,
    );
  return (
    rect(x - size * 0.05, groundLine - size * 0.14, size * 0.1, size * 0.16, "#5d4231") +
    tier(0.1, 0.3) +
    tier(0.34, 0.24) +
    tier(0.58, 0.17)
  );
}

export function palmTree(x: number, size: number, light: Light): string {
  const top = groundLine - size;
  const leaf = (dx: number, dy: number): string =>
    path(
      `M${n(x + size * 0.08)} ${n(top)}q${n(dx * 0.5)} ${n(dy - size * 0.16)} ${n(dx)} ${n(dy)}q${n(-dx * 0.5)} ${n(-size * 0.04)} ${n(-dx)} ${n(-dy)}`,
      light.leaves,
    );
  const crown =
    leaf(size * 0.42, size * 0.1) +
    leaf(-size * 0.42, size * 0.12) +
    leaf(size * 0.3, size * 0.28) +
    leaf(-size * 0.28, size * 0.3) +
    leaf(size * 0.06, -size * 0.2);
  return (
    path(
      `M${n(x - size * 0.05)} ${groundLine + 1}Q${n(x + size * 0.1)} ${n(groundLine - size * 0.5)} ${n(x + size * 0.06)} ${n(top)}h${n(size * 0.05)}Q${n(x + size * 0.18)} ${n(groundLine - size * 0.5)} ${n(x + size * 0.06)} ${groundLine + 1}Z`,
      "#8a6544",
    ) + crown
  );
}

export function bush(x: number, size: number, light: Light): string {
  return (
    ellipse(x, groundLine, size, size * 0.6, light.leaves) +
    ellipse(x + size * 0.8, groundLine + 1, size * 0.7, size * 0.45, mix(light.leaves, "#000000", 0.12))
  );
}
