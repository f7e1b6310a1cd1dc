// Everybody can use what is drawn: the rules of WCAG 2.2 AA that a machine can check, on every page of the
// gallery, in both themes, at three widths and with text twice as large; and the keyboard reaches all of it.

import assert from "node:assert/strict";
import { mkdirSync, readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { join } from "node:path";
import { after, before, test } from "node:test";
import type { Page } from "playwright-core";

import { Gallery, type Looks } from "./draw_browser";
import { pages } from "./gallery_pages";

const checker = readFileSync(
  createRequire(join(process.cwd(), "package.json")).resolve("axe-core/axe.min.js"),
  "utf8",
);
const rules = ["wcag2a", "wcag2aa", "wcag21a", "wcag21aa", "wcag22aa", "best-practice"];
const pictures = process.env["SCREENSHOTS"]; // a folder, to keep a picture of each page in

const phone = { width: 390, height: 844 };
const narrow = { width: 320, height: 640 };
const wide = { width: 1280, height: 800 };

let gallery: Gallery;
before(async () => {
  gallery = await Gallery.start();
});
after(() => gallery.stop());

async function onEveryPage(looks: Looks, check: (page: Page, name: string) => Promise<void>): Promise<void> {
  const page = await gallery.open("hub", looks);
  for (const name of Object.keys(pages)) {
    await page.evaluate((shown) => window.gallery.show(window.gallery.pages[shown]!), name);
    await check(page, name);
  }
  await page.close();
}

// The window is as high as the page, so that a button behind what sticks to the window's edge, which the
// player scrolls into the open, does not count as one that is too small to hit.
async function showWhole(page: Page, { width, height }: { width: number; height: number }): Promise<void> {
  await page.setViewportSize({ width, height });
  const whole = await page.evaluate(() =>
    document.querySelector("dialog") ? 0 : document.documentElement.scrollHeight,
  );
  await page.setViewportSize({ width, height: Math.max(height, whole) });
}

interface Violation {
  readonly id: string;
  readonly nodes: readonly { readonly html: string; readonly failureSummary: string }[];
}

async function violations(page: Page): Promise<string[]> {
  await page.evaluate(checker);
  const found = await page.evaluate<Violation[]>(
    `axe.run({ runOnly: ${JSON.stringify(rules)} }).then((run) => run.violations)`,
  );
  return found.map(({ id, nodes }) => `${id}: ${nodes[0]!.html.slice(0, 160)} ${nodes[0]!.failureSummary}`);
}

for (const dark of [false, true]) {
  for (const size of [phone, narrow, wide]) {
    const theme = dark ? "dark" : "light";
    test(`nobody is shut out at ${size.width} pixels in the ${theme} theme`, async () => {
      await onEveryPage({ ...size, dark }, async (page, name) => {
        await showWhole(page, size);
        assert.deepEqual(await violations(page), [], name);
        if (!pictures) return;
        mkdirSync(pictures, { recursive: true });
        await page.screenshot({ path: join(pictures, `${name}-${size.width}-${theme}.png`) });
      });
    });
  }
}

// What sticks out of the page to the right, and text that its box cuts off.
function cutOff(): string[] {
  const wide = document.documentElement.clientWidth;
  const cut: string[] = [];
  if (document.documentElement.scrollWidth > wide)
    cut.push(`the page is ${document.documentElement.scrollWidth} wide`);
  for (const element of document.querySelectorAll("#app *")) {
    const box = element.getBoundingClientRect();
    if (element.closest("svg, .unseen, .skip, .bar-title, [inert]") || box.width === 0) continue;
    if (box.right > wide + 1 || box.left < -1) cut.push(`${element.className} ends at ${box.right}`);
    const style = getComputedStyle(element);
    const hides = style.overflowX !== "visible" || style.overflowY !== "visible";
    const scrolls = /auto|scroll/.test(style.overflowX + style.overflowY) || element.matches("input");
    if (hides && !scrolls && element.scrollWidth > element.clientWidth + 1)
      cut.push(`${element.className} hides its content`);
  }
  return cut;
}

for (const [what, options, zoom] of [
  ["a screen of 320 pixels", narrow, 1],
  ["text of twice the size on a phone", phone, 2],
  ["text of twice the size on a wide screen", wide, 2],
] as const) {
  test(`nothing is lost on ${what}`, async () => {
    await onEveryPage(options, async (page, name) => {
      await page.evaluate((size) => (document.documentElement.style.fontSize = `${size * 100}%`), zoom);
      assert.deepEqual(await page.evaluate(cutOff), [], name);
    });
  });
}

test("a finger hits every control: none is under 44 pixels", async () => {
  await onEveryPage(phone, async (page, name) => {
    const small = await page.evaluate(() =>
      [...document.querySelectorAll("button, input, textarea")]
        .filter((control) => control.closest("dialog") || !document.querySelector("dialog"))
        .map((control) => ({
          control,
          box: (control.closest(".card-press") ? control.closest(".card") : control)!.getBoundingClientRect(),
        }))
        .filter(({ box }) => box.width < 44 || box.height < 44)
        .map(({ control, box }) => `${control.outerHTML.slice(0, 80)} ${box.width} x ${box.height}`),
    );
    assert.deepEqual(small, [], name);
  });
});

// Everything that the page offers is reached by Tab (of radio buttons, the chosen one of each group), and
// what has the focus is in sight, not under the bar or the tabs.
test("the keyboard reaches everything, in its order, and it can be seen", async () => {
  await onEveryPage(phone, async (page, name) => {
    const wanted = await page.evaluate(() => {
      const within = document.querySelector("dialog") ?? document;
      const all = [...within.querySelectorAll<HTMLElement>("button, input, textarea, a[href]")].filter(
        (control) => !(control instanceof HTMLInputElement && control.type === "radio" && !control.checked),
      );
      all.forEach((control, index) => (control.dataset["place"] = String(index)));
      return all.length;
    });
    await page.evaluate(() => {
      // From the top of the page, as after loading it; a dialog keeps the focus anyway.
      document.body.tabIndex = -1;
      document.body.focus();
      window.scrollTo(0, 0);
    });
    const reached: number[] = [];
    for (let step = 0; step < wanted + 2 && reached.length < wanted; ++step) {
      await page.keyboard.press("Tab");
      const at = await page.evaluate(() => {
        const control = document.activeElement;
        if (!(control instanceof HTMLElement) || control.dataset["place"] === undefined) return null;
        const box = control.getBoundingClientRect();
        const y = Math.min(Math.max(box.top + box.height / 2, 0), innerHeight - 1);
        const whole = (element: Element | null) => element?.closest(".option, .card, .chart-plot") ?? element;
        const onTop = document.elementFromPoint(box.left + box.width / 2, y);
        const isOnTop =
          control.contains(onTop) || onTop?.contains(control) || whole(onTop) === whole(control);
        const isSeen = box.bottom > 0 && box.top < innerHeight && isOnTop;
        return { place: Number(control.dataset["place"]), isSeen, what: control.outerHTML.slice(0, 100) };
      });
      if (at === null) continue;
      assert.ok(at.isSeen, `${name}: hidden under something: ${at.what}`);
      reached.push(at.place);
    }
    const missed = Array.from({ length: wanted }, (_, place) => place).filter(
      (place) => !reached.includes(place),
    );
    assert.deepEqual(missed, [], `${name}: not reached`);
    if (!(await page.evaluate(() => document.querySelector("dialog")))) {
      assert.deepEqual(
        reached,
        [...reached].sort((a, b) => a - b),
        `${name}: out of order`,
      );
    }
  });
});

test("every page has one heading of its own, and no level is left out below it", async () => {
  await onEveryPage(phone, async (page, name) => {
    const levels = await page.evaluate(() =>
      [...document.querySelectorAll("main :is(h1, h2, h3, h4, h5, h6)")].map((heading) =>
        Number(heading.tagName[1]),
      ),
    );
    assert.equal(levels.filter((level) => level === 1).length, 1, name);
    levels.forEach((level, index) =>
      assert.ok(index === 0 || level <= levels[index - 1]! + 1, `${name}: ${levels}`),
    );
  });
});

test("the page's policy holds, and the console has nothing to say", () => {
  assert.deepEqual(gallery.problems, []);
});
