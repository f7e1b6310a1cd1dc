// What was played is there again, whatever the browser did in between; and a player who plays without a save
// knows it.

import assert from "node:assert/strict";
import { test } from "node:test";
import type { Page } from "playwright-core";

import { fill, fillable, nameField, stage, startCareer, visit, waitForGame } from "./runtime_site";

const setting = stage();

const readsCareerOf = (page: Page, name: string) => page.getByText(name).first().waitFor();

test("a reload right after a press finds the career", async () => {
  const player = await visit(setting);
  const page = await player.open();
  await nameField(page).fill("Ada Reload");
  await nameField(page).blur();
  // The reload begins in the same task as the press.
  await page.getByRole("button", { name: "Start my career" }).evaluate((button) => {
    (button as HTMLElement).click();
    location.reload();
  });
  await readsCareerOf(page, "Ada Reload");
  await player.end();
});

test("a tab that is closed right after a press finds the career", async () => {
  const player = await visit(setting);
  const page = await player.open();
  await nameField(page).fill("Ada Closed");
  await nameField(page).blur();
  await page.getByRole("button", { name: "Start my career" }).evaluate((button) => (button as HTMLElement).click());
  await page.close();
  await readsCareerOf(await player.open(), "Ada Closed");
  await player.end();
});

const refusals = {
  "is not there": () => Object.defineProperty(globalThis, "indexedDB", { value: undefined }),
  "is refused": () => {
    IDBFactory.prototype.open = () => {
      throw new DOMException("The operation is insecure.", "SecurityError");
    };
  },
  "never answers": () => {
    IDBFactory.prototype.open = () => new EventTarget() as IDBOpenDBRequest;
  },
  "can't be read": () => {
    IDBObjectStore.prototype.getAll = () => {
      throw new DOMException("", "UnknownError");
    };
  },
};

for (const [how, script] of Object.entries(refusals)) {
  test(`where storage ${how}, the game plays and says that it can't save`, async () => {
    const player = await visit(setting, script);
    const page = await player.open();
    await page.getByRole("status").filter({ hasText: /nothing of it is saved|does not let the game save/ }).waitFor();
    await startCareer(page, "Ada Private");
    await player.end();
  });
}

test("a device without room is told of once, and the career is whole once there is room again", async () => {
  const player = await visit(setting, fillable);
  const page = await player.open();
  await waitForGame(page);
  await fill(page, true);
  await startCareer(page, "Ada Full");

  const dialog = page.getByRole("dialog").filter({ hasText: "Not Saved" });
  await dialog.waitFor();
  assert.match(await dialog.innerText(), /no room left/);
  await dialog.getByRole("button", { name: "OK" }).click();
  await dialog.waitFor({ state: "detached" });

  // Playing on is possible, and the dialog does not come again with each save that fails.
  const notice = page.getByRole("status").filter({ hasText: "Not saved" });
  await liveAWeek(page);
  assert.equal(await dialog.count(), 0);
  assert.equal(await notice.count(), 1);

  await fill(page, false);
  await liveAWeek(page);
  await notice.waitFor({ state: "detached" });
  await page.reload();
  await readsCareerOf(page, "Ada Full");
  await player.end();
});

test("a browser that throws the save away while the game is open gets it back whole", async () => {
  const player = await visit(setting);
  const page = await player.open();
  await startCareer(page, "Ada Evicted");
  const session = await player.context.newCDPSession(page);
  await session.send("Storage.clearDataForOrigin", { origin: setting.site.origin, storageTypes: "indexeddb" });
  await page.waitForFunction(async () => {
    const [database] = await indexedDB.databases();
    return database !== undefined;
  });
  await liveAWeek(page);
  await page.reload();
  await readsCareerOf(page, "Ada Evicted");
  await player.end();
});

// Something that the game saves.
async function liveAWeek(page: Page): Promise<void> {
  await page.getByRole("button", { name: "End Week" }).click();
  await page.getByRole("button", { name: "Close", exact: true }).click();
  await page.getByRole("button", { name: "End Week" }).waitFor();
}
