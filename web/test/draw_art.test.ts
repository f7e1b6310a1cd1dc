// Pictures, figures and chart geometry, mostly without a browser.

import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { test } from "node:test";

import { hands, lettering } from "../src/art/lettering";
import { pictureArt } from "../src/art/picture_art";
import { posterSheet } from "../src/art/poster";
import { contrast, inkOn } from "../src/art/posters/formats";
import type { Look } from "../src/art/posters/formats";
import { genres } from "../src/art/posters/genres";
import { picture as svg } from "../src/art/svg";
import { box, ground, ink, text, wordmark } from "../src/art/wordmark";
import { areaPath, bars, linePath, plotOf, slices } from "../src/draw/chart_geometry";
import { formatLike, parseFigure } from "../src/draw/counting";
import type { Chart, Picture, PictureKind, PosterFormat } from "../src/view_types";
import { setGallery } from "./draw_browser";
import { picture, poster } from "./gallery_nodes";
import { pages } from "./gallery_pages";

const gallery = setGallery();

// The values of an enumeration, from the generated TypeScript.
const types = readFileSync("src/view_types.ts", "utf8");
const wordsOf = (type: string): string[] =>
  [...new RegExp(`type ${type} = ([^;]+);`, "u").exec(types)![1]!.matchAll(/\w+/gu)].map(([word]) => word);
const kinds = wordsOf("PictureKind") as PictureKind[];

const hostile = `"/><script>alert(1)</script>`;
const names = [
  "man (3).png", "Night Train", "imbdPearTv.png", "夜の電車", "", "🎬", hostile, "ring2.png", "castle", "jet",
  "a".repeat(300),
];

const formats = wordsOf("PosterFormat") as PosterFormat[];
const everyPoster = Object.keys(genres).flatMap((genre) =>
  formats.map((format) => poster("Exact Change: for Charon", genre, { format, billed: "Nora Quill", season: 2 })),
);

test("a picture is the same for the same name everywhere, and another for another name", async () => {
  const page = await gallery.open("hub");
  for (const kind of kinds) {
    const shown = names.map((name) => picture(kind, name));
    const there = await page.evaluate((all) => all.map((one) => window.gallery.pictureArt(one)), shown);
    assert.deepEqual(there, shown.map(pictureArt), kind);
    const thirty = Array.from({ length: 30 }, (_, index) => pictureArt(picture(kind, `name ${index}`)));
    assert.ok(new Set(thirty).size >= 29, `${kind}: ${new Set(thirty).size} of 30 differ`);
  }
});

// Faults of a picture: invalid SVG, scripts, external references, or invalid coordinates.
const faultsOf = (svgs: readonly string[]): unknown[] => svgs.flatMap((svg) => {
  const drawing = new DOMParser().parseFromString(svg, "image/svg+xml");
  const all = [...drawing.querySelectorAll("*")];
  const attributes = all.flatMap((element) => [...element.attributes]);
  return [
    drawing.querySelector("parsererror")?.textContent,
    all.find((element) => /script|style|foreignObject|image|^a$/iu.test(element.localName))?.localName,
    attributes.find(({ name }) => /^(on|style|href)/iu.test(name))?.name,
    /NaN|undefined|Infinity/u.exec(svg)?.[0],
  ].filter((fault) => fault !== undefined);
});

test("every picture is sound SVG that only shows, whatever its name", async () => {
  const page = await gallery.open("hub");
  const named = kinds.flatMap((kind) => names.map((name) => picture(kind, name)));
  const titled = names.map((title) => poster(title, "Drama", { billed: title }));
  // The only allowed style is mix-blend-mode, to which the page's policy does not apply inside images.
  const arts = [...named, ...titled, ...everyPoster].map((shown) =>
    pictureArt(shown).replace(/ style="(mix-blend-mode|mask-type):\w+"/gu, ""),
  );
  assert.deepEqual(await page.evaluate(faultsOf, arts), []);
});

// The titles of a file of texts, each as its poster. Where no type is told, a title is a feature.
function titlesOf(file: string): Picture[] {
  const posters: Picture[] = [];
  let columns: string[] = [];
  for (const line of readFileSync(`../src/banks/${file}.txt`, "utf8").split("\n")) {
    if (line.startsWith("[")) columns = [];
    if (line.startsWith("# columns: ")) columns = line.slice("# columns: ".length).split(" | ");
    if (line.startsWith("#") || !columns.includes("genre") || line === "") continue;
    const cells = line.split(" | ");
    const cell = (column: string): string => cells[columns.indexOf(column)]!;
    const format = columns.includes("type") ? formats[Number(cell("type"))]! : "feature";
    posters.push(poster(cell("title"), cell("genre").split(", ")[0]!, { name: cell("imageString"), format }));
  }
  return posters;
}

