// Pictures and figures: what is worked out from a name or a text, without a browser around it.

import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { dirname, join } from "node:path";
import { after, before, test } from "node:test";
import { fileURLToPath } from "node:url";
import { gzipSync } from "node:zlib";

import { build } from "esbuild";

import { builtGallery, openGallery } from "./draw_browser.mjs";

const here = dirname(fileURLToPath(import.meta.url));

async function imported(source) {
  const { outputFiles } = await build({
    stdin: { contents: source, resolveDir: join(here, "../src"), loader: "ts" },
    bundle: true,
    write: false,
    format: "esm",
    jsx: "automatic",
    jsxImportSource: "preact",
  });
  return import(`data:text/javascript;base64,${Buffer.from(outputFiles[0].text).toString("base64")}`);
}

const { pictureArt, parseFigure, formatLike, lettering, hands } = await imported(`
  export { pictureArt } from "./art/picture_art";
  export { hands, lettering } from "./art/lettering";
  export { formatLike, parseFigure } from "./draw/counting";
`);

const types = readFileSync(join(here, "../src/view_types.ts"), "utf8");
const kinds = /PictureKind = ([^;]+);/u.exec(types)[1].match(/\w+/gu);
const names = ["man (3).png", "Night Train", "imbdPearTv.png", "夜の電車", "", "🎬", `"/><script>alert(1)</script>`, "ring2.png", "castle", "jet", "a".repeat(300)];

let gallery;
before(async () => {
  gallery = await openGallery();
});
after(() => gallery.close());

test("a picture is the same for the same name, and another for another name", async () => {
  const anew = await imported(`export { pictureArt } from "./art/picture_art";`);
  for (const kind of kinds) {
    for (const name of names) assert.equal(pictureArt(kind, name), anew.pictureArt(kind, name), `${kind} ${name}`);
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
          all.some((element) => /script|style|foreignObject|image|^a$/iu.test(element.localName)) && "an element that does something",
          all.some((element) => [...element.attributes].some(({ name }) => /^(on|style|href)/iu.test(name))) && "an attribute that does something",
          /NaN|undefined|Infinity/u.test(svg) && "a figure that is none",
        ].filter(Boolean);
      }, art);
      assert.deepEqual(faults, [], `${kind} ${name}`);
    }
  }
});

test("a face goes with what its name says: only men have beards, and not all of them", () => {
  const bearded = (name) => !pictureArt("avatar", name).includes('<g transform="translate(14 26)"></g>');
  const numbers = Array.from({ length: 45 }, (_, index) => index + 1);
  assert.deepEqual(numbers.filter((number) => bearded(`woman (${number}).png`) || bearded(`sw${number}.png`)), []);
  const beards = numbers.filter((number) => bearded(`man (${number}).png`)).length;
  assert.ok(beards > 5 && beards < 40, `${beards} of 45`);
});

test("a title stays in its room, however long", () => {
  const room = { x: 16, y: 20, width: 168, height: 60 };
  for (const hand of Object.values(hands)) {
    for (const title of ["A", "Hush", "The Understudy Who Never Was", "W".repeat(60)]) {
      const places = [...lettering(title, room, hand, "#000", "#fff").matchAll(/translate\(([\d.-]+) ([\d.-]+)\)scale\(([\d.]+)\)/gu)];
      assert.ok(places.length > 0, title);
      for (const [, x, y, scale] of places) {
        assert.ok(Number(x) >= room.x - 0.1 && Number(y) >= room.y - 0.1, `${title} starts at ${x}, ${y}`);
        assert.ok(Number(y) + 10 * Number(scale) <= room.y + room.height + 0.1, `${title} ends at ${Number(y) + 10 * Number(scale)}`);
      }
    }
  }
});

test("a figure is read and written back as it stood, in any country's way", () => {
  for (const text of ["$1,250", "-$340", "14.2K", "8.4", "61%", "€ 1.234.567,89", "1\u202f250 €", "$99.50", "0", "£12M", "3.5B"]) {
    const figure = parseFigure(text);
    assert.equal(formatLike(figure, figure.value), text);
  }
  assert.equal(parseFigure("$1.5K").value, 1500);
  assert.equal(parseFigure("-$340").value, -340);
  for (const text of ["72 of 100", "None", "", "—"]) assert.equal(parseFigure(text), null, text);
});

test("the gallery shows every kind of node and of picture that there is", async () => {
  const page = await gallery.open("hub");
  const shown = await page.evaluate(() => {
    const found = new Set();
    const visit = (value) => {
      if (Array.isArray(value)) return value.forEach(visit);
      if (value === null || typeof value !== "object") return;
      if ("kind" in value) found.add(value.kind);
      Object.values(value).forEach(visit);
    };
    visit(window.gallery.pages);
    return [...found];
  });
  const nodes = [...types.matchAll(/readonly kind: "(\w+)"/gu)].map(([, kind]) => kind);
  const charts = /ChartKind = ([^;]+);/u.exec(types)[1].match(/\w+/gu);
  assert.ok(nodes.length > 15);
  assert.deepEqual([...nodes, ...kinds, ...charts].filter((kind) => !shown.includes(kind)), []);
});

test("what draws the page is light enough for a first visit", async () => {
  const { script, style } = await builtGallery();
  const bytes = { script: gzipSync(script).length, style: gzipSync(style).length };
  console.log(`drawing with its gallery, compressed: script ${bytes.script} bytes, style ${bytes.style} bytes`);
  assert.ok(bytes.script + bytes.style < 90_000, JSON.stringify(bytes));
});
