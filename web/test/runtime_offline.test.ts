// Without a network, and from one version to the next.

import assert from "node:assert/strict";
import { test } from "node:test";
import type { Page } from "playwright-core";

import { nameField, Site, type Stage, stage, startCareer, visit, waitForCopy, waitForGame } from "./runtime_site";

const setting = stage("under/a path");

// Each test has a site of its own to take away or to change.
async function ownSite(below = ""): Promise<Stage> {
  return { site: await new Site(below).start(), browser: setting.browser };
}

const versionOf = (page: Page) =>
  page.evaluate(() => document.querySelector<HTMLMetaElement>("meta[name=version]")?.content ?? "first");

test("after the first visit the game starts, plays and saves without a network", async () => {
  const own = await ownSite();
  const player = await visit(own);
  const page = await player.open();
  await nameField(page).waitFor();
  await waitForCopy(page);
  const { address } = own.site;
  await own.site.stop();

  await page.reload();
  await startCareer(page, "Ada Offline");
  await page.goto(`${address}?from=homescreen`);
  await page.getByText("Ada Offline").first().waitFor();
  await player.end();
  own.site.remove();
});

test("the site works under any path of a host", async () => {
  const player = await visit(setting);
  const page = await player.open();
  await startCareer(page, "Ada Below");
  await waitForCopy(page);
  await page.reload();
  await page.getByText("Ada Below").first().waitFor();
  await player.end();
});

test("a new version is offered, not forced, and takes the career along", async () => {
  const own = await ownSite();
  const player = await visit(own);
  const page = await player.open();
  await startCareer(page, "Ada Update");
  await waitForCopy(page);

  own.site.publish("second0000");
  await page.reload();
  const offer = page.getByRole("button", { name: "Use it now" });
  await offer.waitFor();
  // The old version plays on until the player says so.
  assert.equal(await versionOf(page), "first");
  await page.reload();
  await offer.waitFor();
  assert.equal(await versionOf(page), "first");

  // It stands at the hub alone: another screen would be lost.
  await page.getByRole("button", { name: "Settings" }).click();
  await offer.waitFor({ state: "detached" });
  await page.goBack();

  await offer.click();
  await page.waitForFunction(() => document.querySelector("meta[name=version]") !== null);
  assert.equal(await versionOf(page), "second0000");
  await page.getByText("Ada Update").first().waitFor();
  assert.equal(await offer.count(), 0);

  // The old version's copy is gone, and the new one is complete.
  const caches = await page.evaluate(async () => (await globalThis.caches.keys()).length);
  assert.equal(caches, 1);
  await own.site.stop();
  await page.reload();
  await page.getByText("Ada Update").first().waitFor();
  await player.end();
  own.site.remove();
});

test("a new version that comes only in part leaves the old one complete", async () => {
  const own = await ownSite();
  const player = await visit(own);
  const page = await player.open();
  await startCareer(page, "Ada Part");
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
  await page.getByText("Ada Part").first().waitFor();
  await waitForGame(page);
  assert(player.complaints.every((complaint) => complaint.includes("404")), player.complaints.join("\n"));
  player.complaints.length = 0; // the browser complains about the missing file
  await player.end();
  own.site.remove();
});
