// Photos of places and objects, 160 by 112. A name that contains a subject gets that subject.

import { kindIn } from "./names";
import { palettes } from "./palettes";
import { person } from "./posters/stage";
import { Chance } from "./random";
import { bush, ground, groundLine, height, hills, lightOf, palmTree, roundTree, sky, width } from "./scenery";
import { circle, ellipse, fall, group, many, mix, n, path, picture, polygon, rect, stroke } from "./svg";

type View = (chance: Chance, id: string) => string;

const ring: View = (chance, id) => {
  const cloth = fall(
    id,
    chance.pick([
      ["#6d1236", "#2e0616"],
      ["#1f2f66", "#0b1230"],
      ["#20443c", "#0c1f1b"],
    ]),
  );
  const metal = chance.pick(["#f0c75a", "#e3e6ea", "#eab59a"]);
  const stone = chance.pick(["#dff4ff", "#ffd9e8", "#c9f2df", "#d8dcff"]);
  const folds = many(5, (index) =>
    stroke(
      `M-10 ${20 + index * 22}Q50 ${4 + index * 22} 90 ${26 + index * 20}T170 ${18 + index * 22}`,
      "#ffffff",
      7,
      { opacity: 0.05 },
    ),
  );
  const band =
    ellipse(80, 74, 27, 27, "none", { stroke: metal, "stroke-width": 6 }) +
    stroke("M56 64A27 27 0 0 1 80 47", "#ffffff", 2, { opacity: 0.7 });
  const facets =
    path(
      polygon([
        [62, 34],
        [70, 25],
        [90, 25],
        [98, 34],
        [80, 54],
      ]),
      stone,
    ) +
    path(
      polygon([
        [62, 34],
        [98, 34],
        [80, 54],
      ]),
      mix(stone, "#5a86b8", 0.3),
    ) +
    path(
      polygon([
        [72, 34],
        [88, 34],
        [80, 54],
      ]),
      stone,
    ) +
    path(
      polygon([
        [70, 25],
        [76, 34],
        [84, 34],
        [90, 25],
      ]),
      "#ffffff",
    );
  const glints = many(6, () => {
    const x = chance.between(44, 118);
    const y = chance.between(10, 46);
    return path(
      `M${n(x)} ${n(y - 5)}l1.2 3.800l3.800 1.200l-3.800 1.200l-1.200 3.800l-1.200-3.800l-3.800-1.200l3.800-1.200Z`,
      "#ffffff",
      { opacity: 0.85 },
    );
  });
  return (
    cloth.defs +
    rect(0, 0, width, height, cloth.paint) +
    folds +
    ellipse(80, 102, 34, 5, "#000000", { opacity: 0.35 }) +
    band +
    facets +
    glints
  );
};

const wedding: View = (chance, id) => {
  const light = lightOf(chance);
  const bloom = chance.pick(["#f4a6b8", "#fbe3d8", "#e5b4e0", "#f7c66b"]);
  const arch = stroke("M54 92V50a26 26 0 0 1 52 0V92", "#fbf7ef", 4);
  const flowers = many(24, (index) => {
    const angle = Math.PI * (index / 23);
    const x = 80 - Math.cos(angle) * 27 + chance.between(-3, 3);
    const y = 50 - Math.sin(angle) * 27 + chance.between(-3, 3);
    return circle(
      x,
      y,
      chance.between(2, 4),
      index % 3 === 0 ? light.leaves : index % 3 === 1 ? bloom : "#ffffff",
    );
  });
  const chairs = many(
    3,
    (index) =>
      rect(20 + index * 9, 84 + index * 5, 6, 8, "#ffffff") +
      rect(134 - index * 9, 84 + index * 5, 6, 8, "#ffffff"),
  );
  const aisle = path("M74 92H86L108 112H52Z", "#f6efe2");
  return (
    sky(chance, light, id) +
    hills(chance, light) +
    ground(light.grass) +
    roundTree(14, 44, light) +
    roundTree(148, 40, light) +
    aisle +
    arch +
    flowers +
    chairs +
    person(76, 94, 25, "#2a2433") +
    person(85, 94, 24, "#ffffff") +
    bush(40, 5, light) +
    bush(116, 5, light)
  );
};

