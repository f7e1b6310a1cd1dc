// One tab plays at a time.

import assert from "node:assert/strict";
import { test } from "node:test";

import { nameField, stage, startCareer, visit, waitForGame } from "./runtime_site";

const setting = stage();

test("a second tab says where the game is, and goes on with it when the first is closed", async () => {
  const player = await visit(setting);
  const first = await player.open();
  await startCareer(first, "Ada Tabs");
  const second = await player.open();
  await second.getByRole("heading", { name: "open in another tab" }).waitFor();
  assert.equal(await nameField(second).count(), 0);

  await first.close();
  await second.getByText("Ada Tabs").first().waitFor();
  await player.end();
});

test("a second tab can take the game over, and give it back", async () => {
  const player = await visit(setting);
  const first = await player.open();
  await startCareer(first, "Ada Moves");
  const second = await player.open();
  await second.getByRole("button", { name: "Play here" }).click();
  await second.getByText("Ada Moves").first().waitFor();
  await first.getByRole("heading", { name: "open in another tab" }).waitFor();

  await first.getByRole("button", { name: "Play here" }).click();
  await first.getByText("Ada Moves").first().waitFor();
  await second.getByRole("heading", { name: "open in another tab" }).waitFor();
  await player.end();
});

test("a tab that the browser has put to sleep does not keep the game", async () => {
  const player = await visit(setting);
  const first = await player.open();
  await startCareer(first, "Ada Sleeps");
  // Asleep, it hears nothing of the other tab's wish.
  await first.evaluate(() => {
    BroadcastChannel.prototype.dispatchEvent = () => true;
    Object.defineProperty(BroadcastChannel.prototype, "onmessage", { set: () => undefined });
  });
  const session = await player.context.newCDPSession(first);
  await session.send("Emulation.setScriptExecutionDisabled", { value: true });

  const second = await player.open();
  await second.getByRole("button", { name: "Play here" }).click();
  await second.getByText("Ada Sleeps").first().waitFor();
  await waitForGame(second);

  await session.send("Emulation.setScriptExecutionDisabled", { value: false });
  await player.end();
});
