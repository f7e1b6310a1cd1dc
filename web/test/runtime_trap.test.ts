// When the game traps, the player is told and can continue from the last save.

import assert from "node:assert/strict";
import { test } from "node:test";
import type { Page } from "playwright-core";

import { inspect } from "./inspect";
import {
  breakable, breakFrom, choose, download, finds, heading, nameField, openSaves, play, press, says, stage, visit,
  waitForGame, workingActor,
} from "./runtime_site";

const setting = stage();

const turnToAnotherTab = (page: Page) => page.getByRole("navigation").getByRole("button").last().click();
const stopped = (page: Page) => heading(page, "Cut!");
const trap = /unreachable/; // logged by the browser

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
