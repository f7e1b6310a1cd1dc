// Pictures and figures: what is worked out from a name or a text, without a browser around it.

import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { after, before, test } from "node:test";
import { gzipSync } from "node:zlib";

import { hands, lettering } from "../src/art/lettering";
import { pictureArt } from "../src/art/picture_art";
import { formatLike, parseFigure } from "../src/draw/counting";
import type { PictureKind } from "../src/view_types";
import { Gallery } from "./draw_browser";
import { pages } from "./gallery_pages";

// The words that the vocabulary has for a type, from its generated TypeScript.
const types = readFileSync("src/view_types.ts", "utf8");
const wordsOf = (type: string): string[] =>
  [...new RegExp(`type ${type} = ([^;]+);`, "u").exec(types)![1]!.matchAll(/\w+/gu)].map(([word]) => word);
const kinds = wordsOf("PictureKind") as PictureKind[];

const hostile = `"/><script>alert(1)</script>`;
const names = [
  "man (3).png",
  "Night Train",
  "imbdPearTv.png",
  "夜の電車",
  "",
  "🎬",
  hostile,
  "ring2.png",
  "castle",
  "jet",
  "a".repeat(300),
];

let gallery: Gallery;
before(async () => {
  gallery = await Gallery.start();
});
after(() => gallery.stop());

test("a picture is the same for the same name everywhere, and another for another name", async () => {
  const page = await gallery.open("hub");
  for (const kind of kinds) {
    const there = await page.evaluate(
      ([kind, names]) => names.map((name) => window.gallery.pictureArt(kind, name)),
      [kind, names] as const,
    );
    assert.deepEqual(
      there,
      names.map((name) => pictureArt(kind, name)),
      kind,
    );
    const thirty = Array.from({ length: 30 }, (_, index) => pictureArt(kind, `name ${index}`));
    assert.ok(new Set(thirty).size >= 29, `${kind}: ${new Set(thirty).size} of 30 differ`);
  }
});

test("every picture is sound SVG that the page's policy lets through, whatever its name", async () => {
  const page = await gallery.open("hub");
  for (const kind of kinds) {
    for (const name of names) {
      const art = pictureArt(kind, name);
      const faults = await page.evaluate((svg) => {
        const drawing = new DOMParser().parseFromString(svg, "image/svg+xml");
        const all = [...drawing.querySelectorAll("*")];
        return [
          drawing.querySelector("parsererror")?.textContent,
          all.some((element) => /script|style|foreignObject|image|^a$/iu.test(element.localName)) &&
            "an element that does something",
          all.some((element) =>
            [...element.attributes].some(({ name }) => /^(on|style|href)/iu.test(name)),
          ) && "an attribute that does something",
          /NaN|undefined|Infinity/u.test(svg) && "a figure that is none",
        ].filter(Boolean);
      }, art);
      assert.deepEqual(faults, [], `${kind} ${name}`);
    }
  }
});

test("a face goes with what its name says: only men have beards, and not all of them", () => {
  const bearded = (name: string): boolean =>
    !pictureArt("avatar", name).includes('<g transform="translate(14 26)"></g>');
  const numbers = Array.from({ length: 45 }, (_, index) => index + 1);
  assert.deepEqual(
    numbers.filter((number) => bearded(`woman (${number}).png`) || bearded(`sw${number}.png`)),
    [],
  );
  const beards = numbers.filter((number) => bearded(`man (${number}).png`)).length;
  assert.ok(beards > 5 && beards < 40, `${beards} of 45`);
});

test("a title stays in its room, however long", () => {
  const room = { x: 16, y: 20, width: 168, height: 60 };
  for (const hand of Object.values(hands)) {
    for (const title of ["A", "Hush", "The Understudy Who Never Was", "W".repeat(60)]) {
      const places = [
        ...lettering(title, room, hand, "#000", "#fff").matchAll(
          /translate\(([\d.-]+) ([\d.-]+)\)scale\(([\d.]+)\)/gu,
        ),
      ];
      assert.ok(places.length > 0, title);
      for (const [, x, y, scale] of places) {
        assert.ok(Number(x) >= room.x - 0.1 && Number(y) >= room.y - 0.1, `${title} starts at ${x}, ${y}`);
        assert.ok(
          Number(y) + 10 * Number(scale) <= room.y + room.height + 0.1,
          `${title} ends at ${Number(y) + 10 * Number(scale)}`,
        );
      }
    }
  }
});

test("a figure is read and written back as it stood, in any country's way", () => {
  for (const text of [
    "$1,250",
    "-$340",
    "14.2K",
    "8.4",
    "61%",
    "€ 1.234.567,89",
    "1\u202f250 €",
    "$99.50",
    "0",
    "£12M",
    "3.5B",
  ]) {
    const figure = parseFigure(text)!;
    assert.equal(formatLike(figure, figure.value), text);
  }
  assert.equal(parseFigure("$1.5K")?.value, 1500);
  assert.equal(parseFigure("-$340")?.value, -340);
  for (const text of ["72 of 100", "None", "", "—"]) assert.equal(parseFigure(text), null, text);
});

test("the gallery shows every kind of node, of picture and of chart that there is", () => {
  const shown = new Set<unknown>();
  const visit = (value: unknown): void => {
    if (value === null || typeof value !== "object") return;
    if ("kind" in value) shown.add(value.kind);
    Object.values(value).forEach(visit);
  };
  visit(pages);
  const nodes = [...types.matchAll(/readonly kind: "(\w+)"/gu)].map(([, kind]) => kind);
  assert.ok(nodes.length > 15);
  assert.deepEqual(
    [...nodes, ...kinds, ...wordsOf("ChartKind")].filter((kind) => !shown.has(kind)),
    [],
  );
});

test("what draws the page is light enough for a first visit", () => {
  const { script, style } = gallery.built;
  const bytes = { script: gzipSync(script).length, style: gzipSync(style).length };
  console.log(
    `drawing with its gallery, compressed: script ${bytes.script} bytes, style ${bytes.style} bytes`,
  );
  assert.ok(bytes.script + bytes.style < 90_000, JSON.stringify(bytes));
});