const stage: View = (chance, id) => {
  const p = chance.pick(palettes);
  const beam = fall(id, [p.light, mix(p.pop, p.deep, 0.4)]);
  const curtains = many(
    6,
    (index) =>
      path(`M${index * 9} 0h7q3 60-2 92h-7q5-40 2-92Z`, p.deep) +
      path(`M${160 - index * 9} 0h-7q-3 60 2 92h7q-5-40-2-92Z`, p.deep),
  );
  const crowd = many(11, (index) => circle(6 + index * 15, 108 + chance.between(-3, 3), 8, "#0e0a12"));
  return (
    beam.defs +
    rect(0, 0, width, height, p.night) +
    path("M74 0h12L112 90H48Z", beam.paint, { opacity: 0.7 }) +
    curtains +
    rect(0, 88, width, 24, mix(p.deep, "#000000", 0.3)) +
    ellipse(80, 91, 34, 5, p.light) +
    person(80, 92, 40, p.night) +
    crowd
  );
};

const city: View = (chance, id) => {
  const light = lightOf(chance);
  const dark = light.isDark ? "#232a4a" : "#7f93a8";
  const row = (colour: string, low: number, high: number): string => {
    let art = "";
    for (let x = -4; x < 160;) {
      const w = chance.between(12, 22);
      const h = chance.between(low, high);
      art +=
        rect(x, groundLine - h, w - 1, h + 30, colour) +
        many(Math.floor(h / 8), (floor) =>
          many(Math.floor(w / 6), (index) =>
            chance.likely(0.4)
              ? rect(x + 2 + index * 5, groundLine - h + 4 + floor * 8, 2.4, 3.4, light.glass)
              : "",
          ),
        );
      x += w;
    }
    return art;
  };
  return (
    sky(chance, light, id) +
    row(mix(dark, light.sky[1]!, 0.5), 34, 70) +
    row(dark, 18, 50) +
    rect(0, groundLine, width, 24, mix(dark, "#000000", 0.4)) +
    many(5, (index) => rect(6 + index * 34, groundLine + 11, 18, 1.6, "#f3ead2"))
  );
};

const beach: View = (chance, id) => {
  const light = lightOf(chance);
  const sea = light.isDark ? "#2a3d6b" : "#49a8c4";
  return (
    sky(chance, light, id) +
    rect(0, 62, width, 30, sea) +
    path("M0 84Q50 74 90 84T160 80V112H0Z", mix("#f0dcae", sea, light.isDark ? 0.35 : 0)) +
    stroke("M0 84Q50 74 90 84T160 80", "#ffffff", 1.8, { opacity: 0.8 }) +
    palmTree(24, 62, light) +
    path("M96 92l14-18l14 18Z", "#e0563f") +
    stroke("M110 74v26", "#f7f1e6", 1.6) +
    ellipse(110, 101, 12, 2, "#d9c08a")
  );
};

const table: View = (chance, id) => {
  const warm = fall(id, ["#3a1f2a", "#6b3326"]);
  const lights = many(12, () =>
    circle(chance.between(0, 160), chance.between(4, 56), chance.between(2, 7), "#ffc86b", {
      opacity: chance.between(0.15, 0.5),
    }),
  );
  const glass = (x: number): string =>
    path(`M${x} 58h14q0 14-7 15q-7-1-7-15Z`, "#ffffff", { opacity: 0.4 }) +
    path(`M${x + 1} 63h12q-1 9-6 9.500q-5-.500-6-9.500Z`, "#8c1f3a") +
    stroke(`M${x + 7} 73v12m-5 0h10`, "#ffffff", 1.4, { opacity: 0.7 });
  return (
    warm.defs +
    rect(0, 0, width, height, warm.paint) +
    lights +
    path("M0 84Q80 74 160 84V112H0Z", "#f4ece2") +
    glass(52) +
    glass(94) +
    rect(77, 68, 6, 16, "#fbf3df") +
    path("M80 56q5 7 0 11q-5-4 0-11Z", "#ffb43a") +
    ellipse(46, 96, 22, 5, "#ffffff", { stroke: "#d9cfc2", "stroke-width": 1 }) +
    ellipse(114, 96, 22, 5, "#ffffff", { stroke: "#d9cfc2", "stroke-width": 1 })
  );
};

