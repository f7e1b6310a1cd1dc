// Two-tone icons on a disc. A name that contains a kind gets that kind.

import { badge } from "./badge";
import { kindIn } from "./names";
import { palettes } from "./palettes";
import { Chance } from "./random";
import { circle, many, n, path, picture, polygon, rect, stroke } from "./svg";

// In a square of 48 around 0, 0.
type Sign = (ink: string, accent: string) => string;

const line = { "stroke-linecap": "round", "stroke-linejoin": "round" } as const;

const star: Sign = (ink) =>
  path(
    polygon(
      Array.from({ length: 10 }, (_, index): [number, number] => [
        Math.sin(index * 0.6283) * (index % 2 === 0 ? 20 : 9),
        -Math.cos(index * 0.6283) * (index % 2 === 0 ? 20 : 9),
      ]),
    ),
    ink,
  );
const camera: Sign = (ink, accent) =>
  rect(-18, -8, 25, 20, ink, { rx: 4 }) +
  path("M9-1L19-7V11L9 5Z", accent) +
  circle(-11, -14, 5, ink) +
  circle(1, -14, 5, ink);
const ticket: Sign = (ink, accent) =>
  path("M-20-11H20V-4a4.500 4.500 0 0 0 0 9V12H-20V5a4.500 4.500 0 0 0 0-9Z", ink) +
  stroke("M6-9V10", accent, 2, { "stroke-dasharray": "3 3" });
const mask: Sign = (ink, accent) =>
  path("M-16-15Q0-9 16-15Q18 8 0 18Q-18 8-16-15Z", ink) +
  path("M-10-5q4-4 8 0q-4 3-8 0ZM2-5q4-4 8 0q-4 3-8 0ZM-8 4Q0 13 8 4Q0 8-8 4Z", accent);
const microphone: Sign = (ink, accent) =>
  rect(-6, -20, 12, 24, ink, { rx: 6 }) + stroke("M-12-2a12 12 0 0 0 24 0M0 10V18M-7 18H7", accent, 3, line);
const heart: Sign = (ink) =>
  path("M0 17C-30-3-18-19-9-19C-3-19 0-13 0-11C0-13 3-19 9-19C18-19 30-3 0 17Z", ink);
const coin: Sign = (ink, accent) =>
  circle(0, 0, 18, ink) +
  circle(0, 0, 13, "none", { stroke: accent, "stroke-width": 2 }) +
  stroke("M5-5Q0-10-4-6T1 0T3 6T-6 5M0-11V-8M0 8V11", accent, 2.4, line);
const bolt: Sign = (ink) => path("M4-21L-13 4H-1L-4 21L13-5H1Z", ink, { "stroke-linejoin": "round" });
const crown: Sign = (ink, accent) =>
  path("M-18 12L-20-10L-9-1L0-16L9-1L20-10L18 12Z", ink) + rect(-18, 14, 36, 4, accent, { rx: 1 });
const trophy: Sign = (ink, accent) =>
  path("M-11-18H11Q12 2 3 5V11H8V16H-8V11H-3V5Q-12 2-11-18Z", ink) +
  stroke("M-11-14H-18Q-18-3-9-1M11-14H18Q18-3 9-1", accent, 3);
const book: Sign = (ink, accent) =>
  path("M-19-13Q-8-17 0-11V15Q-8 9-19 13Z", ink) + path("M19-13Q8-17 0-11V15Q8 9 19 13Z", accent);
const dumbbell: Sign = (ink, accent) =>
  rect(-9, -3, 18, 6, accent) +
  rect(-15, -11, 6, 22, ink, { rx: 2 }) +
  rect(9, -11, 6, 22, ink, { rx: 2 }) +
  rect(-20, -7, 4, 14, ink, { rx: 2 }) +
  rect(16, -7, 4, 14, ink, { rx: 2 });
const clapper: Sign = (ink, accent) =>
  rect(-18, -4, 36, 20, ink, { rx: 2 }) +
  path("M-19-7L15-17L17-11L-17-2Z", accent) +
  many(3, (index) => path(`M${n(-12 + index * 11)}-9l5-1.500l2 6l-5 1.500Z`, ink));
