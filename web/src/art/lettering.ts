// A stroke font: each letter is a path of the pen, so that one alphabet gives thin, heavy, round and inline
// letters that look the same on every system.

import { Chance } from "./random";
import { element, group, n } from "./svg";
import type { Attributes } from "./svg";

// Letters are 10 high; each entry is the letter's width and its path.
const letters: Readonly<Record<string, readonly [width: number, way: string]>> = {
  A: [6, "M0 10L3 0L6 10M1.1 6.7H4.9"],
  B: [5.4, "M0 0V10H3C6.2 10 6.2 4.8 3 4.8H0M0 0H2.8C5.6 0 5.6 4.8 2.8 4.8"],
  C: [6, "M6 2C4.6-.8 0-.8 0 5S4.6 10.8 6 8"],
  D: [5.9, "M0 0V10H2.4C7.1 10 7.1 0 2.4 0Z"],
  E: [4.7, "M4.7 0H0V10H4.7M0 4.8H4"],
  F: [4.5, "M4.5 0H0V10M0 4.8H3.8"],
  G: [6.1, "M6 2C4.6-.8 0-.8 0 5S5 11 6.1 8V5.4H3.5"],
  H: [5.6, "M0 0V10M5.6 0V10M0 4.8H5.6"],
  I: [0, "M0 0V10"],
  J: [3.8, "M3.8 0V7C3.8 10.8.4 10.9 0 8"],
  K: [5.4, "M0 0V10M5.2 0L0 5.9M1.9 4.1L5.4 10"],
  L: [4.3, "M0 0V10H4.3"],
  M: [7, "M0 10V0L3.5 7L7 0V10"],
  N: [5.8, "M0 10V0L5.8 10V0"],
  O: [6.6, "M3.3 0C7.7 0 7.7 10 3.3 10S-1.1 0 3.3 0Z"],
  P: [5.1, "M0 10V0H2.7C5.9 0 5.9 5.6 2.7 5.6H0"],
  Q: [6.6, "M3.3 0C7.7 0 7.7 10 3.3 10S-1.1 0 3.3 0ZM4 7L6.6 10.4"],
  R: [5.3, "M0 10V0H2.7C5.9 0 5.9 5.4 2.7 5.4H0M2.7 5.4L5.3 10"],
  S: [5.2, "M5 1.9C4.2-.7.3-.7.3 2.5C.3 5.6 5.2 4.4 5.2 7.4C5.2 10.8.8 10.7 0 8"],
  T: [5.6, "M0 0H5.6M2.8 0V10"],
  U: [5.6, "M0 0V6.5C0 11.2 5.6 11.2 5.6 6.5V0"],
  V: [6, "M0 0L3 10L6 0"],
  W: [8.4, "M0 0L2.1 10L4.2 1.6L6.3 10L8.4 0"],
  X: [5.8, "M0 0L5.8 10M5.8 0L0 10"],
  Y: [5.8, "M0 0L2.9 5.2L5.8 0M2.9 5.2V10"],
  Z: [5.4, "M0 0H5.4L0 10H5.4"],
  0: [5.4, "M2.7 0C6.3 0 6.3 10 2.7 10S-.9 0 2.7 0Z"],
  1: [2, "M0 2L2 0V10"],
  2: [5.1, "M.2 2.5C.6-.8 5-.8 5 2.6C5 5.4 0 7.4 0 10H5.1"],
  3: [5, "M.3 0H4.9L2.3 4C6 4 6 10 2.3 10C1 10 .3 9.2 0 8.3"],
  4: [5.4, "M4 10V0L0 7H5.4"],
  5: [5, "M4.7 0H.8L.4 4.5C5.4 2.8 6.6 10 2.2 10C1 10 .3 9.2 0 8.3"],
  6: [5, "M4.2 0C.2 2.8-1.4 10 2.5 10C6.2 10 6 4.2 2.7 4.2C1.1 4.2.2 5.4.1 6.8"],
  7: [5, "M0 0H5L1.6 10"],
  8: [5.2, "M2.6 4.7C-.6 4.7-.3 0 2.6 0S5.8 4.7 2.6 4.7C-1 4.7-1 10 2.6 10S6.2 4.7 2.6 4.7Z"],
  9: [5, "M.8 10C4.8 7.2 6.4 0 2.5 0C-1.2 0-1 5.8 2.3 5.8C3.9 5.8 4.8 4.6 4.9 3.2"],
  "&": [5.8, "M5.8 10L1.3 3C.1.9 3.8-1.1 4 1.6C4.1 3.8 0 4.4 0 7.4C0 10.9 4.8 10.8 5.5 5.8"],
  "'": [0, "M0 0V2.4"],
  "-": [3, "M0 5.2H3"],
  ".": [0, "M0 9.9V10"],
  ",": [0.6, "M.6 9.7L0 11.4"],
  ":": [0, "M0 3.4V3.5M0 9.4V9.5"],
  "!": [0, "M0 0V6.8M0 9.9V10"],
  "?": [4.6, "M.1 2.4C.5-.8 4.6-.8 4.6 2.3C4.6 4.6 2.3 4.4 2.3 7M2.3 9.9V10"],
};

