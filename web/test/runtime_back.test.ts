// The system's way back stays inside the game.

import assert from "node:assert/strict";
import { test } from "node:test";

import { stage, startCareer, visit } from "./runtime_site";

const setting = stage();

test("the way back of the phone leaves a screen, not the game", async () => {
  const player = await visit(setting);
  const page = await player.open();
  await startCareer(page, "Ada Back");
  const home = page.getByRole("heading", { level: 1, name: "Ada Back" });
  await home.waitFor();

  for (let round = 0; round < 2; round += 1) {
    await page.getByRole("button", { name: "Settings" }).click();
    await home.waitFor({ state: "detached" });
    await page.goBack();
    await home.waitFor();
  }
  assert.equal(new URL(page.url()).origin, setting.site.origin);
  await player.end();
});
