// Accessibility of every page of the gallery, in both themes, at three widths and with text at 200 %, and
// with the keyboard.

import assert from "node:assert/strict";
import { test } from "node:test";
import type { Page } from "playwright-core";

import { type Looks, setGallery } from "./draw_browser";
import { pages } from "./gallery_pages";
import { inspect, narrow, phone, wide } from "./inspect";
import { cutOff } from "./whole_words";

const gallery = setGallery();

async function onEveryPage(looks: Looks, check: (page: Page, name: string) => Promise<void>): Promise<void> {
  const page = await gallery.open("hub", looks);
  for (const name of Object.keys(pages)) {
    await page.evaluate((shown) => window.gallery.show(window.gallery.pages[shown]!), name);
    await check(page, name);
  }
  await page.close();
}

for (const size of [phone, narrow, wide]) {
  test(`nobody is shut out at ${size.width} pixels`, () =>
    onEveryPage(size, (page, name) => inspect(page, name, size)));
}

for (const [what, size, zoom] of [
  ["a screen of 320 pixels", narrow, 1],
  ["text of twice the size on a phone", phone, 2],
  ["text of twice the size on a wide screen", wide, 2],
] as const) {
  test(`nothing is lost on ${what}`, () =>
    onEveryPage(size, async (page, name) => {
      await page.evaluate((size) => (document.documentElement.style.fontSize = `${size * 100}%`), zoom);
      assert.deepEqual(await page.evaluate(cutOff), [], name);
    }));
}

// All texts of a page, by field names; other strings are values of enumerations.
function wordsIn(part: unknown, field = ""): string[] {
  if (typeof part === "string") return /^(kind|style|tone|weight|name|head|step|format|band|icon|move)$/.test(field) ? [] : [part];
  if (typeof part !== "object" || part === null) return [];
  // Long charts have no table, and a passing line disappears.
  return Object.entries(part).flatMap(([name, inner]) =>
    name === "passing" || (name === "points" && (inner as unknown[]).length > 24) ? [] : wordsIn(inner, Array.isArray(part) ? field : name),
  );
}

for (const size of [phone, wide]) {
  test(`everything that a page says stands on it, to the letter, at ${size.width} pixels`, () =>
    onEveryPage(size, async (page, name) => {
      const shown = await page.evaluate(() =>
        [...document.querySelectorAll<HTMLElement>("#app, #app *")].flatMap((element) => [
          element === document.getElementById("app") ? element.textContent : element.getAttribute("aria-label"),
          element.getAttribute("aria-valuetext"),
          element.getAttribute("alt"),
          (element as HTMLInputElement).value,
        ]),
      );
      // A heading of two lines can be shown in one.
      const inOneLine = (words: string) => words.replace(/\s+/g, " ");
      const all = inOneLine(shown.join("\n"));
      assert.deepEqual(wordsIn(pages[name]).filter((words) => !all.includes(inOneLine(words))), [], name);
    }));
}

test("a finger hits every control: none is under 44 pixels", () =>
  onEveryPage(phone, async (page, name) => {
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
  }));

// Numbers the controls that Tab should reach, and moves the focus to the start. Of radio buttons only the
// checked one of each group counts.
function numberControls(): number {
  const within = document.querySelector("dialog") ?? document;
  const all = [...within.querySelectorAll<HTMLElement>("button, input, textarea, a[href]")].filter(
    (control) =>
      control.closest("[inert]") === null &&
      !(control instanceof HTMLInputElement && control.type === "radio" && !control.checked),
  );
  all.forEach((control, index) => (control.dataset["place"] = String(index)));
  document.body.tabIndex = -1;
  document.body.focus();
  window.scrollTo(0, 0);
  return all.length;
}

// The focused control, and whether it is visible and not covered by the bar or the tabs.
function focusedControl() {
  const control = document.activeElement;
  if (!(control instanceof HTMLElement) || control.dataset["place"] === undefined) return null;
  const box = control.getBoundingClientRect();
  const y = Math.min(Math.max(box.top + box.height / 2, 0), innerHeight - 1);
  const whole = (element: Element | null) => element?.closest(".option, .card, .chart-plot") ?? element;
  const onTop = document.elementFromPoint(box.left + box.width / 2, y);
  const isOnTop = control.contains(onTop) || onTop?.contains(control) || whole(onTop) === whole(control);
  const isSeen = box.bottom > 0 && box.top < innerHeight && isOnTop;
  return { place: Number(control.dataset["place"]), isSeen, what: control.outerHTML.slice(0, 100) };
}

test("the keyboard reaches everything, in its order, and it can be seen", () =>
  onEveryPage(phone, async (page, name) => {
    const wanted = Array.from({ length: await page.evaluate(numberControls) }, (_, place) => place);
    const reached: number[] = [];
    for (let step = 0; step < wanted.length + 2 && reached.length < wanted.length; ++step) {
      await page.keyboard.press("Tab");
      const at = await page.evaluate(focusedControl);
      if (at === null) continue;
      assert.ok(at.isSeen, `${name}: hidden under something: ${at.what}`);
      reached.push(at.place);
    }
    // A dialog has its own initial focus.
    const isDialog = await page.evaluate(() => document.querySelector("dialog") !== null);
    assert.deepEqual(isDialog ? reached.sort((a, b) => a - b) : reached, wanted, name);
  }));
