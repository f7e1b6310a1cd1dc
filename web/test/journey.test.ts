// A career in the real browser: started, lived, trained, left and found again, with every screen on the way read
// by an accessibility checker in both themes. With SCREENSHOTS=<folder> it also keeps a picture of each screen.

import assert from "node:assert/strict";
import { mkdirSync, readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { join } from "node:path";
import { test } from "node:test";
import type { Page } from "playwright-core";

import { nameField, stage, startCareer, visit } from "./runtime_site";

const setting = stage();
const checker = readFileSync(createRequire(join(process.cwd(), "package.json")).resolve("axe-core/axe.min.js"), "utf8");
const pictures = process.env["SCREENSHOTS"];

const press = (page: Page, name: string) => page.getByRole("button", { name, exact: true }).first().click();
const heading = (page: Page, name: string) => page.getByRole("heading", { name, exact: true }).waitFor();
const hubTab = (page: Page, name: string) => page.getByRole("navigation").getByRole("button", { name }).click();

interface Violation {
  id: string;
  nodes: { html: string }[];
}

// The page as it is now, in both themes: no violation, and nothing wider than the screen.
async function inspect(page: Page, name: string): Promise<void> {
  for (const theme of ["light", "dark"] as const) {
    await page.emulateMedia({ colorScheme: theme, reducedMotion: "reduce" });
    // The page's policy lets no script in but its own; the checker comes in by the debugger.
    await page.evaluate(checker);
    const violations = await page.evaluate<Violation[]>(
      "axe.run({ runOnly: ['wcag2a', 'wcag2aa', 'wcag21a', 'wcag21aa', 'wcag22aa', 'best-practice'] }).then((run) => run.violations)",
    );
    assert.deepEqual(violations.map(({ id, nodes }) => `${id}: ${nodes[0]?.html}`), [], `${name}, ${theme}`);
    const sideways = await page.evaluate(() => document.documentElement.scrollWidth - window.innerWidth);
    assert(sideways <= 0, `${name} is ${sideways} px too wide`);
    if (!pictures) continue;
    mkdirSync(pictures, { recursive: true });
    for (const [width, height] of [[390, 844], [1280, 800]] as const) {
      await page.setViewportSize({ width, height });
      await page.screenshot({ path: join(pictures, `${name}-${width}-${theme}.png`) });
    }
    await page.setViewportSize({ width: 390, height: 844 });
  }
}

async function livesWeeks(page: Page, weeks: number): Promise<void> {
  for (let week = 0; week < weeks; week += 1) {
    await press(page, "End Week");
    await heading(page, "REVIEW");
    await press(page, "Close");
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
  await press(page, "Talent");
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
  await page.getByRole("button", { name: /Actors Guild/ }).click();
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
