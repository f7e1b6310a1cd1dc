// Every screen of a working actor, brought in from a file: each read by an accessibility checker in both themes.

import assert from "node:assert/strict";
import { join } from "node:path";
import { test } from "node:test";
import type { Page } from "playwright-core";

import { inspect } from "./inspect";
import { openSaves, stage, startCareer, visit } from "./runtime_site";

const setting = stage();

// An actor of four years, with titles on every step of their way.
const save = join(process.cwd(), "test/saves/working_actor.plist");

// The tab, what is pressed from there on, and what the picture is called. An answer in a notice is a press too.
type Walk = readonly [tab: string, presses: readonly RegExp[], name: string];

const toTheTitlePage = [/^Auditions/, /^Releases/, /Feature Film.*Released/, /^Imbd page/];

const walks: readonly Walk[] = [
  ["Work", [/^Job Board/], "job-board"],
  ["Work", [/^Casting Network/], "casting"],
  ["Work", [/^Casting Network/, /^Read more/], "listing"],
  ["Work", [/^Auditions/], "auditions"],
  ["Work", [/^Auditions/, /^Bookings/, /Wraps in/], "booking"],
  ["Work", [/^Auditions/, /^Releases/, /Feature Film.*Released/], "release"],
  ["Work", toTheTitlePage, "title"],
  ["Work", [...toTheTitlePage, /^Rate this title/, /^8 /], "title-rated"],
  ["Work", [...toTheTitlePage, /^RottenBanana/], "banana"],
  ["Work", [/^Auditions/, /^Releases/, /TV-Series.*Released/, /^Imbd page/], "series"],
  ["Work", [/^Box Office/], "box-office"],
  ["Work", [/^Box Office/, /^Yours/, /RETURN/], "box-office-film"],
  ["Work", [/^Productions/], "productions"],
  ["Work", [/^Top 250/], "top-250"],
  ["Social", [/^Rate a movie/], "rate-a-movie"],
  ["Social", [/^Quotes/], "quotes"],
  ["Wealth", [/^Finances/], "finances"],
  ["Wealth", [/^Balance Sheet/], "balance-sheet"],
  ["Wealth", [/^Weekly Expenses/], "expenses"],
  ["Wealth", [/^Payments/], "payments"],
];

async function bringIn(page: Page): Promise<void> {
  await openSaves(page);
  await page.getByLabel("Bring in a copy").setInputFiles(save);
  await page.getByRole("button", { name: "Replace my career" }).click();
  await page.getByText("Ada Vale").first().waitFor();
}

async function backToTheTabs(page: Page): Promise<void> {
  const back = page.getByRole("button", { name: "Back", exact: true });
  while ((await back.count()) > 0) await back.click();
}

// The figures of the part of the page under that heading, one a row.
const figuresUnder = (page: Page, heading: string): Promise<number[]> =>
  page
    .locator(".section", { has: page.getByRole("heading", { name: heading }) })
    .locator(".row-value")
    .evaluateAll((values) => values.map((value) => Number(value.lastChild!.textContent)));

async function walk(page: Page, tab: string, presses: readonly RegExp[], name: string): Promise<void> {
  await backToTheTabs(page);
  await page.getByRole("navigation").getByRole("button", { name: tab }).click();
  for (const press of presses) {
    const pressed = page.getByRole("button", { name: press }).or(page.getByRole("radio", { name: press })).first();
    assert(await pressed.isVisible(), `${name}: nothing to press for ${String(press)}`);
    await pressed.click();
  }
}

test("every screen of a working actor can be read by everybody", async () => {
  const player = await visit(setting);
  const page = await player.open();
  await startCareer(page, "Somebody Else");
  await bringIn(page);
  for (const [tab, presses, name] of walks) {
    await walk(page, tab, presses, name);
    await inspect(page, `actor-${name}`);
  }
  await player.end();
});

test("a working actor's week adds up, and a film's box office opens at its top", async () => {
  const player = await visit(setting);
  const page = await player.open();
  await startCareer(page, "Somebody Else");
  await bringIn(page);
  await walk(page, "Life", [], "life");
  const taken = await figuresUnder(page, "EVERY WEEK TAKES");
  const inAll = taken.pop()!;
  assert(inAll < 0, "this actor has more roles than are good for anybody");
  assert.equal(
    taken.reduce((sum, energy) => sum + energy, 0),
    inAll,
  );

  await walk(page, "Work", toTheTitlePage, "title");
  await page.getByRole("button", { name: "Box office", exact: true }).click();
  await page.getByText("MARKETS").waitFor();
  assert.equal(await page.evaluate(() => window.scrollY), 0);
  await page.getByRole("button", { name: "Back", exact: true }).click();
  assert.notEqual(await page.evaluate(() => window.scrollY), 0, "the way back leads to where the player was");
  await player.end();
});
