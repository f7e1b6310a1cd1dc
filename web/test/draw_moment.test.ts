// Moments are played once, are skipped by any press, and are absent with reduced motion.

import assert from "node:assert/strict";
import { test } from "node:test";
import type { Page } from "playwright-core";

import type * as View from "../src/view_types";
import { setGallery } from "./draw_browser";
import * as make from "./gallery_nodes";

const gallery = setGallery();

const booked = (number: number): View.Moment[] => [
  make.moment({ title: "BOOKED", line: "Two Hats • Lead", number, picture: [make.picture("poster", "Two Hats")] }),
];
const pressable = (moment: readonly View.Moment[] = [], rest: Partial<View.Page> = {}) =>
  make.page({
    nodes: Array.from({ length: 12 }, (_, index) => make.row({ label: `Row ${index}`, handle: index + 1 })),
    moment,
    ...rest,
  });
const show = (page: Page, shown: View.Page) => page.evaluate((given) => window.gallery.show(given), shown);

// Shows a page and pauses its moment. Returns the moment's duration in milliseconds.
const begin = (page: Page, shown: View.Page) =>
  page.evaluate((given) => {
    window.gallery.show(given);
    if (document.querySelector(".moment .is-missing")) throw new Error("the scene begins without its poster");
    const running = document.querySelector(".moment")?.getAnimations({ subtree: true }) ?? [];
    for (const each of running) each.pause();
    return Math.max(...running.map((each) => Number(each.effect!.getComputedTiming().endTime)));
  }, shown);
const letGo = (page: Page) =>
  page.evaluate(() => {
    for (const each of document.querySelector(".moment")!.getAnimations({ subtree: true })) each.play();
  });
const playing = (page: Page) => page.locator(".moment").count();
const done = (page: Page) => page.evaluate(() => window.gallery.done.length);
const over = (page: Page) => page.waitForFunction(() => document.querySelector(".moment") === null);

test("a moment plays for less than a second, once, and is told to who does not see it", async () => {
  const page = await gallery.open("hub", { still: false });
  const scenes: readonly View.MomentScene[] = ["deal", "curtain", "marquee", "envelope", "glow", "tabloid"];
  for (const [index, scene] of scenes.entries()) {
    const length = await begin(page, pressable(booked(index + 1).map((each) => ({ ...each, scene }))));
    assert.ok(length >= 600 && length <= 900, `${scene}: ${length} ms`);
    assert.equal(await page.locator("[data-news]").textContent(), "BOOKED: Two Hats • Lead.");
    await show(page, pressable()); // a redraw: it continues
    assert.equal(await playing(page), 1);
    await letGo(page);
    await over(page);
  }
  await show(page, pressable(booked(6), { screen: 2 })); // returned to
  assert.equal(await playing(page), 0);
});

test("the press that skips a moment is not a press on what is under it; the next one is", async () => {
  const page = await gallery.open("hub", { still: false });
  await show(page, pressable());
  const row = (await page.getByRole("button", { name: "Row 2", exact: true }).boundingBox())!;
  const at = [row.x + row.width / 2, row.y + row.height / 2] as const;
  let number = 0;
  const skips = [
    () => page.mouse.click(...at),
    () => page.mouse.click(...at, { delay: 120 }),
    async () => {
      await page.getByRole("button", { name: "Row 2", exact: true }).focus();
      await page.keyboard.press("Enter");
    },
  ];
  for (const skip of skips) {
    number += 1;
    await begin(page, pressable(booked(number)));
    await skip();
    await over(page);
    assert.equal(await done(page), number - 1);
    await page.mouse.click(...at);
    assert.equal(await done(page), number);
  }
});

test("where no motion is asked for there is no scene, only its words", async () => {
  const page = await gallery.open("hub");
  await show(page, pressable(booked(1)));
  assert.equal(await playing(page), 0);
  assert.equal(await page.locator("[data-news]").textContent(), "BOOKED: Two Hats • Lead.");
  await page.emulateMedia({ reducedMotion: "no-preference" });
  await show(page, pressable(booked(1)));
  assert.equal(await playing(page), 0, "not even later");
});

test("a message comes first: a moment under it is let go", async () => {
  const page = await gallery.open("hub", { still: false });
  const dialog = make.dialog("Not saved", "Try again.", make.plainButton({ label: "OK" }));
  await show(page, pressable(booked(1), { dialog }));
  assert.equal(await playing(page), 0);
});