const envelope: Sign = (ink, accent) =>
  rect(-19, -13, 38, 26, ink, { rx: 3 }) + stroke("M-17-10L0 4L17-10", accent, 2.6, line);
const house: Sign = (ink, accent) => path("M-20 0L0-18L20 0H14V16H-14V0Z", ink) + rect(-4, 3, 8, 13, accent);
const car: Sign = (ink, accent) =>
  path("M-20 8V0Q-20-4-14-4L-9-12H7L14-4Q20-4 20 2V8Z", ink) +
  circle(-10, 9, 5, accent) +
  circle(10, 9, 5, accent);
const chart: Sign = (ink, accent) =>
  rect(-18, 2, 8, 14, ink, { rx: 1 }) +
  rect(-5, -6, 8, 22, ink, { rx: 1 }) +
  rect(8, -14, 8, 30, accent, { rx: 1 });
const people: Sign = (ink, accent) =>
  circle(7, -8, 6, accent) +
  path("M-4 14Q-4 0 7 0T18 14Z", accent) +
  circle(-7, -6, 7, ink) +
  path("M-20 16Q-20 2-7 2T6 16Z", ink);
const note: Sign = (ink, accent) =>
  stroke("M-8 12V-14L13-18V8", ink, 4, line) + circle(-12, 12, 5.5, accent) + circle(9, 8, 5.5, accent);
const gift: Sign = (ink, accent) =>
  rect(-16, -4, 32, 20, ink) +
  rect(-19, -10, 38, 8, ink) +
  rect(-3, -10, 6, 26, accent) +
  stroke("M0-10Q-12-22-10-12T0-10Q12-22 10-12T0-10", accent, 3);

const signs = {
  star,
  camera,
  ticket,
  mask,
  microphone,
  heart,
  coin,
  bolt,
  crown,
  trophy,
  book,
  dumbbell,
  clapper,
  envelope,
  house,
  car,
  chart,
  people,
  note,
  gift,
};
type Kind = keyof typeof signs;

const named: Partial<Record<Kind, RegExp>> = {
  camera: /camera|headshot|photo/iu,
  ticket: /ticket|premiere|box.?office/iu,
  mask: /theat|drama|acting|mask|improv|comedy/iu,
  microphone: /mic|voice|sing|vocal|podcast/iu,
  heart: /heart|love|dating|romance|health/iu,
  coin: /coin|cash|money|bank|invest|vault|pay/iu,
  bolt: /bolt|energy|power|stunt|action/iu,
  crown: /crown|fame|royal|top/iu,
  trophy: /trophy|award|prize|win/iu,
  book: /book|script|read|class|school|writ/iu,
  dumbbell: /dumbbell|gym|fit|sport|train/iu,
  clapper: /clap|film|movie|direct|scene/iu,
  envelope: /mail|envelope|letter|inbox/iu,
  house: /house|home|property|estate/iu,
  car: /\bcar\b|vehicle|transport/iu,
  chart: /chart|stock|market|rank|growth/iu,
  people: /people|fan|friend|staff|team|crew|agent/iu,
  note: /music|note|song|dance/iu,
  gift: /gift|present|bonus/iu,
  star: /star|rating/iu,
};

export function icon(name: string): string {
  return badge(name) ?? sign(name);
}

function sign(name: string): string {
  const chance = new Chance(`icon ${name}`);
  const p = chance.pick(palettes);
  const onDark = chance.likely(0.6);
  const kind =
    kindIn(name, named as Readonly<Record<Kind, RegExp>>) ?? chance.pick(Object.keys(signs) as Kind[]);
  const drawn = signs[kind](onDark ? p.light : p.deep, onDark ? p.pop : p.mid);
  return picture(
    64,
    64,
    rect(0, 0, 64, 64, onDark ? p.deep : p.light) + `<g transform="translate(32 32) scale(.86)">${drawn}</g>`,
  );
}
