// Cuts the page's display face, Barlow Condensed Bold, down to the characters that headings, figures and stamps need,
// and writes it to src/face/: Western European letters in one file, and in a second one the other Latin letters and
// currencies, which a browser fetches only for a text that holds one. Run by hand; the files are committed.
//
//   npm install --no-save subset-font@2.9.0 @fontsource/barlow-condensed@5.3.0
//   node face.mjs

import { copyFileSync, mkdirSync, readFileSync, writeFileSync } from "node:fs";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";
import subsetFont from "subset-font";

const here = dirname(fileURLToPath(import.meta.url));
const source = join(here, "node_modules/@fontsource/barlow-condensed");
const folder = join(here, "src/face");

const parts = [
  {
    name: "latin",
    range:
      "U+20-7E, U+A0-FF, U+152-153, U+178, U+2013-2014, U+2018-201A, U+201C-201E, U+2020-2022, U+2026, " +
      "U+2039-203A, U+20AC, U+2122, U+2212",
  },
  {
    name: "latin-ext",
    range: "U+100-151, U+154-177, U+179-17E, U+218-21B, U+1E9E, U+20A6, U+20A9-20AB, U+20AD-20AE, U+20B1-20B2, " +
      "U+20B4-20B5, U+20B8-20BA, U+20BD, U+20BF",
  },
];

// The characters of a range as style sheets write it.
function charactersOf(range) {
  return range.split(", ").flatMap((span) => {
    const [first, last = first] = span.slice(2).split("-").map((point) => parseInt(point, 16));
    return Array.from({ length: last - first + 1 }, (_, index) => String.fromCodePoint(first + index));
  });
}

mkdirSync(folder, { recursive: true });
for (const { name, range } of parts) {
  const whole = readFileSync(join(source, `files/barlow-condensed-${name}-700-normal.woff2`));
  const cut = await subsetFont(whole, charactersOf(range).join(""), {
    targetFormat: "woff2",
    noHinting: true,
    keepFeatures: ["ccmp", "kern", "locl", "mark", "tnum"],
  });
  writeFileSync(join(folder, `${name}.woff2`), cut);
  console.log(name, cut.length, "bytes");
}
writeFileSync(join(folder, "parts.json"), `${JSON.stringify(parts, null, 2)}\n`);
copyFileSync(join(source, "LICENSE"), join(here, "static/barlow-condensed-license.txt"));
