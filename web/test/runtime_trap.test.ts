// When the game traps, the player is told and can continue from the last save.

import assert from "node:assert/strict";
import { test } from "node:test";
import type { Locator, Page } from "playwright-core";

import { inspect } from "./inspect";
import {
  breakable, breakFrom, choose, download, finds, heading, liveAWeek, nameField, openSaves, play, press, pressAgain, says,
  stage, visit, waitForGame, workingActor,
} from "./runtime_site";

const setting = stage();

const turnToAnotherTab = (page: Page) => page.getByRole("navigation").getByRole("button").last().click();
const stopped = (page: Page) => heading(page, "Cut!");
const trap = /unreachable/; // logged by the browser

// Stops the game, goes on and stops it again: only then the offer is made.
async function stopTwice(page: Page, offer: Locator): Promise<void> {
  await breakFrom(page, "press");
  await turnToAnotherTab(page);
  await stopped(page);
  assert.equal(await offer.count(), 0);
  await breakFrom(page, "");
  await press(page, "Go on from the last save");
  await waitForGame(page);
  await breakFrom(page, "press");
  await turnToAnotherTab(page);
  await stopped(page);
  await offer.waitFor();
}

test("after a trap the player goes on from the last save, in a new game", async () => {
  const { player, page } = await play(setting, "Ada Cut", breakable);
  await breakFrom(page, "press");
  await turnToAnotherTab(page);
  await stopped(page);
  await inspect(page, "stopped");

  await breakFrom(page, "");
  await press(page, "Go on from the last save");
  await finds(page, "Ada Cut");
  await turnToAnotherTab(page);
  await waitForGame(page);
  player.expect(trap);
});

test("a game that stops again offers the week before", async () => {
  const { player, page } = await play(setting, "Ada Before", breakable);
  await liveAWeek(page);
  await liveAWeek(page);
  const offer = page.getByRole("button", { name: "Back to week 2 of 2026, before it ended" });
  await stopTwice(page, offer);
  await inspect(page, "stopped-again-week");
  await breakFrom(page, "");
  await offer.click();
  await page.getByText("JANUARY 9, 2026").first().waitFor();
  await page.reload();
  await page.getByText("JANUARY 9, 2026").first().waitFor();
  player.expect(trap);
});

test("a game that stops again offers its newest backup, and keeps the career among the backups", async () => {
  const { player, page } = await play(setting, "Ada Again", breakable);
  await pressAgain(page, "Settings");
  await page.getByRole("button", { name: /^Backups/ }).click();
  await pressAgain(page, "Back up now");
  await page.getByText("Ada Again").first().waitFor();
  await pressAgain(page, "Back");
  await pressAgain(page, "Back");
  await liveAWeek(page);
  const offer = page.getByRole("button", { name: "Go back to the backup" });
  await stopTwice(page, offer);
  assert((await download(page, "Download a copy now")).includes("Ada Again"));
  await page.getByText("Ada Again, JANUARY 2, 2026").waitFor();
  await inspect(page, "stopped-again");
  await breakFrom(page, "");
  await offer.click();
  await page.getByText("JANUARY 2, 2026").first().waitFor();
  await pressAgain(page, "Settings");
  await page.getByRole("button", { name: /^Backups/ }).click();
  assert.equal(await page.getByRole("button", { name: /^Restore Week/ }).count(), 2);
  player.expect(trap);
});

test("a career that does not start can be taken out as a file", async () => {
  const { player, page } = await play(setting, "Ada Stuck", breakable);
  await breakFrom(page, "press start");
  await turnToAnotherTab(page);
  await stopped(page);
  await press(page, "Go on from the last save");
  await stopped(page);

  await openSaves(page);
  assert((await download(page)).includes("Ada Stuck"));
  player.expect(trap);
});

test("a file whose career stops the game is not brought in", async () => {
  const { page } = await play(setting, "Ada Careful", breakable);
  await openSaves(page);
  await breakFrom(page, "start");
  await choose(page, workingActor());
  await says(page, "can't be opened");
  await press(page, "Close");
  await finds(page, "Ada Careful");
});

test("without the game's program the page says so, and tries again", async () => {
  const player = await visit(setting);
  await player.context.route("**/*.wasm", (route) => route.abort());
  const page = await player.open();
  await heading(page, "The game did not load");
  await inspect(page, "not-loaded");
  await player.context.unroute("**/*.wasm");
  await press(page, "Try again");
  await nameField(page).waitFor();
  player.expect(/./); // the browser's errors about failed requests
});
