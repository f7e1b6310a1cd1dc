// Poster layouts by format: scene, title, billed name, small print.

import { hands, lettering } from "../lettering";
import type { Box, Hand, Setting } from "../lettering";
import type { Palette } from "../palettes";
import type { Chance } from "../random";
import { circle, element, ellipse, group, many, mix, n, path, rect, stroke } from "../svg";
import type { Genre } from "./genres";
import { drawnProduct, productOf } from "./products";
import { at, fill, rays } from "./stage";
import type { Drawn } from "./stage";

export interface Job {
  readonly title: string; // empty for none
  readonly billed: string; // empty for nobody
  readonly season: number;
  readonly genre: Genre;
  readonly chance: Chance;
}

// The differences between posters of a genre, most visible first.
export interface Look {
  readonly scene: number;
  readonly palette: number;
  readonly layout: number;
  readonly hand: number;
  readonly mirrored: boolean;
}

export interface Sheet {
  readonly art: string;
  readonly look: Look;
}

// The relative luminance of a color, 0 to 1.
function brightness(colour: string): number {
  const part = (from: number): number => {
    const value = Number.parseInt(colour.slice(from, from + 2), 16) / 255;
    return value <= 0.04045 ? value / 12.92 : ((value + 0.055) / 1.055) ** 2.4;
  };
  return part(1) * 0.2126 + part(3) * 0.7152 + part(5) * 0.0722;
}

export function contrast(one: string, other: string): number {
  const [dark, bright] = [brightness(one), brightness(other)].sort((a, b) => a - b);
  return (bright! + 0.05) / (dark! + 0.05);
}

// A readable color on the background: the accent if readable, else the lightest or darkest.
export function inkOn(ground: string, p: Palette, striking: boolean): string {
  if (striking && contrast(p.pop, ground) >= 4.5) return p.pop;
  const best = contrast(p.light, ground) >= contrast(p.night, ground) ? p.light : p.night;
  if (contrast(best, ground) >= 4.5) return best;
  return contrast("#000000", ground) > contrast("#ffffff", ground) ? "#000000" : "#ffffff";
}

// A scene clipped to its box.
const cut = (box: Box, view: Box, content: string, mirrored = false): string =>
  element(
    "svg",
    {
      x: n(box.x), y: n(box.y), width: n(box.width), height: n(box.height),
      viewBox: `${n(view.x)} ${n(view.y)} ${n(view.width)} ${n(view.height)}`,
      preserveAspectRatio: "xMidYMid slice",
    },
    mirrored ? flipped(content) : content,
  );

const flipped = (content: string): string => group(content, { transform: "translate(200 0)scale(-1 1)" });

const letters = (text: string, box: Box, hand: Hand, ink: string, ground: string, setting: Setting = {}): string =>
  text === "" ? "" : lettering(text, box, hand, ink, ground, setting);

const small = hands.plain;

// A gradient from `from` to `to` under the text, so that it is readable over any scene.
const under = (colour: string, from: number, to: number): string =>
  element(
    "linearGradient",
    { id: "under", gradientUnits: "userSpaceOnUse", x1: 0, y1: from, x2: 0, y2: to },
    element("stop", { offset: 0, "stop-color": colour, "stop-opacity": 0 }) + element("stop", { offset: 1, "stop-color": colour, "stop-opacity": 0.94 }),
  ) + rect(0, Math.min(from, to < from ? 0 : from), 200, to < from ? from : 300 - from, "url(#under)");

const billing = (name: string, y: number, ink: string, ground: string): string =>
  letters(name, { x: 24, y, width: 152, height: 10 }, small, ink, ground);

// Lines of illegible small print.
function smallPrint(chance: Chance, y: number, ink: string): string {
  let ways = "";
  for (let line = 0; line < 2; ++line) {
    for (let x = 44 + line * 14; x < 156 - line * 14; ) {
      const width = Math.min(chance.between(3, 11), 156 - line * 14 - x);
      ways += `M${n(x)} ${n(y + line * 5.5)}h${n(width)}v2.4h${n(-width)}Z`;
      x += width + 1.8;
    }
  }
  return path(ways, ink, { opacity: 0.6 });
}

interface Choice {
  readonly p: Palette;
  readonly hand: Hand;
  readonly look: Look;
  drawn(y: number, palette?: Palette): Drawn;
}

function choose({ genre, chance }: Job, layouts: number): Choice {
  const look: Look = {
    scene: chance.whole(0, genre.scenes.length - 1),
    palette: chance.whole(0, genre.palettes.length - 1),
    layout: chance.whole(0, layouts - 1),
    hand: chance.whole(0, genre.hands.length - 1),
    mirrored: chance.likely(0.5),
  };
  const p = genre.palettes[look.palette]!;
  const scene = genre.scenes[look.scene]!;
  return { p, look, hand: genre.hands[look.hand]!, drawn: (y, palette = p) => scene({ p: palette, chance, y }) };
}


