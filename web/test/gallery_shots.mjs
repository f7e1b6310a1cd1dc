// Takes a picture of every page of the gallery at two sizes and in both themes, to be looked at.
//
//   node test/gallery_shots.mjs <directory> [page...]

import { mkdirSync } from "node:fs";
import { join } from "node:path";

import { openGallery } from "./draw_browser.mjs";

const [directory = "gallery-shots", ...wanted] = process.argv.slice(2);
mkdirSync(directory, { recursive: true });

const gallery = await openGallery();
const first = await gallery.open("hub");
const names = wanted.length > 0 ? wanted : await first.evaluate(() => Object.keys(window.gallery.pages));
const sizes = [
  [390, 844],
  [1280, 800],
];
for (const dark of [false, true]) {
  for (const [width, height] of sizes) {
    for (const name of names) {
      const page = await gallery.open(name, { width, height, dark });
      // The window grows to the page, so that what sticks to its edges is where it ends up.
      const whole = await page.evaluate(() => document.querySelector("dialog") ? 0 : document.documentElement.scrollHeight);
      await page.setViewportSize({ width, height: Math.max(height, whole) });
      await page.screenshot({ path: join(directory, `${name}-${width}-${dark ? "dark" : "light"}.png`) });
      await page.context().close();
    }
  }
}
for (const problem of gallery.problems) console.log(problem);
await gallery.close();
