// The system's way back stays inside the game.

import assert from "node:assert/strict";
import { test } from "node:test";

import { play, press, stage } from "./runtime_site";

const setting = stage();

test("the way back of the phone leaves a screen, not the game", async () => {
  const { page } = await play(setting, "Ada Back");
  const home = page.getByRole("heading", { level: 1, name: "Ada Back" });
  await home.waitFor();
  for (let round = 0; round < 2; round += 1) {
    await press(page, "Settings");
    await home.waitFor({ state: "detached" });
    await page.goBack();
    await home.waitFor();
  }
  assert.equal(new URL(page.url()).origin, setting.site.origin);
});
