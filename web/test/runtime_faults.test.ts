// The browser's stores fail at each of many calls of a start, a week, a backup, a restore and a switch. The next start
// finds one whole career: as before or as after.

import assert from "node:assert/strict";
import { test } from "node:test";
import type { Page } from "playwright-core";

import {
  finds, liveAWeek, openPicker, play, playOther, press, pressAgain, stage, startAnother, waitForGame,
} from "./runtime_site";

const setting = stage();

interface Faults {
  failsAt: number; // number of the call
  calls: number;
}

// For play(): a fault of the next start comes from the address.
function faulty(): void {
  if (!isSecureContext) return; // an empty page
  const faults: Faults = { failsAt: Number(/^#fails-at-(\d+)$/.exec(location.hash)?.[1] ?? Infinity), calls: 0 };
  Object.assign(globalThis, { faults });
  const breaks = (prototype: object, names: readonly string[]) => {
    for (const name of names) {
      const real = (prototype as Record<string, (...values: unknown[]) => unknown>)[name]!;
      const failing = function (this: unknown, ...values: unknown[]): unknown {
        faults.calls += 1;
        if (faults.calls === faults.failsAt) throw new DOMException("A fault of the test.", "UnknownError");
        return real.apply(this, values);
      };
      Object.defineProperty(prototype, name, { value: failing });
    }
  };
  breaks(IDBDatabase.prototype, ["transaction"]);
  breaks(IDBObjectStore.prototype, ["put", "get", "getAll", "clear", "delete"]);
  breaks(Cache.prototype, ["put", "match", "keys", "delete"]);
}

const faultsOf = (page: Page) => page.evaluate(() => ({ ...(globalThis as unknown as { faults: Faults }).faults }));
const today = (page: Page) => page.locator(".page-subtitle").first().textContent();
const someCalls = [1, 2, 3, 4, 6, 9, 14, 21, 32];

async function startAgain(page: Page): Promise<void> {
  await page.goto("about:blank");
  await page.goto(setting.site.address);
  await waitForGame(page);
}

// Does the action once for each call that fails, as long as it has so many calls, and starts again after each.
async function atEachCall(page: Page, action: () => Promise<void>, check: (call: number) => Promise<void>): Promise<void> {
  for (const failsAt of someCalls) {
    await page.evaluate((at) => {
      Object.assign((globalThis as unknown as { faults: Faults }).faults, { failsAt: at, calls: 0 });
    }, failsAt);
    await action();
    const { calls } = await faultsOf(page);
    await startAgain(page);
    await check(failsAt);
    if (calls < failsAt) return;
  }
}

// Without the notices about failed saves.
async function dismiss(page: Page): Promise<void> {
  const dialog = page.locator("dialog[open]");
  await page.waitForTimeout(400);
  if ((await dialog.count()) > 0) await dialog.getByRole("button", { name: "OK" }).click();
}

async function openBackups(page: Page): Promise<void> {
  await pressAgain(page, "Settings");
  await page.getByRole("button", { name: /^Backups/ }).click();
}

test("a start that fails at any call changes nothing", async () => {
  const { player, page } = await play(setting, "Ada Starts", faulty);
  await liveAWeek(page);
  const left = await today(page);
  for (const failsAt of someCalls.slice(0, 6)) {
    await page.goto("about:blank");
    await page.goto(`${setting.site.address}#fails-at-${failsAt}`);
    await waitForGame(page);
    await startAgain(page);
    assert.equal(await today(page), left, `call ${failsAt}`);
  }
  player.expect(/./, 0);
});

test("a week that fails to be saved at any call is there or not", async () => {
  const { player, page } = await play(setting, "Ada Weeks", faulty);
  let before = await today(page);
  let after = before;
  const week = async () => {
    before = await today(page);
    await liveAWeek(page);
    after = await today(page);
  };
  await atEachCall(page, week, async (call) => {
    const found = await today(page);
    assert(found === before || found === after, `${found} of ${before} and ${after} after call ${call}`);
  });
  player.expect(/./, 0);
});

test("a backup, a restore and a switch that fail at any call leave both careers whole", async () => {
  const { player, page } = await play(setting, "Ada First", faulty);
  await startAnother(page, "Ben Second");
  await atEachCall(
    page,
    async () => {
      await openBackups(page);
      await pressAgain(page, "Back up now");
      await dismiss(page);
    },
    () => finds(page, "Ben Second"),
  );
  await atEachCall(
    page,
    async () => {
      await openBackups(page);
      await page.getByRole("button", { name: /^Restore Week/ }).first().click();
      await press(page, "Restore");
      await dismiss(page);
    },
    () => page.getByText(/Ada First|Ben Second/).first().waitFor(),
  );
  await atEachCall(
    page,
    async () => {
      await openPicker(page);
      await page.getByRole("button", { name: /^Play / }).first().click();
      await dismiss(page);
    },
    async (call) => {
      const isFirst = (await page.getByText("Ada First").count()) > 0;
      await playOther(page, isFirst ? "Ben Second" : "Ada First").catch((error: unknown) => {
        throw new Error(`a career is lost after call ${call}`, { cause: error });
      });
    },
  );
  player.expect(/./, 0);
});
