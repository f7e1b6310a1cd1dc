// Only one tab can play.

import assert from "node:assert/strict";
import { test } from "node:test";
import type { Page } from "playwright-core";

import { inspect } from "./inspect";
import { finds, heading, liveAWeek, nameField, play, press, stage, waitForGame } from "./runtime_site";

const setting = stage();

const elsewhere = "Your career is open in another tab";

test("a second tab says where the game is, and goes on with it when the first is closed", async () => {
  const { player, page: first } = await play(setting, "Ada Tabs");
  const second = await player.open();
  await heading(second, elsewhere);
  assert.equal(await nameField(second).count(), 0);
  await inspect(second, "elsewhere");

  await first.close();
  await finds(second, "Ada Tabs");
});

test("a second tab can take the game over, and give it back with all that was played", async () => {
  const { player, page: first } = await play(setting, "Ada Moves");
  const second = await player.open();
  await press(second, "Play here");
  await finds(second, "Ada Moves");
  await heading(first, elsewhere);
  await liveAWeek(second);
  const today = (page: Page) => page.locator(".page-subtitle").textContent();
  const lived = await today(second);

  await press(first, "Play here");
  await finds(first, "Ada Moves");
  assert.equal(await today(first), lived);
  await heading(second, elsewhere);
});

test("a tab that the browser has put to sleep does not keep the game", async () => {
  const { player, page: first } = await play(setting, "Ada Sleeps");
  // A frozen tab does not respond to the other tab.
  await first.evaluate(() => {
    BroadcastChannel.prototype.dispatchEvent = () => true;
    Object.defineProperty(BroadcastChannel.prototype, "onmessage", { set: () => undefined });
  });
  const session = await player.context.newCDPSession(first);
  await session.send("Emulation.setScriptExecutionDisabled", { value: true });

  const second = await player.open();
  await press(second, "Play here");
  await finds(second, "Ada Sleeps");
  await waitForGame(second);
  await session.send("Emulation.setScriptExecutionDisabled", { value: false });
});
