// Vehicles, from a bicycle to a jet, with a background. A name that contains a kind gets that kind.

import { kindIn } from "./names";
import { Chance } from "./random";
import { ground, groundLine, height, hills, lightOf, sky, width } from "./scenery";
import type { Light } from "./scenery";
import { circle, ellipse, many, mix, n, path, picture, rect, stroke } from "./svg";

type Maker = (paint: string, glass: string) => string;
type Place = "road" | "water" | "air";

const road = groundLine + 6; // bottom of the wheels
const tyre = "#22232a";

const wheel = (x: number, r: number): string =>
  circle(x, road - r, r, tyre) +
  circle(x, road - r, r * 0.58, "#c9ced6") +
  many(5, (index) =>
    stroke(
      `M${n(x)} ${n(road - r)}l${n(Math.cos(index * 1.257) * r * 0.5)} ${n(Math.sin(index * 1.257) * r * 0.5)}`,
      "#7d828c",
      1,
    ),
  ) +
  circle(x, road - r, r * 0.16, "#5b6069");

const lamps = (front: number, back: number, y: number): string =>
  rect(front, y, 5, 4, "#fff3c2", { rx: 1.6 }) + rect(back, y, 4, 4, "#e0402f", { rx: 1.4 });

const sedan: Maker = (paint, glass) =>
  path(
    "M22 80Q22 70 34 68L50 66L64 52Q67 49 72 49H98Q104 49 108 53L120 66L134 69Q140 71 140 80V84Q140 87 136 87H26Q22 87 22 84Z",
    paint,
  ) +
  path("M57 66L68 54Q70 52 73 52H84V66ZM88 52H98Q102 52 105 55L114 66H88Z", glass) +
  rect(22, 78, 118, 2.4, mix(paint, "#000000", 0.22)) +
  rect(80, 70, 8, 1.6, mix(paint, "#ffffff", 0.5)) +
  lamps(134, 22, 72) +
  wheel(48, 11) +
  wheel(114, 11);

const sports: Maker = (paint, glass) =>
  path(
    "M14 82Q15 74 28 72L58 69L76 59Q82 56 92 57L108 60Q114 62 122 69L140 72Q147 74 147 82V86Q147 88 143 88H19Q14 88 14 84Z",
    paint,
  ) +
  path("M66 69L79 61Q84 59 92 60L96 60.6V69ZM99 61L107 62.6L114 69H99Z", glass) +
  path("M14 70h14l4 3-18 1Z", mix(paint, "#000000", 0.35)) +
  path("M60 78q30-6 66-2l-2 3q-30-3-62 2Z", mix(paint, "#ffffff", 0.35)) +
  lamps(140, 15, 75) +
  wheel(42, 10.6) +
  wheel(120, 10.6);

const suv: Maker = (paint, glass) =>
  path(
    "M22 82V62Q22 58 27 57L38 45Q41 42 46 42H104Q110 42 114 47L124 60L137 63Q141 64 141 70V84Q141 87 138 87H26Q22 87 22 82Z",
    paint,
  ) +
  path("M36 58L44 47.6Q45 46 48 46H66V58ZM70 46H92V58H70ZM96 46H104Q108 46 110 49L117 58H96Z", glass) +
  rect(44, 39, 58, 2, "#3a3d44") +
  rect(22, 78, 119, 4, "#3a3d44") +
  lamps(136, 22, 66) +
  wheel(47, 12) +
  wheel(116, 12);

const pickup: Maker = (paint, glass) =>
  path(
    "M18 66H72V50Q72 46 76 46H98Q103 46 106 50L116 64L136 67Q141 68 141 74V84Q141 87 137 87H22Q18 87 18 83Z",
    paint,
  ) +
  path("M76 50H88V64H76ZM91 50H98Q101 50 103 53L110 64H91Z", glass) +
  rect(18, 64, 54, 4, mix(paint, "#000000", 0.3)) +
  rect(18, 79, 123, 3, "#3a3d44") +
  lamps(136, 18, 70) +
  wheel(44, 12) +
  wheel(115, 12);

const van: Maker = (paint, glass) =>
  path(
    "M20 84V44Q20 38 26 38H106Q112 38 117 44L132 62Q140 64 140 72V84Q140 87 136 87H24Q20 87 20 84Z",
    paint,
  ) +
  path("M106 43Q109 43 112 46L124 62H100V43ZM30 46H50V60H30ZM54 46H74V60H54Z", glass) +
  rect(20, 66, 80, 3, mix(paint, "#ffffff", 0.55)) +
  rect(78, 44, 18, 38, "none", { stroke: mix(paint, "#000000", 0.3), "stroke-width": 1 }) +
  lamps(134, 20, 70) +
  wheel(46, 11) +
  wheel(116, 11);