export function feature(job: Job): Sheet {
  const { p, hand, look, drawn } = choose(job, 4);
  const { chance, title, billed } = job;
  const striking = chance.likely(0.5);
  const fromLeft = chance.likely(0.3);
  const turned = (art: string): string => (look.mirrored ? flipped(art) : art);
  if (look.layout === 0) {
    const { art, sky, ground } = drawn(106);
    const ink = inkOn(ground, p, striking);
    const words =
      billing(billed, 12, inkOn(sky, p, false), sky) +
      letters(title, { x: 14, y: 208, width: 172, height: 70 }, hand, ink, ground, { fromLeft });
    return { look, art: turned(art) + under(ground, 184, 222) + words + smallPrint(chance, 284, inkOn(ground, p, false)) };
  }
  if (look.layout === 1) {
    const { art, sky, ground } = drawn(190);
    const ink = inkOn(sky, p, striking);
    const words =
      billing(billed, 12, inkOn(sky, p, false), sky) +
      letters(title, { x: 14, y: billed === "" ? 16 : 30, width: 172, height: billed === "" ? 74 : 64 }, hand, ink, sky, { fromLeft, onTop: billed !== "" });
    return { look, art: turned(art) + under(sky, 100, 72) + words + smallPrint(chance, 286, inkOn(ground, p, false)) };
  }
  if (look.layout === 2) {
    // A single-color panel below the scene.
    const panel = chance.pick([p.pop, p.light, p.night]);
    const { art, sky } = drawn(108);
    const view = { x: 0, y: 0, width: 200, height: 208 };
    const words =
      billing(billed, 12, inkOn(sky, p, false), sky) +
      letters(title, { x: 14, y: 216, width: 172, height: 62 }, hand, inkOn(panel, p, false), panel, { fromLeft });
    return { look, art: fill(panel) + cut(view, view, art, look.mirrored) + words + smallPrint(chance, 285, inkOn(panel, p, false)) };
  }
  // A paper frame.
  const paper = chance.likely(0.6) ? p.light : p.night;
  const ink = inkOn(paper, p, striking);
  const { art } = drawn(110);
  const words =
    billing(billed, 284, ink, paper) +
    letters(title, { x: 14, y: 219, width: 172, height: billed === "" ? 66 : 58 }, hand, ink, paper, { fromLeft });
  return { look, art: fill(paper) + cut({ x: 11, y: 11, width: 178, height: 200 }, { x: 0, y: 0, width: 200, height: 224 }, art, look.mirrored) + words };
}

// A still above the network's bar.
export function series(job: Job): Sheet {
  const { p, hand, look, drawn } = choose(job, 2);
  const { chance, title, billed, season } = job;
  const { art, sky, ground } = drawn(look.layout === 0 ? 104 : 182);
  const bar = [p.pop, p.mid][job.season % 2]!;
  const barInk = inkOn(bar, p, false);
  const behind = look.layout === 0 ? ground : sky;
  const box = look.layout === 0 ? { x: 14, y: 200, width: 150, height: 62 } : { x: 14, y: billed === "" ? 18 : 32, width: 150, height: 62 };
  const strip =
    rect(0, 270, 200, 30, bar) +
    path("M14 278L26 285L14 292Z", barInk) +
    letters(season > 0 ? `Season ${season}` : "The series", { x: 34, y: 279, width: 100, height: 12 }, small, barInk, bar, { fromLeft: true }) +
    many(3, (index) => circle(160 + index * 11, 285, 3.2, barInk, { opacity: index === 0 ? 1 : 0.45 }));
  const words =
    letters(billed, { x: 14, y: 12, width: 150, height: 10 }, small, inkOn(sky, p, false), sky, { fromLeft: true }) +
    letters(title, box, hand, inkOn(behind, p, chance.likely(0.5)), behind, { fromLeft: true, atFoot: look.layout === 0, onTop: look.layout === 1 });
  return { look, art: (look.mirrored ? flipped(art) : art) + (look.layout === 0 ? under(ground, 172, 212) : under(sky, 100, 72)) + rect(0, 0, 6, 270, bar) + strip + words };
}

// A lit product between its brand and its slogan.
export function commercial(job: Job): Sheet {
  const { chance, title, billed } = job;
  const { p, look } = choose(job, 4);
  const product = productOf(title, chance);
  // "Brand: Slogan"; a name without a colon is split in half.
  const words = title.split(" ");
  const half = Math.ceil(words.length / 2);
  const [brand = "", slogan = ""] = title.includes(":") ? title.split(/:\s*/u) : [words.slice(0, half).join(" "), words.slice(half).join(" ")];
  const back = [p.pop, p.light, p.mid, p.deep][look.layout]!;
  const glow = mix(back, "#ffffff", brightness(back) > 0.5 ? 0.45 : 0.2);
  const foot = 206;
  // The product avoids the background color.
  const shown = { ...p, mid: back === p.mid || look.layout === 0 ? p.deep : p.mid, light: back === p.light ? mix(p.pop, "#ffffff", 0.35) : p.light };
  const stage =
    fill(back) +
    (look.hand === 0 ? rays(100, 132, 18, glow, 0.5) : look.hand === 1 ? circle(100, 132, 84, glow) : path(`M0 ${60}L200 ${20}V${foot}H0Z`, glow)) +
    path(`M0 ${foot - 14}H200V300H0Z`, mix(back, p.night, 0.18)) +
    ellipse(100, foot - 4, 76, 15, mix(back, p.night, 0.32)) +
    at(100, foot - 72, drawnProduct(product, shown), 1.12);
  const ink = inkOn(back, p, false);
  const label = p.night;
  const lines =
    letters(brand, { x: 14, y: 14, width: 172, height: 42 }, chance.pick([hands.heavy, hands.round, hands.racing]), ink, back) +
    rect(0, 242, 200, 58, label) +
    letters(slogan, { x: 18, y: 250, width: 164, height: billed === "" ? 40 : 26 }, hands.italic, inkOn(label, p, true), label) +
    billing(billed, 284, p.light, label);
  return { look: { ...look, scene: product }, art: stage + lines };
}

