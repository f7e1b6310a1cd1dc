// The browser's stores fail at any call of a start, a week, a switch, a backup, a restore and more: what the next start
// finds is one whole career, as before or as after a step, with its slots and backups, and nothing was lost that
// the player was not told of.

import assert from "node:assert/strict";
import { readdirSync } from "node:fs";
import { test } from "node:test";
import { build } from "esbuild";

import type { FailCalls } from "./faulty_player";
import { stage } from "./runtime_site";

const setting = stage();

async function scriptOfPlayer(): Promise<string> {
  const fileIn = (wanted: RegExp) => JSON.stringify(readdirSync("dist").find((name) => wanted.test(name)));
  const define = {
    FORM_FILE: fileIn(/^form-.*\.wasm$/), REST_FILE: fileIn(/^rest-.*\.wasm$/), TEXTS_FILE: fileIn(/^texts-.*\.txt$/),
  };
  const bundled = { bundle: true, write: false, format: "iife", logLevel: "warning", define } as const;
  const { outputFiles } = await build({ ...bundled, entryPoints: ["test/faulty_player.ts"] });
  return outputFiles[0]!.text;
}

test("the stores fail at any call", { timeout: 1_200_000 }, async () => {
  const page = await setting.browser.newPage();
  const empty = `${setting.site.address}empty.html`;
  await page.route(empty, (route) => route.fulfill({ contentType: "text/html", body: "<!doctype html>" }));
  await page.goto(empty);
  await page.addScriptTag({ content: await scriptOfPlayer() });
  const { counts, wrong } = await page.evaluate(
    (stride) => (globalThis as unknown as { failCalls: FailCalls }).failCalls(stride),
    process.env["EVERY_CALL"] ? 1 : 16,
  );
  await page.close();
  console.log(counts);
  assert.deepEqual(wrong, []);
  for (const [action, calls] of Object.entries(counts)) assert(calls >= 10, `${action} made ${calls} calls`);
});