const blank = 3.4;

export interface Hand {
  readonly pen: number; // stroke width, relative to a height of 10
  readonly gap: number; // between letters
  readonly narrow: number; // horizontal scale, 1 for normal
  readonly round: boolean; // ends and corners
  readonly inline: boolean; // a thin line of the background color in the middle of strokes
  readonly slant: number; // degrees
  readonly contrast: number; // stem width to hairline width, 1 for uniform strokes
  readonly serif: boolean; // serifs at the ends of stems
  readonly wild: number; // random displacement of points, relative to a height of 10
  readonly dance: number; // random rotation of letters, degrees
}

const hand = (pen: number, gap: number, narrow: number, more: Partial<Hand> = {}): Hand => ({
  pen,
  gap,
  narrow,
  round: false,
  inline: false,
  slant: 0,
  contrast: 1,
  serif: false,
  wild: 0,
  dance: 0,
  ...more,
});

export const hands = {
  slim: hand(0.8, 4, 0.9),
  plain: hand(1.5, 3, 0.9),
  heavy: hand(2.5, 3.6, 0.95),
  tall: hand(1.5, 2.7, 0.56),
  round: hand(2.1, 3.6, 0.95, { round: true }),
  inline: hand(2.7, 3.9, 1, { inline: true }),
  racing: hand(2.2, 3.4, 0.95, { slant: -12 }),
  wide: hand(1.1, 6, 1.15),
  roman: hand(0.75, 4.6, 0.92, { serif: true, contrast: 2.3 }),
  book: hand(0.6, 3.6, 0.74, { serif: true, contrast: 2 }),
  slab: hand(1.5, 4.6, 0.72, { serif: true, contrast: 1.5 }),
  italic: hand(0.62, 3.8, 0.86, { serif: true, contrast: 2.1, slant: -14 }),
  merry: hand(2.4, 3.9, 0.92, { round: true, dance: 5 }),
  claw: hand(1.5, 3, 0.62, { wild: 0.55 }),
  marker: hand(1.3, 3.2, 0.86, { round: true, wild: 0.35, dance: 3 }),
  poster: hand(2, 3.1, 0.66),
} as const satisfies Record<string, Hand>;

// The text in letters of the alphabet; empty when it has others.
export function drawable(text: string): string {
  const plain = text
    .normalize("NFD")
    .replace(/\p{M}/gu, "")
    .replace(/[\u2018\u2019]/gu, "'")
    .replace(/[\u2013\u2014]/gu, "-")
    .toUpperCase();
  return [...plain].every((letter) => letter === " " || letter in letters) ? plain : "";
}

function widthOf(text: string, { gap, narrow }: Hand): number {
  const all = [...text].reduce((sum, letter) => sum + (letters[letter]?.[0] ?? blank) * narrow + gap, 0);
  return Math.max(all - gap, 0);
}

const step = /([MLHVCSZ])([^MLHVCSZ]*)/gu; // a path command with its numbers

const figuresOf = (command: string): number[] =>
  (command.slice(1).match(/-?(?:\d+\.?\d*|\.\d+)/gu) ?? []).map(Number);
const isAcross = (letter: string, index: number): boolean =>
  letter === "H" || (letter !== "V" && index % 2 === 0);

// Scales a path command horizontally and moves it to the right; the stroke width is unchanged. `slip` returns
// the displacement of each number.
function placed(command: string, narrow: number, right: number, slip: () => number): string {
  const letter = command.charAt(0);
  return (
    letter +
    figuresOf(command)
      .map((figure, index) => n((isAcross(letter, index) ? figure * narrow + right : figure) + slip()))
      .join(" ")
  );
}

const halfSerif = 1.15; // relative to a height of 10

// Serifs at the ends of straight strokes: horizontal on stems, vertical on bars.
function serifs(way: string, narrow: number, right: number, contrast: number): string {
  let art = "";
  for (const stroke of way.split(/(?=M)/u)) {
    const commands = stroke.match(step) ?? [];
    if (/[CSZ]/u.test(commands[1]?.charAt(0) ?? "Z")) continue;
    const corners: [number, number][] = [];
    for (const command of commands) {
      const [x, y] = corners.at(-1) ?? [0, 0];
      const figures = figuresOf(command);
      const letter = command.charAt(0);
      if (letter === "H") corners.push([figures[0]!, y]);
      else if (letter === "V") corners.push([x, figures[0]!]);
      else if (letter !== "Z") corners.push([figures.at(-2)!, figures.at(-1)!]);
    }
    const straight = !/[CSZ]/u.test(commands.at(-1)!.charAt(0));
    const ends: [[number, number], [number, number]][] = [[corners[0]!, corners[1]!]];
    if (straight) ends.push([corners.at(-1)!, corners.at(-2)!]);
    for (const [[x, y], [, from]] of ends) {
      if (y !== 0 && y !== 10) continue;
      const at = x * narrow + right;
      art +=
        y === from
          ? `M${n(at)} ${y}v${y === 0 ? 2 : -2}`
          : `M${n(at - halfSerif / contrast)} ${y}h${n((2 * halfSerif) / contrast)}`;
    }
  }
  return art;
}