// The most visible features: scene, colors and layout.
const glance = ({ genre, format }: Picture, { scene, palette, layout }: Look): string =>
  format === "commercial" ? `product ${scene}` : `${genre} ${format} scene ${scene} palette ${palette} layout ${layout}`;

test("no two titles that can meet on a casting board or in a filmography share a picture", () => {
  const titles = titlesOf("titles");
  assert.ok(titles.length > 200, `${titles.length} titles`);
  const met = new Map<string, string>();
  const shared = titles.flatMap((shown) => {
    const seen = glance(shown, posterSheet(shown).look);
    const other = met.get(seen);
    met.set(seen, shown.title);
    return other === undefined || other === shown.title ? [] : [`${other} and ${shown.title}: ${seen}`];
  });
  // If this fails, change the genre's salt (src/art/posters/genres.ts).
  assert.deepEqual(shared, []);
});

test("every title has a genre that posters are drawn of", () => {
  for (const { title, genre } of [...titlesOf("titles"), ...titlesOf("rate_movies")]) {
    assert.ok(genres[genre], `${title}: no scenes of the genre ${genre}`);
  }
});

test("a poster bears its title, the season of a series, and the name that is billed", () => {
  for (const shown of everyPoster) {
    const art = pictureArt(shown);
    assert.notEqual(pictureArt({ ...shown, title: "" }), art, `${shown.genre} ${shown.format} title`);
    assert.notEqual(pictureArt({ ...shown, billed: "" }), art, `${shown.genre} ${shown.format} name`);
    if (shown.format === "series") assert.notEqual(pictureArt({ ...shown, season: 3 }), art, shown.genre);
  }
});

test("a title reads on what is behind it: every palette of every genre has an ink for every ground", () => {
  for (const [genre, { palettes }] of Object.entries(genres)) {
    for (const palette of palettes) {
      for (const ground of Object.values(palette)) {
        for (const striking of [true, false]) {
          const ink = inkOn(ground, palette, striking);
          assert.ok(contrast(ink, ground) >= 4.5, `${genre}: ${ink} on ${ground}`);
        }
      }
    }
  }
});

const headshots = (age: number): Picture[] =>
  ["m", "f"].flatMap((sex) =>
    Array.from({ length: 12 }, (_, index) => ({ ...picture("avatar", `headshot_${sex} (${index + 1}).png`), age })),
  );

test("the twelve headshots of each sex differ, look young to 35, and age with the career", () => {
  const at = (age: number): string[] => headshots(age).map(pictureArt);
  const glasses = (faces: readonly string[]): number => faces.filter((face) => face.includes("M8.24 2.52")).length;
  assert.equal(new Set(at(18)).size, 24);
  assert.deepEqual(at(35), at(18));
  assert.equal(glasses(at(35)), 0);
  for (const [younger, older] of [[35, 52], [52, 62], [62, 72]] as const) {
    const before = at(younger);
    at(older).forEach((face, index) => assert.notEqual(face, before[index], `${index + 1} at ${older}`));
  }
  assert.ok(glasses(at(65)) >= 8);
});

test("a face goes with what its name says: only men have beards, and not all of them", () => {
  const bearded = (name: string): boolean =>
    !pictureArt(picture("avatar", name)).includes('<g transform="translate(14 26)"></g>');
  const numbers = Array.from({ length: 45 }, (_, index) => index + 1);
  const women = numbers.flatMap((number) => [`woman (${number}).png`, `sw${number}.png`]);
  assert.deepEqual(women.filter(bearded), []);
  const beards = numbers.filter((number) => bearded(`man (${number}).png`)).length;
  assert.ok(beards > 5 && beards < 40, `${beards} of 45`);
});

