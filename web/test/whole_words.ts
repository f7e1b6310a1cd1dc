// Text as it can be read: no word and no figure is broken in the middle or cut off, on a narrow screen, with text twice
// as large, or in a system whose faces run wide.

import assert from "node:assert/strict";
import type { Page } from "playwright-core";

import { narrow, phone, type Size } from "./inspect";

// What sticks out of the page to the right, and text that its box cuts off. Runs in the page.
export function cutOff(): string[] {
  const wide = document.documentElement.clientWidth;
  const cut: string[] = [];
  if (document.documentElement.scrollWidth > wide)
    cut.push(`the page is ${document.documentElement.scrollWidth} wide`);
  for (const element of document.querySelectorAll("#app *")) {
    const box = element.getBoundingClientRect();
    if (element.closest("svg, .unseen, .turns .off-reason, .skip, .bar-title, [inert], .is-off") || box.width === 0) continue;
    if (box.right > wide + 1 || box.left < -1) cut.push(`${element.className} ends at ${box.right}`);
    const style = getComputedStyle(element);
    const hides = style.overflowX !== "visible" || style.overflowY !== "visible";
    const scrolls = /auto|scroll/.test(style.overflowX + style.overflowY) || element.matches("input");
    if (hides && !scrolls && element.scrollWidth > element.clientWidth + 1)
      cut.push(`${element.className} hides its content`);
  }
  return cut;
}

// Words that begin on one line and end on another; after a hyphen or a dash a line may end, and between the words of
// a name like Ada_onTheAisle. Runs in the page.
function brokenWords(): string[] {
  const broken: string[] = [];
  const words = document.createTreeWalker(document.getElementById("app")!, NodeFilter.SHOW_TEXT);
  for (let node = words.nextNode(); node !== null; node = words.nextNode()) {
    const place = node.parentElement!;
    // The names that viewers invent may be longer than a line.
    if (place.closest("svg, .unseen, .turns .off-reason, .skip, .bar-title, .stars-label, [inert]")) continue;
    for (const { 0: word, index } of (node as Text).data.matchAll(/\p{Lu}?[^\s\u00ad\u2010-\u2014/_\p{Lu}-]+|\p{Lu}+/gu)) {
      const range = document.createRange();
      range.setStart(node, index);
      range.setEnd(node, index + word.length);
      const lines = new Set([...range.getClientRects()].filter(({ width }) => width > 0).map(({ top }) => Math.round(top)));
      if (lines.size > 1) broken.push(`${word} in ${place.className || place.tagName} of ${place.closest("[class]")!.parentElement!.className}`);
    }
  }
  return broken;
}

interface Setting {
  readonly what: string;
  readonly size: Size;
  readonly style: string; // of the root element
}

const settings: readonly Setting[] = [
  { what: "at 320 pixels", size: narrow, style: "" },
  { what: "with text twice as large", size: phone, style: "font-size: 200%" },
  { what: "in a wide face", size: phone, style: '--font: "DejaVu Sans"; --font-display: "DejaVu Sans"' },
];

export async function keepsWordsWhole(page: Page, name: string): Promise<void> {
  const dress = (style: string) =>
    page.evaluate((shown) => void (document.documentElement.style.cssText = shown), style);
  for (const { what, size, style } of settings) {
    await page.setViewportSize(size);
    await dress(style);
    assert.deepEqual([...(await page.evaluate(brokenWords)), ...(await page.evaluate(cutOff))], [], `${name} ${what}`);
  }
  await dress("");
  await page.setViewportSize(phone);
}
