// Slots, backups and the bank in the browser's storage.

import assert from "node:assert/strict";
import { test } from "node:test";

import { inspect } from "./inspect";
import {
  choose, fill, fillable, finds, openPicker, openSaves, play, playOther, press, pressAgain, stage, startAnother,
  withoutStorage, workingActor,
} from "./runtime_site";

const setting = stage();

for (const [how, ...scripts] of [["saved"], ["played in memory alone", withoutStorage]] as const) {
  test(`careers that are ${how} are played side by side`, async () => {
    const { page } = await play(setting, "Ada First", ...scripts);
    await startAnother(page, "Ben Second");
    if (how === "saved") {
      await page.reload();
      await finds(page, "Ben Second");
    }
    await openPicker(page);
    await inspect(page, "slots");
    await pressAgain(page, "Back");
    await pressAgain(page, "Back");
    for (const name of ["Ada First", "Ben Second", "Ada First"]) await playOther(page, name);
    if (how !== "saved") return;
    await page.reload();
    await finds(page, "Ada First");
  });
}

test("a career that another one replaced is among the backups", async () => {
  const { page } = await play(setting, "Ada Replaced");
  await openSaves(page);
  await choose(page, workingActor());
  await press(page, "Replace my career");
  await finds(page, "Ada Vale");
  await page.reload();
  await finds(page, "Ada Vale");
  await pressAgain(page, "Settings");
  await page.getByRole("button", { name: /^Backups/ }).click();
  await page.getByText("Ada Replaced").waitFor();
  await inspect(page, "backups");
  await page.getByRole("button", { name: /^Restore Week/ }).click();
  await press(page, "Restore");
  await press(page, "OK");
  await finds(page, "Ada Replaced");
});

test("a career is still saved where there is no room for its backup", async () => {
  const { page } = await play(setting, "Ada Large", fillable);
  await pressAgain(page, "Settings");
  await page.getByRole("button", { name: /^Backups/ }).click();
  await fill(page, true);
  await pressAgain(page, "Back up now");
  await page.getByText("There was no room for the backup.").waitFor();
  assert.equal(await page.getByRole("button", { name: /^Restore Week/ }).count(), 0);
  await fill(page, false);
  await pressAgain(page, "Back");
  await pressAgain(page, "Back");
  await startAnother(page, "Ben After");
  await page.reload();
  await finds(page, "Ben After");
  assert.equal(await page.getByRole("status").filter({ hasText: "Not saved" }).count(), 0);
});
