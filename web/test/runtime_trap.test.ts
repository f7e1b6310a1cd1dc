// When the game stops in the middle of something: the player is told, and goes on from the last save.

import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { test } from "node:test";
import type { Page } from "playwright-core";

import { breakable, breakFrom, openSaves, stage, startCareer, visit, waitForGame } from "./runtime_site";

const setting = stage();

const stopped = (page: Page) => page.getByRole("heading", { name: "Cut!" }).waitFor();

function expectTrap(complaints: string[]): void {
  assert(complaints.length > 0, "the trap was not logged");
  assert(complaints.every((complaint) => complaint.includes("unreachable")), complaints.join("\n"));
  complaints.length = 0;
}

test("after a trap the player goes on from the last save, in a new game", async () => {
  const player = await visit(setting, breakable);
  const page = await player.open();
  await startCareer(page, "Ada Cut");
  await breakFrom(page, "press");
  await page.getByRole("navigation").getByRole("button").last().click();
  await stopped(page);

  await breakFrom(page, "");
  await page.getByRole("button", { name: "Go on from the last save" }).click();
  await page.getByText("Ada Cut").first().waitFor();
  await page.getByRole("navigation").getByRole("button").last().click();
  await waitForGame(page);
  expectTrap(player.complaints);
  await player.end();
});

test("a career that does not start can be taken out as a file", async () => {
  const player = await visit(setting, breakable);
  const page = await player.open();
  await startCareer(page, "Ada Stuck");
  await breakFrom(page, "press start");
  await page.getByRole("navigation").getByRole("button").last().click();
  await stopped(page);
  await page.getByRole("button", { name: "Go on from the last save" }).click();
  await stopped(page);

  await openSaves(page);
  const [file] = await Promise.all([
    page.waitForEvent("download"),
    page.getByRole("button", { name: "Download a copy" }).click(),
  ]);
  assert(readFileSync(await file.path()).includes("Ada Stuck"));
  expectTrap(player.complaints);
  await player.end();
});

test("a file whose career stops the game is not brought in", async () => {
  const player = await visit(setting, breakable);
  const page = await player.open();
  await startCareer(page, "Ada Careful");
  await openSaves(page);
  const [file] = await Promise.all([
    page.waitForEvent("download"),
    page.getByRole("button", { name: "Download a copy" }).click(),
  ]);
  await breakFrom(page, "start");
  await page.getByLabel("Bring in a copy").setInputFiles(await file.path());
  await page.getByRole("status").filter({ hasText: "can't be opened" }).waitFor();
  await page.getByRole("button", { name: "Close" }).click();
  await page.getByText("Ada Careful").first().waitFor();
  await player.end();
});

test("without the game's program the page says so, and tries again", async () => {
  const player = await visit(setting);
  await player.context.route("**/*.wasm", (route) => route.abort());
  const page = await player.open();
  await page.getByRole("heading", { name: "did not load" }).waitFor();
  await player.context.unroute("**/*.wasm");
  await page.getByRole("button", { name: "Try again" }).click();
  await page.getByLabel("Stage name").waitFor();
  assert(player.complaints.length > 0);
  player.complaints.length = 0; // the browser complains about what it could not fetch
  await player.end();
});
