// The game is saved in spite of reloads and storage errors, and the player is told when it can't be.

import assert from "node:assert/strict";
import { test } from "node:test";

import { inspect } from "./inspect";
import {
  fill, fillable, finds, liveAWeek, nameField, play, says, stage, startCareer, visit, waitForGame, withoutStorage,
} from "./runtime_site";

const setting = stage();

test("a reload right after a press finds the career", async () => {
  const page = await (await visit(setting)).open();
  await nameField(page).fill("Ada Reload");
  await nameField(page).blur();
  // Reloads in the same task as the press.
  await page.getByRole("button", { name: "Start my career" }).evaluate((button) => {
    (button as HTMLElement).click();
    location.reload();
  });
  await finds(page, "Ada Reload");
});

test("a tab that is closed right after a press finds the career", async () => {
  const player = await visit(setting);
  const page = await player.open();
  await nameField(page).fill("Ada Closed");
  await nameField(page).blur();
  await page.getByRole("button", { name: "Start my career" }).evaluate((button) => (button as HTMLElement).click());
  await page.close();
  await finds(await player.open(), "Ada Closed");
});

const refused = /does not let the game save/;
const unreadable = /nothing of it is saved/;
const refusals: readonly (readonly [how: string, says: RegExp, script: () => void])[] = [
  ["is not there", refused, withoutStorage],
  [
    "is refused",
    refused,
    () => {
      IDBFactory.prototype.open = () => {
        throw new DOMException("The operation is insecure.", "SecurityError");
      };
    },
  ],
  [
    "never answers",
    refused,
    () => {
      const silence = { addEventListener: () => undefined, removeEventListener: () => undefined };
      IDBFactory.prototype.open = () => Object.assign(Object.create(IDBOpenDBRequest.prototype), silence);
    },
  ],
  [
    "can't be read",
    unreadable,
    () => {
      IDBObjectStore.prototype.getAll = () => {
        throw new DOMException("", "UnknownError");
      };
    },
  ],
];

for (const [how, words, script] of refusals) {
  test(`where storage ${how}, the game plays and says that it can't save`, async () => {
    const page = await (await visit(setting, script)).open();
    await says(page, words);
    await startCareer(page, "Ada Private");
  });
}

test("a device without room is told of once, and the career is whole once there is room again", async () => {
  const page = await (await visit(setting, fillable)).open();
  await waitForGame(page);
  await fill(page, true);
  await startCareer(page, "Ada Full");

  const dialog = page.getByRole("dialog").filter({ hasText: "Not Saved" });
  await dialog.waitFor();
  assert.match(await dialog.innerText(), /no room left/);
  await dialog.getByRole("button", { name: "OK" }).click();
  await dialog.waitFor({ state: "detached" });

  // The game continues, and the dialog is shown only once.
  const notice = page.getByRole("status").filter({ hasText: "Not saved" });
  await liveAWeek(page);
  assert.equal(await dialog.count(), 0);
  assert.equal(await notice.count(), 1);
  await inspect(page, "not-saved");

  await fill(page, false);
  await liveAWeek(page);
  await notice.waitFor({ state: "detached" });
  await page.reload();
  await finds(page, "Ada Full");
});

test("a browser is asked to keep the save, and one that throws it away while the game is open gets it back whole", async () => {
  const { player, page } = await play(setting, "Ada Evicted", () => {
    if (isSecureContext) navigator.storage.persist = async () => Boolean((document.documentElement.title = "asked"));
  });
  await page.getByTitle("asked").waitFor();
  const session = await player.context.newCDPSession(page);
  await session.send("Storage.clearDataForOrigin", { origin: setting.site.origin, storageTypes: "indexeddb" });
  await page.waitForFunction(async () => (await indexedDB.databases()).length > 0);
  await liveAWeek(page);
  await page.reload();
  await finds(page, "Ada Evicted");
});
