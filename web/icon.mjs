// Draws the game's icon, a star in marquee lights, and writes the SVG and the PNGs to static/icons/. Run it
// after changing the drawing; the files are committed.
//
//   node icon.mjs

import { mkdirSync, writeFileSync } from "node:fs";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";
import { launchChromium } from "./browser.mjs";

const folder = join(dirname(fileURLToPath(import.meta.url)), "static/icons");
const size = 512;
const middle = size / 2;

function round(value) {
  return Math.round(value * 10) / 10;
}

// Ten alternating light and dark facets. Flat colors keep the PNGs small.
function star(radius) {
  const points = Array.from({ length: 10 }, (_, index) => {
    const angle = (index * Math.PI) / 5 - Math.PI / 2;
    const distance = index % 2 === 0 ? radius : radius * 0.44;
    return `${round(middle + distance * Math.cos(angle))},${round(middle + 8 + distance * Math.sin(angle))}`;
  });
  return points
    .map((point, index) => {
      const colour = index % 2 === 0 ? "#ffd35c" : "#e8a02c";
      return `<polygon points="${middle},${middle + 8} ${point} ${points[(index + 1) % 10]}" fill="${colour}"/>`;
    })
    .join("");
}

// Bulbs in a ring, every other one brighter.
function bulbs(radius) {
  const count = 20;
  return Array.from({ length: count }, (_, index) => {
    const angle = (index * 2 * Math.PI) / count;
    const x = round(middle + radius * Math.cos(angle));
    const y = round(middle + radius * Math.sin(angle));
    return `<circle cx="${x}" cy="${y}" r="13" fill="${index % 2 === 0 ? "#fff1c9" : "#ffc44d"}"/>`;
  }).join("");
}

// `corner`: the background's corner radius (0 when a mask or the phone rounds it). `scale`: the size of the
// drawing; a mask may show only the middle four fifths.
function drawing(corner, scale) {
  return `<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 ${size} ${size}">
<rect width="${size}" height="${size}" rx="${corner}" fill="#54102a"/>
<g transform="translate(${middle} ${middle}) scale(${scale}) translate(${-middle} ${-middle})">
<circle cx="${middle}" cy="${middle}" r="200" fill="#6b1836" stroke="#390a1d" stroke-width="44"/>
${bulbs(200)}
${star(142)}
</g>
</svg>
`;
}

const pictures = [
  { name: "icon-192.png", pixels: 192, svg: drawing(96, 1) },
  { name: "icon-512.png", pixels: 512, svg: drawing(96, 1) },
  { name: "icon-maskable-512.png", pixels: 512, svg: drawing(0, 0.84) },
  { name: "apple-touch-icon.png", pixels: 180, svg: drawing(0, 0.94) },
];

mkdirSync(folder, { recursive: true });
writeFileSync(join(folder, "icon.svg"), drawing(96, 1));

const browser = await launchChromium();
for (const { name, pixels, svg } of pictures) {
  const page = await browser.newPage({ viewport: { width: pixels, height: pixels } });
  await page.setContent(`<style>body{margin:0}svg{display:block;width:${pixels}px;height:${pixels}px}</style>${svg}`);
  await page.screenshot({ path: join(folder, name), omitBackground: true });
  await page.close();
}
await browser.close();