// A line of letters, 10 high, with its top left at 0, 0.
function line(text: string, hand: Hand, ink: string, ground: string): string {
  const chance = new Chance(text);
  const slip = hand.wild === 0 ? () => 0 : () => chance.between(-hand.wild, hand.wild);
  const narrow = hand.narrow / hand.contrast;
  let x = 0;
  let ways = "";
  for (const letter of text) {
    const [width, way] = letters[letter] ?? [blank, ""];
    if (way !== "") {
      const feet = hand.serif ? serifs(way, narrow, x, hand.contrast) : "";
      const d = way.replace(step, (from) => placed(from, narrow, x, slip)) + feet;
      const lean = hand.dance * (chance.likely(0.5) ? 1 : -1) * chance.between(0.4, 1);
      const middle = n(x + (width * narrow) / 2);
      ways += element("path", hand.dance === 0 ? { d } : { d, transform: `rotate(${n(lean)} ${middle} 5)` });
    }
    x += width * narrow + hand.gap / hand.contrast;
  }
  const looks: Attributes = {
    fill: "none",
    "stroke-width": hand.pen,
    "stroke-linejoin": hand.round ? "round" : "miter",
    "stroke-linecap": hand.round ? "round" : "butt",
    "stroke-miterlimit": 3,
  };
  const outer = group(ways, { stroke: ink, ...looks });
  const inner = hand.inline ? group(ways, { stroke: ground, ...looks, "stroke-width": hand.pen * 0.22 }) : "";
  const changes = [
    hand.slant === 0 ? "" : `skewX(${hand.slant})`,
    hand.contrast === 1 ? "" : `scale(${hand.contrast} 1)`,
  ].join("");
  return changes === "" ? outer + inner : group(outer + inner, { transform: changes });
}

// Breaks words into lines so that the letters are as large as possible.
function broken(words: readonly string[], lines: number): string[] {
  const all = words.join(" ").length;
  const rows: string[] = [];
  let row = "";
  for (const word of words) {
    const left = lines - rows.length;
    if (row !== "" && left > 1 && row.length + word.length / 2 > all / lines) {
      rows.push(row);
      row = word;
    } else {
      row = row === "" ? word : `${row} ${word}`;
    }
  }
  return [...rows, row];
}

export interface Box {
  readonly x: number;
  readonly y: number;
  readonly width: number;
  readonly height: number;
}

const leading = 1.36; // line height relative to the letter height

interface Rows {
  readonly rows: string[];
  readonly size: number; // height of a letter
}

function setIn(box: Box, words: readonly string[], hand: Hand): Rows {
  let best: Rows = { rows: [], size: 0 };
  for (let count = 1; count <= Math.min(words.length, 5); ++count) {
    const rows = broken(words, count);
    const width = Math.max(...rows.map((row) => widthOf(row, hand) + hand.pen * hand.contrast));
    const height = 10 * (1 + (rows.length - 1) * leading) + hand.pen;
    const size = Math.min((box.width / width) * 10, (box.height / height) * 10);
    if (size > best.size * 1.02) best = { rows, size };
  }
  return best;
}

export interface Setting {
  readonly atFoot?: boolean; // bottom of the box instead of its middle
  readonly onTop?: boolean;
  readonly fromLeft?: boolean; // left-aligned instead of centered
}

// The text as large as the box allows. Uses a system font for letters that the alphabet does not have.
export function lettering(
  text: string,
  box: Box,
  hand: Hand,
  ink: string,
  ground: string,
  { atFoot = false, onTop = false, fromLeft = false }: Setting = {},
): string {
  const words = drawable(text)
    .split(" ")
    .filter((word) => word !== "");
  if (words.length === 0) return systemLettering(text, box, ink);
  const { rows, size } = setIn(box, words, hand);
  const scale = size / 10;
  const height = size * (1 + (rows.length - 1) * leading);
  const rest = box.height - height - hand.pen * scale;
  const top = box.y + (hand.pen * scale) / 2 + (atFoot ? rest : onTop ? 0 : rest / 2);
  return rows
    .map((row, index) => {
      const free = box.width - widthOf(row, hand) * scale;
      const left = box.x + (fromLeft ? (hand.pen * hand.contrast * scale) / 2 : free / 2);
      const place = `translate(${n(left)} ${n(top + index * size * leading)})scale(${scale.toFixed(4)})`;
      return group(line(row, hand, ink, ground), { transform: place });
    })
    .join("");
}

const escaped = (text: string): string => text.replace(/[&<>"]/gu, (sign) => `&#${sign.charCodeAt(0)};`);

function systemLettering(text: string, box: Box, ink: string): string {
  const letters = Math.max([...text].length, 1);
  return element(
    "text",
    {
      x: box.x + box.width / 2,
      y: box.y + box.height / 2,
      fill: ink,
      "font-size": Math.min(box.height, (box.width / letters) * 1.3),
      "font-weight": 700,
      "text-anchor": "middle",
      "dominant-baseline": "central",
    },
    escaped(text),
  );
}
