// Offline play and updates.

import assert from "node:assert/strict";
import { test } from "node:test";
import type { Page } from "playwright-core";

import {
  finds, play, press, Site, type Stage, stage, startCareer, visit, waitForCopy, waitForGame,
} from "./runtime_site";

const setting = stage();

// A separate site that a test can change or stop, below a path.
async function withOwnSite(test: (own: Stage) => Promise<void>): Promise<void> {
  const site = await new Site("under/a path").start();
  try {
    await test({ site, browser: setting.browser });
  } finally {
    await site.stop();
    site.remove();
  }
}

const versionOf = (page: Page) =>
  page.evaluate(() => document.querySelector<HTMLMetaElement>("meta[name=version]")?.content ?? "first");

test("after the first visit the game starts, plays and saves without a network", () =>
  withOwnSite(async (own) => {
    const page = await (await visit(own)).open();
    await waitForGame(page);
    await waitForCopy(page);
    const { address } = own.site;
    await own.site.stop();

    await page.reload();
    await startCareer(page, "Ada Offline");
    await page.goto(`${address}?from=homescreen`);
    await finds(page, "Ada Offline");
  }));

test("a new version is offered, not forced, and takes the career along", () =>
  withOwnSite(async (own) => {
    const { page } = await play(own, "Ada Update");
    await waitForCopy(page);

    own.site.publish("second0000");
    await page.reload();
    const offer = page.getByRole("button", { name: "Use it now" });
    await offer.waitFor();
    // The old version is used until the player accepts the update.
    assert.equal(await versionOf(page), "first");
    await page.reload();
    await offer.waitFor();
    assert.equal(await versionOf(page), "first");

    // The update is offered on the hub only.
    await press(page, "Settings");
    await offer.waitFor({ state: "detached" });
    await page.goBack();

    await offer.click();
    await page.waitForFunction(() => document.querySelector("meta[name=version]") !== null);
    assert.equal(await versionOf(page), "second0000");
    await finds(page, "Ada Update");
    assert.equal(await offer.count(), 0);

    // The old version's cache is deleted, and the new one is complete. The save's second copy stays.
    const names = await page.evaluate(() => caches.keys());
    assert.equal(names.length, 2);
    assert(names.includes("second copy of the save"));
    await own.site.stop();
    await page.reload();
    await finds(page, "Ada Update");
  }));

test("a new version that comes only in part leaves the old one complete", () =>
  withOwnSite(async (own) => {
    const { player, page } = await play(own, "Ada Part");
    await waitForCopy(page);
    own.site.publish("broken0000");
    own.site.lose(/\.webmanifest$/);
    const outcome = await page.evaluate(async () => {
      const registration = await navigator.serviceWorker.ready;
      await registration.update();
      const found = registration.installing;
      while (found?.state === "installing") await new Promise((later) => setTimeout(later, 20));
      return found?.state;
    });
    assert.equal(outcome, "redundant");

    await own.site.stop();
    await page.reload();
    await finds(page, "Ada Part");
    await waitForGame(page);
    player.expect(/404/, 0); // the missing file, which not every browser reports
  }));
