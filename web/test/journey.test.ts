// A career in the browser: start, weeks, training, reload, and an accessibility check of every screen in both
// themes.

import assert from "node:assert/strict";
import { test } from "node:test";
import type { Page } from "playwright-core";

import { inspect } from "./inspect";
import {
  actorWithOffers, choose, dater, finds, heading, liveAWeek, nameField, openSaves, play, press, stage, startCareer, visit, workingActor,
} from "./runtime_site";
import { keepsWordsWhole } from "./whole_words";

const setting = stage();

const hubTab = (page: Page, name: string) => page.getByRole("navigation").getByRole("button", { name }).click();

async function backToTheTabs(page: Page): Promise<void> {
  const back = page.getByRole("button", { name: "Back", exact: true });
  while ((await back.count()) > 0) await back.click();
}

// The tab, the presses from there, and the name of the screenshot. Answers in notices are presses too.
type Walk = readonly [tab: string, presses: readonly RegExp[], name: string];

async function inspectOnTheWay(page: Page, walks: readonly Walk[]): Promise<void> {
  for (const [tab, presses, name] of walks) {
    await backToTheTabs(page);
    await hubTab(page, tab);
    for (const press of presses) {
      await page.waitForTimeout(350); // a double tap at the same spot is ignored
      const pressed = page.getByRole("button", { name: press }).or(page.getByRole("radio", { name: press })).first();
      assert(await pressed.isVisible(), `${name}: nothing to press for ${String(press)}`);
      await pressed.click();
    }
    await inspect(page, name);
    await keepsWordsWhole(page, name);
  }
}

test("a career starts, lives ten weeks, and is found again after a reload", async () => {
  const page = await (await visit(setting)).open();
  await nameField(page).waitFor();
  await inspect(page, "form");
  await startCareer(page, "Ada Vale");
  await inspect(page, "home");
  await inspectOnTheWay(page, [
    ["Work", [], "work"],
    ["Work", [/^Talent(?! Agent)/, /^Train Charisma to 2, 2 energy/], "talent"],
  ]);
  await backToTheTabs(page);
  await hubTab(page, "Home");
  for (let week = 0; week < 10; week += 1) await liveAWeek(page);
  await inspectOnTheWay(page, ["Social", "Life", "Wealth", "Home"].map((tab) => [tab, [], `later-${tab.toLowerCase()}`]));
  const before = await page.getByRole("main").innerText();
  await page.reload();
  await page.getByRole("button", { name: "End Week" }).waitFor();
  assert.equal(await page.getByRole("main").innerText(), before);
});