const limousine: Maker = (paint, glass) =>
  path(
    "M8 80Q8 71 20 69L32 67L42 55Q45 52 50 52H116Q121 52 124 55L134 67L146 69Q152 71 152 80V84Q152 87 148 87H12Q8 87 8 84Z",
    paint,
  ) +
  path(
    "M38 66L46 57Q47 55.5 50 55.5H62V66ZM65 55.5H81V66H65ZM84 55.5H100V66H84ZM103 55.5H115Q118 55.5 120 58L127 66H103Z",
    glass,
  ) +
  rect(8, 76, 144, 1.6, "#e9dfc4") +
  lamps(146, 8, 71) +
  wheel(34, 10.4) +
  wheel(128, 10.4);

const motorbike: Maker = (paint) =>
  wheel(46, 15) +
  wheel(116, 15) +
  stroke("M46 79L66 58L104 60L116 79M104 60L98 46h-9", "#3a3d44", 4, {
    "stroke-linejoin": "round",
    "stroke-linecap": "round",
  }) +
  path("M62 60Q70 48 88 54L106 58Q102 70 90 72H74Z", paint) +
  path("M44 58Q54 52 68 57L64 64Q52 64 44 58Z", tyre) +
  rect(72, 70, 20, 12, "#6b7078", { rx: 4 }) +
  stroke("M74 80L40 85", "#b9bec6", 4, { "stroke-linecap": "round" }) +
  circle(107, 54, 4.4, "#fff3c2");

const scooter: Maker = (paint) =>
  wheel(52, 10) +
  wheel(110, 10) +
  path("M40 66Q44 56 62 57H74L80 76H94L102 46h7L106 84H52Q38 84 40 66Z", paint) +
  path("M42 56H74q3-5-3-6H47q-6 1-5 6Z", tyre) +
  stroke("M104 48L96 40M104 44l9-3", "#3a3d44", 3, { "stroke-linecap": "round" }) +
  circle(107, 54, 4, "#fff3c2");

const bicycle: Maker = (paint) =>
  many(
    2,
    (index) =>
      circle(48 + index * 62, 76, 17, "none", { stroke: tyre, "stroke-width": 3 }) +
      many(8, (spoke) =>
        stroke(
          `M${48 + index * 62} 76l${n(Math.cos(spoke * 0.785) * 16)} ${n(Math.sin(spoke * 0.785) * 16)}`,
          "#aab0b8",
          0.5,
        ),
      ),
  ) +
  stroke("M48 76L66 48H100L78 76ZM66 48L78 76H48M100 48L110 76M100 48L97 38H108", paint, 3.4, {
    "stroke-linejoin": "round",
    "stroke-linecap": "round",
  }) +
  path("M58 46h16q2-5-4-5H60q-4 1-2 5Z", tyre) +
  circle(78, 76, 5, "#5b6069");

const yacht: Maker = (paint, glass) =>
  path("M14 72H150Q140 94 126 96H34Q22 94 14 72Z", "#fbfaf6") +
  path("M20 82H145Q136 95 126 96H34Q25 94 20 82Z", paint) +
  path("M40 72L46 58H112L130 72Z", "#f1efe9") +
  path("M54 58L58 46H98L108 58Z", "#fbfaf6") +
  path("M50 66L53 61H106L112 66ZM61 56L63 50H94L99 56Z", glass) +
  stroke("M76 46V30M68 36h16", "#8d929a", 1.8);

const speedboat: Maker = (paint, glass) =>
  path("M18 76L84 74L150 66Q138 92 118 94H36Q22 92 18 76Z", "#fbfaf6") +
  path("M20 82L146 74Q136 92 118 94H36Q24 91 20 82Z", paint) +
  path("M76 74L92 60L100 72Z", glass, { stroke: "#e9edf0", "stroke-width": 1.6 }) +
  path("M44 75q2-8 12-8h12l-2 8Z", "#8a5a3c") +
  path("M4 96q10-12 22-14l2 12Z", "#ffffff", { opacity: 0.7 });

const jet: Maker = (paint, glass) =>
  path("M12 62L4 38H16L34 56Q74 50 118 52Q142 54 150 62Q142 72 118 72H40Q20 72 12 62Z", "#f6f5f1") +
  path("M20 66Q80 68 148 64Q140 72 118 72H40Q26 72 20 66Z", paint) +
  path("M72 66L48 92H60L98 68Z", mix("#f6f5f1", "#000000", 0.16)) +
  path("M4 38H16L28 50L12 60Z", paint) +
  many(7, (index) => rect(56 + index * 9.6, 57, 5, 5, glass, { rx: 2.2 })) +
  path("M130 55Q138 57 141 60H128Z", glass) +
  ellipse(44, 58, 12, 4.6, "#d9d7d0") +
  ellipse(55, 58, 2.4, 4.2, "#5b6069");

