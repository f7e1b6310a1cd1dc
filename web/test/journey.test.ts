// A career in the real browser: started, lived, trained, left and found again, with every screen on the way read
// by an accessibility checker in both themes.

import assert from "node:assert/strict";
import { test } from "node:test";
import type { Page } from "playwright-core";

import { inspect } from "./inspect";
import { nameField, stage, startCareer, visit } from "./runtime_site";

const setting = stage();

const press = (page: Page, name: string) => page.getByRole("button", { name, exact: true }).first().click();
const heading = (page: Page, name: string) => page.getByRole("heading", { name, exact: true }).waitFor();
const hubTab = (page: Page, name: string) => page.getByRole("navigation").getByRole("button", { name }).click();

async function livesWeeks(page: Page, weeks: number): Promise<void> {
  for (let week = 0; week < weeks; week += 1) {
    await press(page, "End Week");
    await heading(page, "REVIEW");
    await press(page, "Carry on");
    await page.getByRole("button", { name: "End Week" }).waitFor();
  }
}

test("a career starts, lives ten weeks, and is found again after a reload", async () => {
  const player = await visit(setting);
  const page = await player.open();
  await nameField(page).waitFor();
  await inspect(page, "form");
  await startCareer(page, "Ada Vale");
  await inspect(page, "home");

  await hubTab(page, "Work");
  await inspect(page, "work");
  await page.getByRole("button", { name: /^Talent/ }).click();
  await heading(page, "Talent");
  await page.getByRole("button", { name: /^Train to 2/ }).first().click();
  await inspect(page, "talent");
  await press(page, "Back");

  await livesWeeksFromHome(page, 10);
  await inspect(page, "home-later");
  for (const tab of ["Social", "Life", "Wealth", "Home"]) {
    await hubTab(page, tab);
    await inspect(page, tab.toLowerCase());
  }
  const before = await page.getByRole("main").innerText();
  await page.reload();
  await page.getByRole("button", { name: "End Week" }).waitFor();
  assert.equal(await page.getByRole("main").innerText(), before);
  await player.end();
});

async function livesWeeksFromHome(page: Page, weeks: number): Promise<void> {
  await hubTab(page, "Home");
  await livesWeeks(page, weeks);
}

test("every other screen can be read and left", async () => {
  const player = await visit(setting);
  const page = await player.open();
  await startCareer(page, "Ada Reader");
  await press(page, "End Week");
  await heading(page, "REVIEW");
  await inspect(page, "summary");
  await press(page, "Close");

  await hubTab(page, "Work");
  await page.getByRole("button", { name: /Acting Classes/ }).click();
  await inspect(page, "classes");
  await page.getByRole("button", { name: /Sign up/ }).first().click();
  await page.getByRole("dialog").waitFor();
  await inspect(page, "notice");
  await page.getByRole("dialog").getByRole("button", { name: "OK" }).click();
  await press(page, "Back");

  await press(page, "The Backstage");
  await inspect(page, "backstage");
  await page.getByRole("button", { name: /Showreel/ }).click();
  await inspect(page, "showreel");
  await page.getByRole("button", { name: /Choose footage/ }).click();
  await inspect(page, "footage");
  await press(page, "Back");
  await press(page, "Back");
  await page.getByRole("button", { name: /Actor's Guild/ }).click();
  await inspect(page, "guild");
  await press(page, "Back");
  await press(page, "Back");

  await press(page, "Settings");
  await inspect(page, "settings");
  await press(page, "Restart?");
  await page.getByRole("dialog").getByRole("button", { name: "Restart", exact: true }).click();
  await nameField(page).waitFor();
  await player.end();
});
