// The save as a file: out, in, and nothing lost by a bad one.

import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { test } from "node:test";
import type { Page } from "playwright-core";

import { fill, fillable, nameField, openSaves, stage, startCareer, visit, waitForGame } from "./runtime_site";

const setting = stage();

async function download(page: Page): Promise<Buffer> {
  const [file] = await Promise.all([
    page.waitForEvent("download"),
    page.getByRole("button", { name: "Download a copy" }).click(),
  ]);
  assert.match(file.suggestedFilename(), /^top-billing-\d{4}-\d\d-\d\d\.plist$/);
  return readFileSync(await file.path());
}

async function choose(page: Page, content: Buffer): Promise<void> {
  await page
    .getByLabel("Bring in a copy")
    .setInputFiles({ name: "career.plist", mimeType: "application/x-plist", buffer: content });
}

const says = (page: Page, words: string | RegExp) => page.getByRole("status").filter({ hasText: words }).waitFor();

// A career of that name, as a file.
async function careerOf(name: string): Promise<Buffer> {
  const player = await visit(setting);
  const page = await player.open();
  await startCareer(page, name);
  await openSaves(page);
  const file = await download(page);
  await player.end();
  return file;
}

test("a career goes from one browser to another as a file", async () => {
  const file = await careerOf("Ada Travels");
  assert.equal(file.subarray(0, 8).toString(), "bplist00");

  const player = await visit(setting);
  const page = await player.open();
  await startCareer(page, "Somebody Else");
  await openSaves(page);
  await choose(page, file);
  await page.getByRole("button", { name: "Replace my career" }).click();
  await page.getByText("Ada Travels").first().waitFor();
  await page.reload();
  await page.getByText("Ada Travels").first().waitFor();
  assert.equal(await page.getByText("Somebody Else").count(), 0);
  await player.end();
});

test("a career that was not agreed to be replaced stays", async () => {
  const file = await careerOf("Ada Unwanted");
  const player = await visit(setting);
  const page = await player.open();
  await startCareer(page, "Ada Stays");
  await openSaves(page);
  await choose(page, file);
  await page.getByRole("button", { name: "Keep what I have" }).click();
  await page.getByRole("button", { name: "Close" }).click();
  await page.reload();
  await page.getByText("Ada Stays").first().waitFor();
  await player.end();
});

test("a file that is no career changes nothing and says why", async () => {
  const whole = await careerOf("Ada Torn");
  const player = await visit(setting);
  const page = await player.open();
  await startCareer(page, "Ada Untouched");
  await openSaves(page);

  const files: [Buffer, RegExp][] = [
    [Buffer.alloc(0), /damaged/],
    [Buffer.from("a shopping list: eggs, flour"), /damaged/],
    [whole.subarray(0, whole.length / 2), /damaged/],
    // A property list, but of something else: the dictionary {"a": 1}.
    [
      Buffer.from(
        "62706c6973743030d101025161100108" + "0b0d000000000000010100000000000000030000000000000000000000000000000f",
        "hex",
      ),
      /no career/,
    ],
  ];
  for (const [file, words] of files) {
    await choose(page, file);
    await says(page, words);
    await says(page, "Your career is as it was.");
  }
  await page.getByRole("button", { name: "Close" }).click();
  await page.getByText("Ada Untouched").first().waitFor();
  await page.reload();
  await page.getByText("Ada Untouched").first().waitFor();
  await player.end();
});

test("a save that there is no room for leaves the old one in place", async () => {
  const file = await careerOf("Ada Large");
  const player = await visit(setting, fillable);
  const page = await player.open();
  await startCareer(page, "Ada Small");
  await fill(page, true);
  await openSaves(page);
  await choose(page, file);
  await page.getByRole("button", { name: "Replace my career" }).click();
  await says(page, /no room/);
  await page.getByRole("button", { name: "Close" }).click();
  await page.reload();
  await page.getByText("Ada Small").first().waitFor();
  await player.end();
});

test("a career that is played in memory alone can be taken home", async () => {
  const player = await visit(setting, () => Object.defineProperty(globalThis, "indexedDB", { value: undefined }));
  const page = await player.open();
  await startCareer(page, "Ada Memory");
  await openSaves(page);
  const file = await download(page);
  await player.end();

  const home = await visit(setting);
  const there = await home.open();
  await nameField(there).waitFor();
  await openSaves(there);
  await choose(there, file);
  await there.getByRole("button", { name: "Replace my career" }).click();
  await there.getByText("Ada Memory").first().waitFor();
  await waitForGame(there);
  await home.end();
});