test("a title stays in its room, however long", () => {
  const room = { x: 16, y: 20, width: 168, height: 60 };
  const placing = /translate\(([\d.-]+) ([\d.-]+)\)scale\(([\d.]+)\)"/gu;
  for (const hand of Object.values(hands)) {
    for (const title of ["A", "Hush", "The Understudy Who Never Was", "W".repeat(60)]) {
      const places = [...lettering(title, room, hand, "#000", "#fff").matchAll(placing)];
      assert.ok(places.length > 0, title);
      for (const [x = 0, y = 0, scale = 0] of places.map((place) => place.slice(1).map(Number))) {
        assert.ok(x >= room.x - 0.1 && y >= room.y - 0.1, `${title} starts at ${x}, ${y}`);
        assert.ok(y + 10 * scale <= room.y + room.height + 0.1, `${title} ends at ${y + 10 * scale}`);
      }
    }
  }
});

test("the name of the game is as the alphabet draws it", () => {
  const drawn = lettering(text, box, hands.inline, ink, ground);
  assert.equal(wordmark, svg(box.width, box.height, drawn));
});

test("a figure is read and written back as it stood, in any country's way", () => {
  for (const text of [
    "$1,250", "-$340", "14.2K", "8.4", "61%", "€ 1.234.567,89", "1\u202f250 €", "$99.50", "0", "£12M", "3.5B",
  ]) {
    const figure = parseFigure(text)!;
    assert.equal(formatLike(figure, figure.value), text);
  }
  assert.equal(parseFigure("$1.5K")?.value, 1500);
  assert.equal(parseFigure("-$340")?.value, -340);
  for (const text of ["72 of 100", "None", "", "—"]) assert.equal(parseFigure(text), null, text);
});

test("a chart's line rises with its figures, and its bars stand on zero, or hang from it", () => {
  const points = [-10, 0, 30].map((value) => ({ label: "", value, text: "" }));
  const chart: Chart = { kind: "line", title: "", points, scale: [{ value: -10, text: "" }], summary: "" };
  const plot = plotOf(chart);
  assert.match(linePath(points, plot), /^M0,100C.*,100,0$/u);
  assert.match(areaPath(points, plot), /^M0,100C.*,100,0L100,100L0,100Z$/u);
  const [below, nothing, above] = bars("bar", points, plotOf({ ...chart, kind: "bar" }));
  assert.deepEqual([below!.y, below!.height], [75, 25]);
  assert.deepEqual([nothing!.y, nothing!.height], [75, 0]);
  assert.deepEqual([above!.y, above!.height], [0, 75]);
  assert.deepEqual(slices(points).map((slice) => slice !== ""), [false, false, true]);
});

test("a line never leaves the room between two neighbours, and a pie's slices meet", () => {
  const values = [3, 3, 80, 81, 2, 2, 50];
  const points = values.map((value) => ({ label: "", value, text: "" }));
  const chart: Chart = { kind: "line", title: "", points, scale: [], summary: "" };
  const plot = plotOf(chart);
  const pieces = [...linePath(points, plot).matchAll(/C([^C]+)/gu)].map(([, piece]) => piece!.split(",").map(Number));
  assert.equal(pieces.length, 6);
  pieces.forEach(([, first, , second, , end], index) => {
    const [from, to] = [values[index]!, values[index + 1]!].map((value) => 100 - plot.up(value)) as [number, number];
    assert.ok(Math.abs(end! - to) < 0.01);
    for (const handle of [first!, second!]) {
      assert.ok(handle > Math.min(from, to) - 0.01 && handle < Math.max(from, to) + 0.01, `${index}: ${handle}`);
    }
  });
  const shares = slices([1, 2, 1].map((value) => ({ label: "", value, text: "" })));
  assert.match(shares[0]!, /^M0,-49A49,49,0,0,1,49,-?0L27,-?0A27,27,0,0,0,0,-27Z$/u);
  assert.match(shares[1]!, /^M49,-?0A.*,-49,-?0L-27,-?0A.*,27,-?0Z$/u);
});

test("the gallery shows all that the vocabulary has, of each type and kind", () => {
  const shown = new Set<unknown>();
  const visit = (value: unknown): void => {
    if (value === null || typeof value !== "object") return;
    for (const [name, inner] of Object.entries(value)) {
      if (/^(kind|style|tone|weight|band|icon)$/u.test(name)) shown.add(inner);
      visit(inner);
    }
  };
  visit(pages);
  const nodes = [...types.matchAll(/readonly kind: "(\w+)"/gu)].map(([, kind]) => kind);
  assert.ok(nodes.length > 15);
  const words = ["PictureKind", "ChartKind", "TextStyle", "Tone", "ButtonWeight", "Band", "Icon"].flatMap(wordsOf);
  assert.deepEqual([...nodes, ...words].filter((word) => !shown.has(word)), []);
});