const helicopter: Maker = (paint, glass) =>
  path("M62 50Q82 42 108 48Q130 54 132 66Q130 78 110 80H78Q62 78 58 66L12 58V53L58 54Q58 52 62 50Z", paint) +
  path("M104 51Q124 55 128 67H104Z", glass) +
  path("M84 50H99V66H84Z", glass) +
  path("M8 44h8l2 16h-8Z", paint) +
  stroke("M92 46V36M34 36H148", "#3a3d44", 2.4, { "stroke-linecap": "round" }) +
  stroke("M70 88H126M80 80l-4 8M112 80l4 8", "#3a3d44", 2.4, { "stroke-linecap": "round" }) +
  circle(13, 52, 7, "none", { stroke: "#3a3d44", "stroke-width": 1.4 });

const bus: Maker = (paint, glass) =>
  rect(14, 40, 132, 46, paint, { rx: 6 }) +
  many(6, (index) => rect(20 + index * 18, 46, 15, 16, glass, { rx: 2 })) +
  rect(128, 46, 15, 26, glass, { rx: 2 }) +
  rect(14, 68, 112, 4, mix(paint, "#ffffff", 0.6)) +
  lamps(141, 14, 76) +
  wheel(40, 10) +
  wheel(118, 10);

const makers = {
  sedan,
  sports,
  suv,
  pickup,
  van,
  limousine,
  motorbike,
  scooter,
  bicycle,
  yacht,
  speedboat,
  jet,
  helicopter,
  bus,
};
type Kind = keyof typeof makers;

const places: Readonly<Record<Kind, Place>> = {
  sedan: "road",
  sports: "road",
  suv: "road",
  pickup: "road",
  van: "road",
  limousine: "road",
  motorbike: "road",
  scooter: "road",
  bicycle: "road",
  bus: "road",
  yacht: "water",
  speedboat: "water",
  jet: "air",
  helicopter: "air",
};

const named: Readonly<Record<Kind, RegExp>> = {
  helicopter: /copter|chopper/iu,
  jet: /jet(?!.?ski)|plane|aircraft/iu,
  yacht: /yacht|ship|sail/iu,
  speedboat: /boat|jet.?ski|cruiser/iu,
  motorbike: /motor/iu,
  bicycle: /bicycle|\bbike\b|cycle/iu,
  scooter: /scooter|moped/iu,
  limousine: /limo|stretch/iu,
  pickup: /pickup|truck/iu,
  van: /van\b|minivan|camper|rv\b/iu,
  bus: /\bbus|coach|trailer/iu,
  suv: /suv|off.?road|4x4/iu,
  sports: /sport|super|hyper|race|roadster|coupe/iu,
  sedan: /sedan|saloon|\bcar\b|hatch|compact/iu,
};

const paints = [
  "#c8332f",
  "#e0a22f",
  "#2f6fb8",
  "#2e8a6b",
  "#f0efe9",
  "#23252d",
  "#8c2f53",
  "#7d8794",
  "#e0703a",
  "#5a4a9a",
];

function surroundings(chance: Chance, place: Place, light: Light, id: string): string {
  if (place === "air") {
    const clouds = many(4, (index) =>
      ellipse(
        chance.between(0, 160),
        20 + index * 24,
        chance.between(16, 34),
        chance.between(4, 8),
        "#ffffff",
        { opacity: light.isDark ? 0.18 : 0.6 },
      ),
    );
    return sky(chance, light, id) + clouds;
  }
  if (place === "water") {
    const sea = light.isDark ? "#2a3d6b" : "#3f93b8";
    return (
      sky(chance, light, id) +
      path("M0 80Q40 72 84 79T160 76V112H0Z", light.land) +
      rect(0, 82, width, 30, sea)
    );
  }
  const tarmac = mix("#6b6a70", light.sky[0]!, 0.18);
  return (
    sky(chance, light, id) +
    hills(chance, light) +
    ground(light.grass) +
    rect(0, groundLine - 2, width, 18, tarmac) +
    many(5, (index) => rect(6 + index * 34, groundLine + 11, 18, 1.6, "#f3ead2"))
  );
}

function foreground(place: Place, light: Light): string {
  if (place !== "water") return "";
  const foam = light.isDark ? "#4f68a0" : "#7fc3dd";
  return (
    path("M0 94q10-5 20 0t20 0t20 0t20 0t20 0t20 0t20 0t20 0V112H0Z", light.isDark ? "#24355e" : "#3786ab") +
    stroke("M10 103q8-4 16 0M70 106q8-4 16 0M124 101q8-4 16 0", foam, 1.4)
  );
}

export function vehicle(name: string): string {
  const chance = new Chance(`vehicle ${name}`);
  const light = lightOf(chance);
  const id = `vehicle-${Math.floor(chance.unit() * 1e9).toString(36)}`;
  const kind = kindIn(name, named) ?? chance.pick(Object.keys(makers) as Kind[]);
  const place = places[kind];
  const glass = light.isDark ? "#3d4a6b" : "#bfdce8";
  const shadow = place === "road" ? ellipse(81, road, 64, 3.4, "#000000", { opacity: 0.28 }) : "";
  const art =
    surroundings(chance, place, light, id) +
    shadow +
    makers[kind](chance.pick(paints), glass) +
    foreground(place, light);
  return picture(width, height, art);
}
