// The game is saved in spite of reloads and storage errors, and the player is told when it can't be.

import assert from "node:assert/strict";
import { test } from "node:test";

import { inspect } from "./inspect";
import {
  download, fill, fillable, finds, liveAWeek, nameField, play, says, stage, startCareer, visit, waitForGame, withoutCopy, withoutStorage,
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
const unreadable = /Loading the page again may help/;
const newer = /saved by a newer version of the game/;
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
  [
    "belongs to a newer version",
    newer,
    () => {
      const open = IDBFactory.prototype.open;
      IDBFactory.prototype.open = function ofNewerVersion(name, version) {
        const newer = open.call(this, name, Number(version) + 1);
        newer.addEventListener("success", () => newer.result.close());
        return open.call(this, name, version);
      };
    },
  ],
];

// In a page that does not play: the stored career as version 1 of the database had it.
async function makeOld(): Promise<void> {
  const done = <T,>(request: IDBRequest<T>) =>
    new Promise<T>((resolve, reject) => {
      request.onsuccess = () => resolve(request.result);
      request.onerror = () => reject(request.error);
    });
  const now = await done(indexedDB.open("top-billing"));
  const pieces = await done(now.transaction("pieces").objectStore("pieces").getAll());
  now.close();
  await done(indexedDB.deleteDatabase("top-billing"));
  await caches.delete("second copy of the save");
  const opening = indexedDB.open("top-billing", 1);
  opening.onupgradeneeded = () => {
    const store = opening.result.createObjectStore("pieces", { keyPath: ["key", "piece"] });
    opening.result.createObjectStore("aside", { keyPath: ["key", "piece", "bytes"] });
    for (const piece of pieces) store.put(piece);
  };
  (await done(opening)).close();
}

test("a career of an older version is opened and belongs to this one from then on", async () => {
  const { player, page } = await play(setting, "Ada Older");
  // With its worker the site answers every address with the game, which would keep the database open.
  await page.evaluate(async () => {
    for (const worker of await navigator.serviceWorker.getRegistrations()) await worker.unregister();
  });
  await page.goto(`${setting.site.address}manifest.webmanifest`);
  await page.evaluate(makeOld);
  await page.goto(setting.site.address);
  await finds(page, "Ada Older");
  player.expect(/404/, 0); // an icon for the manifest, which the browser may ask for
  assert.deepEqual(await page.evaluate(() => indexedDB.databases()), [{ name: "top-billing", version: 6 }]);
  await player.end();
});

for (const [how, words, script] of refusals) {
  test(`where storage ${how}, the game plays and says that it can't save`, async () => {
    const page = await (await visit(setting, script)).open();
    await says(page, words);
    await startCareer(page, "Ada Private");
  });
}

test("a device without room is told of once, and the career is whole once there is room again", async () => {
  const page = await (await visit(setting, fillable, withoutCopy)).open();
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
  await says(page, "saved all the same");
  await download(page, "Download a copy now");
  await page.getByRole("button", { name: "Download a copy now" }).waitFor({ state: "detached" });
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