const laurel = (x: number, y: number, side: number, ink: string): string =>
  group(stroke("M0 20Q-16 6-12-18", ink, 1.4) + many(6, (index) => ellipse(-6 - Math.sin(index * 0.7) * 7, 15 - index * 6.4, 5.2, 2.2, ink, { transform: `rotate(${n(-60 + index * 14)} ${n(-6 - Math.sin(index * 0.7) * 7)} ${n(15 - index * 6.4)})` })), {
    transform: `translate(${x} ${y})scale(${side} 1)`,
  });

// A picture taped to paper, with handwriting.
export function student(job: Job): Sheet {
  const { p, look, drawn } = choose(job, 3);
  const { chance, title, billed } = job;
  const paper = ["#efe6d2", "#d9c4a0", "#f2d94e", "#f3a8b4", "#a9d6e0", "#f7f5ee"][chance.whole(0, 5)]!;
  const ink = "#1d1a1c";
  const toner = { night: ink, deep: mix(ink, paper, 0.22), mid: mix(ink, paper, 0.55), pop: chance.likely(0.5) ? p.pop : mix(ink, paper, 0.8), light: mix(paper, "#ffffff", 0.5) };
  const { art } = drawn(110, toner);
  const turn = chance.between(2, 4.5) * (look.mirrored ? -1 : 1);
  const ruled = look.layout === 0 ? stroke(many(13, (index) => `M0 ${16 + index * 23}H200`), "#6f8fc0", 0.8, { opacity: 0.6 }) + stroke("M26 0V300", "#d9606a", 1) : look.layout === 1 ? many(6, (index) => circle(9, 24 + index * 50, 5, mix(paper, ink, 0.5))) : "";
  const top = look.layout === 2 ? 84 : 20;
  const tape = (x: number, y: number, angle: number): string => at(x, y, rect(-22, -8, 44, 16, "#f5e9b0", { opacity: 0.85 }), 1, angle);
  const photo = group(
    rect(17, top - 3, 166, 178, "#fdfbf5") + cut({ x: 23, y: top + 3, width: 154, height: 166 }, { x: 0, y: 4, width: 200, height: 214 }, art, look.mirrored),
    { transform: `rotate(${n(turn)} 100 ${top + 88})` },
  );
  const words =
    letters(title, { x: 18, y: look.layout === 2 ? 10 : 212, width: 164, height: 62 }, hands.marker, ink, paper) +
    letters(billed === "" ? "A student film" : `With ${billed}`, { x: 30, y: 281, width: 140, height: 11 }, hands.marker, chance.likely(0.5) ? "#b3261e" : "#23408e", paper);
  return { look, art: fill(paper) + ruled + photo + tape(40, top + 2, -38 + turn) + tape(162, top, 34 + turn) + words };
}

// A small picture with wide margins.
export function shortFilm(job: Job): Sheet {
  const { p, look, drawn } = choose(job, 3);
  const { chance, title, billed } = job;
  const paper = chance.pick([mix(p.light, "#ffffff", 0.4), p.light, p.night, p.deep]);
  const ink = inkOn(paper, p, chance.likely(0.4));
  const { art } = drawn(112);
  const window = look.layout === 0 ? circle(100, 106, 72, "#fff") : look.layout === 1 ? rect(34, 36, 132, 150, "#fff") : path("M36 186V98a64 64 0 0 1 128 0V186Z", "#fff");
  const view = cut({ x: 28, y: 30, width: 144, height: 160 }, { x: 0, y: 2, width: 200, height: 222 }, art, look.mirrored);
  const words =
    letters(title, { x: 24, y: 202, width: 152, height: 50 }, chance.pick([hands.slim, hands.book, hands.wide]), ink, paper) +
    letters("Short film", { x: 70, y: 271, width: 60, height: 9 }, small, ink, paper) +
    letters(billed, { x: 40, y: 12, width: 120, height: 9 }, small, ink, paper);
  return {
    look,
    art: fill(paper) + element("clipPath", { id: "window" }, window) + group(view, { "clip-path": "url(#window)" }) + words + laurel(58, 274, 1, ink) + laurel(142, 274, -1, ink),
  };
}
