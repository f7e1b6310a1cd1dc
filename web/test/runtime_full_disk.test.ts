// The career survives a full disk under the browser's profile.

import assert from "node:assert/strict";
import { cpSync, mkdtempSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { test } from "node:test";
import type { BrowserContext, Page } from "playwright-core";

import { inspect } from "./inspect";
import {
  download, liveAWeek, playOther, says, stage, startAnother, startCareer, storyOption, waitForGame,
} from "./runtime_site";
import { canMount, openProfile, SmallDisk } from "./small_disk";

const setting = stage();

// Ends a week from the hub and returns to it, past what the game says about failed saves.
async function liveOn(page: Page): Promise<void> {
  const dialog = page.locator("dialog[open]");
  const step = async (name: string, leadsTo: string) => {
    const next = page.getByRole("button", { name: leadsTo, exact: true });
    const press = (button = name, place: Page | typeof dialog = page) =>
      place.getByRole("button", { name: button, exact: true }).click({ timeout: 400 }).catch(() => undefined);
    for (;;) {
      await page.waitForTimeout(400);
      if ((await dialog.count()) > 0) await press("OK", dialog);
      else if ((await next.count()) > 0) return;
      else if ((await storyOption(page).count()) > 0) await storyOption(page).click();
      else await press();
    }
  };
  await step("End Week", "Carry on");
  await step("Carry on", "End Week");
}

const today = (page: Page) => page.locator(".page-subtitle").textContent();

// What a browser does to a database that a full disk has torn.
const loseDatabase = (profile: string) => rmSync(join(profile, "Default/IndexedDB"), { recursive: true });

async function openGame(context: BrowserContext): Promise<Page> {
  const page = await context.newPage();
  await page.goto(setting.site.address);
  await waitForGame(page);
  return page;
}

// Until then a career is only in the database.
async function waitForSecondCopy(page: Page): Promise<void> {
  await page.waitForFunction(async () => {
    const names = (await (await caches.open("second copy of the save")).keys()).map(({ url }) => url);
    return names.some((name) => name.endsWith("room")) && names.length > 2;
  });
}

// Whether the last week was saved, as the notice says; what it offers works. There is none when the browser has
// freed room on the disk by itself.
async function wasSaved(page: Page): Promise<boolean> {
  const isNoticed = await says(page, /Keep a copy of your own|You can play on/).then(() => true, () => false);
  if (!isNoticed) return true;
  const isSaved = (await page.getByText("Keep a copy of your own").count()) > 0;
  assert((await download(page, "Download a copy now")).includes("Ada Full"));
  return isSaved;
}

const skip = !canMount && "this system lets the test mount no disk of its own";

test("ten weeks on a full disk are there at the next starts, the disk still full or the database gone", { skip }, async () => {
  const disk = await SmallDisk.make(64, setting.site.origin);
  try {
    const context = await disk.openBrowser();
    const page = await openGame(context);
    await startCareer(page, "Ada Full");
    await liveAWeek(page);
    await waitForSecondCopy(page);
    disk.fill();
    for (let week = 0; week < 10; week += 1) await liveOn(page);
    let saved = [await today(page)];
    await says(page, "Keep a copy of your own");
    assert(await wasSaved(page));
    await context.close();

    for (let start = 0; start < 3; start += 1) {
      disk.fill();
      const full = await disk.openBrowser();
      const found = await openGame(full);
      const before = await today(found);
      assert(saved.includes(before), `${before} instead of ${saved.join(" or ")}`);
      disk.fill(); // what the browser has freed
      await liveOn(found);
      const after = await today(found);
      saved = (await wasSaved(found)) ? [after] : [before, after];
      await full.close();
    }

    disk.free();
    for (const lose of [() => undefined, () => loseDatabase(disk.profile)]) {
      lose();
      const later = await disk.openBrowser();
      assert(saved.includes(await today(await openGame(later))));
      await later.close();
    }
  } finally {
    await disk.end();
  }
});

test("the copy is opened when the database is gone or older, with its slots, and both are the same from then on", async () => {
  const profile = mkdtempSync(join(tmpdir(), "profile-"));
  const older = join(profile, "older");
  const database = join(profile, "Default/IndexedDB");
  const visit = async (play: (page: Page) => Promise<void>) => {
    const context = await openProfile(profile);
    try {
      await play(await openGame(context));
      await context.pages()[0]!.waitForTimeout(1500); // the second copy follows what was played
    } finally {
      await context.close();
    }
  };
  try {
    await visit(async (page) => {
      await startCareer(page, "Ada First");
      await liveAWeek(page);
    });
    cpSync(database, older, { recursive: true });
    let left: string | null = "";
    await visit(async (page) => {
      await startAnother(page, "Ben Second");
      await liveAWeek(page);
      left = await today(page);
    });
    for (const lose of [() => loseDatabase(profile), () => cpSync(older, database, { recursive: true })]) {
      lose();
      await visit(async (page) => {
        await says(page, /opened from its second copy/);
        await inspect(page, "second-copy");
        assert.equal(await today(page), left);
        await playOther(page, "Ada First");
        await playOther(page, "Ben Second");
        left = await today(page);
      });
      await visit(async (page) => {
        assert.equal(await page.getByText(/second copy/).count(), 0);
        assert.equal(await today(page), left);
      });
      rmSync(database, { recursive: true });
    }
  } finally {
    rmSync(profile, { recursive: true, force: true });
  }
});