test("every other screen of a beginner can be read and left", async () => {
  const { page } = await play(setting, "Ada Reader");
  await press(page, "End Week");
  await heading(page, "REVIEW");
  await inspect(page, "summary");
  await press(page, "Carry on");
  await inspectOnTheWay(page, [
    ["Work", [/Acting Classes/], "classes"],
    ["Work", [/Acting Classes/, /Sign up/], "notice"],
  ]);
  await page.getByRole("dialog").getByRole("button", { name: "OK" }).click();
  const backstage = /^The Backstage/;
  await inspectOnTheWay(page, [
    ["Home", [backstage], "backstage"],
    ["Home", [backstage, /Showreel/], "showreel"],
    ["Home", [backstage, /Showreel/, /Choose footage/], "footage"],
    ["Home", [backstage, /Actor's Guild/], "guild"],
    ["Social", [/^Inbox/, /^Who writes/], "first-mail"],
    ["Social", [/^Chirp/], "feed"],
    ["Social", [/^Chirp/, /^Write a chirp/, /^Suggest/], "new-chirp"],
    ["Social", [/^Chirp/, /^Profile/], "chirp-profile"],
    ["Social", [/^0 fans|^\d+ fans?/], "fans"],
    ["Social", [/^Fame/], "fame"],
    ["Social", [/^Star Meter/], "star-meter"],
    ["Social", [/^The Cameo/], "cameo"],
    ["Social", [/^Patron/], "patron"],
    ["Life", [/^Energy(?! tracker)/], "energy"],
    ["Life", [/^Energy tracker/], "energy-tracker"],
    ["Work", [/^Metflix Top 10/], "chart"],
    ["Work", [/^Metflix Top 10/, /^New on Metflix/], "metflix-news"],
    ["Work", [/^Awards/], "no-awards"],
    ["Home", [/^Settings/], "settings"],
  ]);
  await press(page, "Restart?");
  await page.getByRole("dialog").getByRole("button", { name: "Restart", exact: true }).click();
  await nameField(page).waitFor();
});

test("the way back of the phone leaves a screen, not the game", async () => {
  const { page } = await play(setting, "Ada Back");
  const home = page.getByRole("heading", { level: 1, name: "Ada Back" });
  await home.waitFor();
  for (let round = 0; round < 2; round += 1) {
    await press(page, "Settings");
    await home.waitFor({ state: "detached" });
    await page.goBack();
    await home.waitFor();
    await page.waitForTimeout(400); // a double tap at the same spot is ignored
  }
  await hubTab(page, "Wealth");
  await page.getByRole("heading", { level: 1, name: "Wealth" }).waitFor();
  await page.goBack();
  await home.waitFor();
  await press(page, "Settings");
  await home.waitFor({ state: "detached" });
  await page.keyboard.press("Escape");
  await home.waitFor();
  assert.equal(new URL(page.url()).origin, setting.site.origin);
});

// The figures of the section's rows.
const figuresUnder = (page: Page, heading: string): Promise<number[]> =>
  page
    .locator(".section", { has: page.getByRole("heading", { name: heading }) })
    .locator(".row-value")
    .evaluateAll((values) => values.map((value) => Number(value.lastChild!.textContent)));

test("the casting board shows five roles without scrolling, and each can be submitted for in place", async () => {
  const { page } = await play(setting, "Ada Cast");
  await page.getByRole("button", { name: /Send showreels/ }).click();
  const submits = page.getByRole("button", { name: /^Submit for / });
  await submits.nth(4).waitFor();
  const foot = (await page.locator(".foot").boundingBox())!;
  const fifth = (await page.locator(".row-acting").nth(4).boundingBox())!;
  assert.ok(fifth.y + fifth.height <= foot.y, `the fifth role ends at ${fifth.y + fifth.height}, the foot begins at ${foot.y}`);
});

const toTheTitlePage = [/^Auditions/, /^Releases/, /Feature Film.*Released/, /^Imbd page/];

// Brings a career in, of the performer of that name.
async function playCareer(career: Parameters<typeof choose>[1], name: string): Promise<Page> {
  const { page } = await play(setting, "Somebody Else");
  await openSaves(page);
  await choose(page, career);
  await press(page, "Replace my career");
  await finds(page, name);
  return page;
}

test("every screen of a working actor can be read by everybody", async () => {
  const page = await playCareer(workingActor(), "Ada Vale");
  await inspectOnTheWay(page, [
    ["Work", [/^Job Board/], "actor-job-board"],
    ["Work", [/^Casting Network/], "actor-casting"],
    ["Work", [/^Casting Network/, / • in \d+ weeks?$/], "actor-listing"],
    ["Work", [/^Auditions/], "actor-auditions"],
    ["Work", [/^Auditions/, /^Bookings/, /Wraps in/], "actor-booking"],
    ["Work", [/^Auditions/, /^Releases/, /Feature Film.*Released/], "actor-release"],
    ["Work", toTheTitlePage, "actor-title"],
    ["Work", [...toTheTitlePage, /^Rate this title/, /^8 /], "actor-title-rated"],
    ["Work", [...toTheTitlePage, /^RottenBanana/], "actor-banana"],
    ["Work", [/^Auditions/, /^Releases/, /TV-Series.*Released/, /^Imbd page/], "actor-series"],
    ["Work", [/^Box Office/], "actor-box-office"],
    ["Work", [/^Box Office/, /^Yours/, /RETURN/], "actor-box-office-film"],
    ["Work", [/^Productions/], "actor-productions"],
    ["Work", [/^Top 250/], "actor-top-250"],
    ["Social", [/^Rate a movie/], "actor-rate-a-movie"],
    ["Social", [/^Quotes/], "actor-quotes"],
    ["Wealth", [/^Finances/], "actor-finances"],
    ["Wealth", [/^Balance Sheet/], "actor-balance-sheet"],
    ["Wealth", [/^Weekly Expenses/], "actor-expenses"],
    ["Wealth", [/^Payments/], "actor-payments"],
    ["Life", [], "actor-life"],
    ["Life", [/^Energy(?! tracker)/], "actor-energy"],
    ["Life", [/^Energy tracker/], "actor-energy-tracker"],
  ]);
  const taken = await figuresUnder(page, "WEEKLY ENERGY COSTS");
  const inAll = taken.pop()!;
  assert(inAll <= 0, "a week gives no energy");
  assert.equal(taken.reduce((sum, energy) => sum + energy, 0), inAll);

  await inspectOnTheWay(page, [["Work", toTheTitlePage, "actor-title-again"]]);
  await page.getByRole("button", { name: "Box office", exact: true }).click();
  await page.getByText("MARKETS").waitFor();
  assert.equal(await page.evaluate(() => window.scrollY), 0, "a film's box office opens at its top");
  await press(page, "Back");
  assert.notEqual(await page.evaluate(() => window.scrollY), 0, "the way back leads to where the player was");
});

test("every offer to a working actor can be read by everybody", async () => {
  const page = await playCareer(actorWithOffers(), "Ada Quinn");
  await inspectOnTheWay(page, [
    ["Social", [/^Inbox/], "offers-inbox"],
    ["Social", [/^Inbox/, /AGENT •/], "offers-agent"],
    ["Social", [/^Inbox/, /INVEST •/, /^Larger stake/], "offers-investment"],
    ["Social", [/^Inbox/, /ROYALTY •/, /^Ask for more/], "offers-stake"],
    ["Social", [/^Inbox/, /FRANCHISE •/], "offers-saga"],
    ["Work", [/^Talent Agent/], "offers-signed-agent"],
    ["Work", [/^Auditions/, /Season 3/, /^Negotiate/, /^Ask for more/], "offers-negotiation"],
    ["Wealth", [/^Investments/], "offers-investments"],
    ["Wealth", [/^Investments/, /Released/], "offers-returns"],
  ]);
});

const energyOf = async (page: Page): Promise<number> =>
  Number(/Energy\D*(\d+)/u.exec(await page.locator("main, header").allInnerTexts().then((all) => all.join(" ")))![1]);

// Drags a finger across the card.
async function swipeCard(page: Page, pixels: number): Promise<void> {
  const box = (await page.locator(".swipe-front").boundingBox())!;
  const [x, y] = [box.x + box.width / 2, box.y + box.height / 2];
  const touch = await page.context().newCDPSession(page);
  const send = (type: "touchStart" | "touchMove" | "touchEnd", moved = 0) =>
    touch.send("Input.dispatchTouchEvent", { type, touchPoints: type === "touchEnd" ? [] : [{ x: x + moved, y }] });
  await send("touchStart");
  for (let step = 1; step <= 8; step += 1) await send("touchMove", (pixels * step) / 8);
  await send("touchEnd");
}

test("a dater swipes with a finger and with the keys, and everybody can read the screens of love", async () => {
  const page = await playCareer(dater(), "Ada Quinn");
  await inspectOnTheWay(page, [
    ["Life", [/^Latch/], "latch"],
    ["Life", [/^Latch/, /^Your matches/], "latch-matches"],
    ["Life", [/^Latch/, /^Your matches/, /^Noor/, /^SEND MESSAGE/], "latch-conversation"],
    ["Life", [/^Latch/, /^Swipe/], "latch-card"],
  ]);
  const energy = await energyOf(page);
  const shows = (left: number) => page.waitForFunction(
    (wanted) => document.body.innerText.replace(/\s+/gu, " ").includes(`${wanted} of 100`), left);
  await page.keyboard.press("ArrowLeft");
  await shows(energy - 3);
  await page.waitForTimeout(350); // a double tap at the same spot is ignored
  await swipeCard(page, -200);
  await shows(energy - 6);
});

test("every screen of a relationship can be read by everybody", async () => {
  const page = await playCareer(actorWithOffers(), "Ada Quinn");
  await inspectOnTheWay(page, [
    ["Life", [/^Mia/], "relationship"],
    ["Life", [/^Mia/, /^About Mia/], "partner"],
    ["Life", [/^Mia/, /^PROPOSE/], "rings"],
    ["Life", [/^Mia/, /^PROPOSE/, /^Propose with Oval/, /^OK/, /^PLAN THE WEDDING/], "wedding-too-soon"],
  ]);
});
