// Everybody can use what is drawn: the rules of WCAG 2.2 AA that a machine can check, on every page of the gallery,
// in both themes, at three widths and with text twice as large; and the keyboard reaches all of it.

import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { after, before, test } from "node:test";

import { openGallery } from "./draw_browser.mjs";

const axe = readFileSync(createRequire(import.meta.url).resolve("axe-core/axe.min.js"), "utf8");
const rules = ["wcag2a", "wcag2aa", "wcag21a", "wcag21aa", "wcag22aa", "best-practice"];
const sizes = [
  { width: 390, height: 844 },
  { width: 320, height: 640 },
  { width: 1280, height: 800 },
];

let gallery;
let names;
before(async () => {
  gallery = await openGallery();
  const page = await gallery.open("hub");
  names = await page.evaluate(() => Object.keys(window.gallery.pages));
  await page.context().close();
});
after(() => gallery.close());

async function onEveryPage(options, check) {
  const page = await gallery.open("hub", options);
  for (const name of names) {
    await page.evaluate((shown) => window.gallery.show(window.gallery.pages[shown]), name);
    await check(page, name);
  }
  await page.context().close();
}

// The window is as high as the page, so that a button behind what sticks to the window's edge, which the player scrolls
// into the open, does not count as one that is too small to hit.
async function violations(page, { width, height }) {
  await page.setViewportSize({ width, height });
  const whole = await page.evaluate(() => document.documentElement.scrollHeight);
  await page.setViewportSize({ width, height: Math.max(height, whole) });
  if (!(await page.evaluate(() => "axe" in window))) await page.evaluate(axe);
  const found = await page.evaluate((tags) => window.axe.run(document, { runOnly: tags }), rules);
  return found.violations.map(({ id, nodes }) => `${id}: ${nodes[0].html.slice(0, 160)} ${nodes[0].failureSummary}`);
}

for (const dark of [false, true]) {
  for (const size of sizes) {
    test(`nobody is shut out at ${size.width} pixels in the ${dark ? "dark" : "light"} theme`, async () => {
      await onEveryPage({ ...size, dark }, async (page, name) => {
        assert.deepEqual(await violations(page, size), [], name);
      });
    });
  }
}

// What sticks out of the page to the right, and text that its box cuts off.
function cutOff() {
  const wide = document.documentElement.clientWidth;
  const cut = [];
  if (document.documentElement.scrollWidth > wide) cut.push(`the page is ${document.documentElement.scrollWidth} wide`);
  for (const element of document.querySelectorAll("#app *")) {
    const box = element.getBoundingClientRect();
    if (element.closest("svg, .unseen, .skip, .bar-title, [inert]") || box.width === 0) continue;
    if (box.right > wide + 1 || box.left < -1) cut.push(`${element.className} ends at ${box.right}`);
    const style = getComputedStyle(element);
    const hides = style.overflowX !== "visible" || style.overflowY !== "visible";
    const scrolls = /auto|scroll/.test(style.overflowX + style.overflowY) || element.matches("input");
    if (hides && !scrolls && element.scrollWidth > element.clientWidth + 1) cut.push(`${element.className} hides its content`);
  }
  return cut;
}

for (const [what, options, zoom] of [
  ["a screen of 320 pixels", { width: 320, height: 640 }, 1],
  ["text of twice the size on a phone", { width: 390, height: 844 }, 2],
  ["text of twice the size on a wide screen", { width: 1280, height: 800 }, 2],
]) {
  test(`nothing is lost on ${what}`, async () => {
    await onEveryPage(options, async (page, name) => {
      await page.evaluate((size) => (document.documentElement.style.fontSize = `${size * 100}%`), zoom);
      assert.deepEqual(await page.evaluate(cutOff), [], name);
    });
  });
}

test("a finger hits every control: none is under 44 pixels", async () => {
  await onEveryPage({ width: 390, height: 844 }, async (page, name) => {
    const small = await page.evaluate(() =>
      [...document.querySelectorAll("button, input, textarea")]
        .filter((control) => control.closest("dialog") || !document.querySelector("dialog"))
        .map((control) => ({ control, box: (control.matches(".card-press") ? control.closest(".card") : control).getBoundingClientRect() }))
        .filter(({ box }) => box.width < 44 || box.height < 44)
        .map(({ control, box }) => `${control.outerHTML.slice(0, 80)} ${box.width} x ${box.height}`),
    );
    assert.deepEqual(small, [], name);
  });
});

// Everything that the page offers is reached by Tab (of radio buttons, the chosen one of each group), and what has
// the focus is in sight, not under the bar or the tabs.
test("the keyboard reaches everything, in its order, and it can be seen", async () => {
  await onEveryPage({ width: 390, height: 844 }, async (page, name) => {
    const wanted = await page.evaluate(() => {
      const within = document.querySelector("dialog") ?? document;
      const all = [...within.querySelectorAll("button, input, textarea, a[href]")].filter((control) => control.type !== "radio" || control.checked);
      all.forEach((control, index) => (control.dataset.place = String(index)));
      return all.length;
    });
    await page.evaluate(() => {
      // From the top of the page, as after loading it; a dialog keeps the focus anyway.
      document.body.tabIndex = -1;
      document.body.focus();
      window.scrollTo(0, 0);
    });
    const reached = [];
    for (let step = 0; step < wanted + 2 && reached.length < wanted; ++step) {
      await page.keyboard.press("Tab");
      const at = await page.evaluate(() => {
        const control = document.activeElement;
        if (!control?.dataset.place) return null;
        const box = control.getBoundingClientRect();
        const middle = document.elementFromPoint(box.left + box.width / 2, Math.min(Math.max(box.top + box.height / 2, 0), innerHeight - 1));
        const isSeen = box.bottom > 0 && box.top < innerHeight && (control.contains(middle) || middle?.contains(control) || middle?.closest(".option, .card, .chart-plot") === control.closest(".option, .card, .chart-plot"));
        return { place: Number(control.dataset.place), isSeen, what: control.outerHTML.slice(0, 100) };
      });
      if (at === null) continue;
      assert.ok(at.isSeen, `${name}: hidden under something: ${at.what}`);
      reached.push(at.place);
    }
    const missed = Array.from({ length: wanted }, (_, place) => place).filter((place) => !reached.includes(place));
    assert.deepEqual(missed, [], `${name}: not reached`);
    if (!(await page.evaluate(() => document.querySelector("dialog")))) {
      assert.deepEqual(reached, [...reached].sort((a, b) => a - b), `${name}: out of order`);
    }
  });
});

test("every page has one heading of its own, and no level is left out below it", async () => {
  await onEveryPage({}, async (page, name) => {
    const levels = await page.evaluate(() => [...document.querySelectorAll("main :is(h1, h2, h3, h4, h5, h6)")].map((heading) => Number(heading.tagName[1])));
    assert.equal(levels.filter((level) => level === 1).length, 1, name);
    levels.forEach((level, index) => assert.ok(index === 0 || level <= levels[index - 1] + 1, `${name}: ${levels}`));
  });
});

test("the page's policy holds, and the console has nothing to say", () => {
  assert.deepEqual(gallery.problems, []);
});
