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

test("every screen of a working actor can be read by everybody", async () => {
  const player = await visit(setting);
  const page = await player.open();
  await startCareer(page, "Somebody Else");
  await bringIn(page);
  for (const [tab, presses, name] of walks) {
    await backToTheTabs(page);
    await page.getByRole("navigation").getByRole("button", { name: tab }).click();
    for (const press of presses) {
      const pressed = page.getByRole("button", { name: press }).or(page.getByRole("radio", { name: press })).first();
      assert(await pressed.isVisible(), `${name}: nothing to press for ${String(press)}`);
      await pressed.click();
    }
    await inspect(page, `actor-${name}`);
  }
  await player.end();
});
