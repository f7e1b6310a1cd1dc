// The shell's own pages and notices can be used by everybody, as the game's can.

import { test } from "node:test";

import { inspect } from "./inspect";
import { breakable, breakFrom, fill, fillable, openSaves, stage, startCareer, visit } from "./runtime_site";

const setting = stage();

test("nobody is shut out of the saves", async () => {
  const player = await visit(setting);
  const page = await player.open();
  await startCareer(page, "Ada Access");
  await openSaves(page);
  await inspect(page, "saves");

  const [file] = await Promise.all([
    page.waitForEvent("download"),
    page.getByRole("button", { name: "Download a copy" }).click(),
  ]);
  await page.getByLabel("Bring in a copy").setInputFiles(await file.path());
  await page.getByRole("button", { name: "Replace my career" }).waitFor();
  await inspect(page, "saves-question");
  await player.end();
});

test("nobody is shut out when the game is elsewhere, does not save, or stopped", async () => {
  const player = await visit(setting, fillable, breakable);
  const page = await player.open();
  await startCareer(page, "Ada Access");
  const second = await player.open();
  await second.getByRole("button", { name: "Play here" }).waitFor();
  await inspect(second, "elsewhere");
  await second.close();

  await fill(page, true);
  await page.getByRole("button", { name: "End Week" }).click();
  await page.getByRole("dialog").getByRole("button", { name: "OK" }).click();
  await page.getByRole("status").filter({ hasText: "Not saved" }).waitFor();
  await inspect(page, "not-saved");

  await breakFrom(page, "press");
  await page.getByRole("button", { name: "Close" }).click();
  await page.getByRole("heading", { name: "Cut!" }).waitFor();
  await inspect(page, "stopped");
  player.complaints.length = 0; // the trap is logged
  await player.end();
});