const trophy: View = (chance, id) => {
  const p = chance.pick(palettes);
  const back = fall(id, [p.deep, p.night]);
  const rays = many(14, (index) =>
    path(
      polygon([
        [80, 50],
        [80 + Math.cos(index * 0.449) * 140, 50 + Math.sin(index * 0.449) * 140],
        [80 + Math.cos(index * 0.449 + 0.18) * 140, 50 + Math.sin(index * 0.449 + 0.18) * 140],
      ]),
      p.pop,
      { opacity: 0.16 },
    ),
  );
  const gold = "#f0c24a";
  const cup =
    path("M62 22H98Q98 54 84 60V72H92V78H68V72H76V60Q62 54 62 22Z", gold) +
    stroke("M62 28H52Q52 46 67 50M98 28H108Q108 46 93 50", gold, 4) +
    path("M67 26h6q0 20 5 28q-10-6-11-28Z", "#ffffff", { opacity: 0.5 });
  return (
    back.defs +
    rect(0, 0, width, height, back.paint) +
    rays +
    rect(54, 78, 52, 22, p.night) +
    rect(54, 78, 52, 3, gold) +
    cup +
    many(26, () =>
      rect(chance.between(0, 160), chance.between(0, 112), 2.6, 4, chance.pick([p.pop, p.light, p.mid]), {
        opacity: 0.9,
      }),
    )
  );
};

const film: View = (chance, id) => {
  const p = chance.pick(palettes);
  const back = fall(id, [p.mid, p.deep]);
  const camera =
    rect(58, 46, 46, 30, "#1f2028", { rx: 4 }) +
    path("M104 54l18-8v30l-18-8Z", "#1f2028") +
    circle(70, 36, 12, "#2d2f3a") +
    circle(92, 36, 12, "#2d2f3a") +
    circle(70, 36, 4, p.pop) +
    circle(92, 36, 4, p.pop) +
    rect(64, 52, 12, 8, p.light) +
    stroke("M80 76L62 112M82 76L100 112M81 76V112", "#1f2028", 3);
  return (
    back.defs +
    rect(0, 0, width, height, back.paint) +
    circle(80, 56, 44, p.pop, { opacity: 0.5 }) +
    rect(0, 100, width, 12, p.night) +
    camera +
    person(30, 102, 44, p.night) +
    group(rect(-9, -6, 18, 12, "#ffffff") + path("M-10-7L8-13L10-8L-8-4Z", p.night), {
      transform: "translate(42 74)",
    })
  );
};

const views = { ring, wedding, stage, beach, city, table, trophy, film };

const named: Readonly<Record<keyof typeof views, RegExp>> = {
  ring: /ring(?!s?ide)|diamond|engage|jewel/iu,
  wedding: /wedding|marri|bride|altar/iu,
  trophy: /award|trophy|oskar|prize|winner/iu,
  film: /film|camera|set\b|shoot|movie|studio/iu,
  stage: /stage|theat|concert|audition|show/iu,
  beach: /beach|sea|vacation|island|header/iu,
  table: /dinner|date|restaurant|bar\b|wine/iu,
  city: /city|street|skyline|town/iu,
};

export function photo(name: string): string {
  const chance = new Chance(`photo ${name}`);
  const id = `photo-${Math.floor(chance.unit() * 1e9).toString(36)}`;
  const kind = kindIn(name, named) ?? chance.pick(["beach", "city", "stage", "film", "table"] as const);
  return picture(width, height, views[kind](chance, id));
}
