// Export and import of saves; a bad file changes nothing.

import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { test } from "node:test";
import type { Page } from "playwright-core";

import { inspect } from "./inspect";
import {
  choose, download, fill, fillable, finds, heading, openSaves, play, playOther, press, pressAgain, says, stage, startAnother,
  visit, waitForGame, withoutStorage, workingActor,
} from "./runtime_site";

const setting = stage();

for (const [how, ...scripts] of [["saved"], ["played in memory alone", withoutStorage]] as const) {
  test(`a career that is ${how} goes to another browser as a file`, async () => {
    const { player, page } = await play(setting, "Ada Travels", ...scripts);
    await openSaves(page);
    const file = await download(page);
    assert.equal(file.subarray(0, 8).toString(), "bplist00");
    await player.end();

    const { page: there } = await play(setting, "Somebody Else");
    await openSaves(there);
    await inspect(there, "saves");
    await choose(there, file);
    await there.getByRole("button", { name: "Replace my career" }).waitFor();
    assert.match(
      await there.getByRole("group", { name: "Bring in this save?" }).innerText(),
      /^Ada Travels, JANUARY 2, 2026 takes the place of Somebody Else, JANUARY 2, 2026, which stays among the backups\./,
    );
    await inspect(there, "saves-question");
    await press(there, "Replace my career");
    await finds(there, "Ada Travels");
    await there.reload();
    await finds(there, "Ada Travels");
    assert.equal(await there.getByText("Somebody Else").count(), 0);
  });
}

test("all careers and backups go to another browser in one file, and each in its own", async () => {
  const { player, page } = await play(setting, "Ada First");
  await startAnother(page, "Ben Second");
  await pressAgain(page, "Settings");
  await openSaves(page);
  await page.getByText("Slots and backups").click();
  await inspect(page, "saves-documents");
  const all = await download(page, "Download everything", /^top-billing-all-\d{4}-\d\d-\d\d\.zip$/);
  const slot = await download(page, "Download slot 1", /^top-billing-slot-0\.plist$/);
  await player.end();

  const { page: there } = await play(setting, "Somebody Else");
  await openSaves(there);
  await choose(there, all.subarray(0, all.length / 2));
  await says(there, /damaged/);
  await choose(there, all);
  await there.getByRole("button", { name: "Replace my career" }).waitFor();
  assert.match(
    await there.getByRole("group", { name: "Bring in this save?" }).innerText(),
    /^Ben Second, .* takes the place of Somebody Else, .* \d slots and backups come with it/s,
  );
  await inspect(there, "saves-archive");
  await press(there, "Replace my career");
  await finds(there, "Ben Second");
  await there.reload();
  await playOther(there, "Ada First");
  await pressAgain(there, "Settings");
  await there.getByRole("button", { name: /^Backups/ }).click();
  await there.getByText("Somebody Else").waitFor();

  await there.reload();
  await openSaves(there);
  await choose(there, slot);
  await press(there, "Replace my career");
  await finds(there, "Ada First");
});

test("backups that come in take the free places of the eight, and the others are told", async () => {
  const backUp = async (page: Page, times: number) => {
    await pressAgain(page, "Settings");
    await page.getByRole("button", { name: /^Backups/ }).click();
    for (let time = 0; time < times; time += 1) await pressAgain(page, "Back up now");
  };
  const { player, page } = await play(setting, "Ada Eight");
  await backUp(page, 6);
  await page.reload();
  await openSaves(page);
  await page.getByText("Slots and backups").click();
  const all = await download(page, "Download everything", /^top-billing-all-/);
  await player.end();

  const { page: there } = await play(setting, "Ben Three");
  await backUp(there, 3);
  await there.reload();
  await openSaves(there);
  await choose(there, all);
  const question = there.getByRole("group", { name: "Bring in this save?" });
  await question.getByText("4 slots and backups come with it. 2 more of them stay in the file only").waitFor();
  await inspect(there, "saves-archive-left");
  await press(there, "Replace my career");
  await finds(there, "Ada Eight");
  await backUp(there, 0);
  const listed = (name: string) => there.locator(".page-nodes, main").first().getByText(name, { exact: true }).count();
  assert.deepEqual([await listed("Ada Eight"), await listed("Ben Three")], [4, 4]);
});

test("a career can be brought in before any was started, and opens at the top", async () => {
  const page = await (await visit(setting)).open();
  await waitForGame(page);
  await openSaves(page);
  assert((await page.evaluate(() => scrollY)) > 0, "the form is scrolled to its last button");
  await choose(page, workingActor());
  await press(page, "Replace my career");
  await finds(page, "Ada Vale");
  assert.equal(await page.evaluate(() => scrollY), 0);
});

test("the credits name every work in the page, with its license", async () => {
  const { page } = await play(setting, "Ada Credits");
  await press(page, "Settings");
  await press(page, "Credits");
  await heading(page, "Credits");
  await inspect(page, "credits");
  for (const file of ["licenses.txt", "barlow-condensed-license.txt"]) {
    assert((await page.locator(`dialog[open] a[href="${file}"]`).count()) > 0, `no link to ${file}`);
    assert.match(await (await page.request.get(new URL(file, setting.site.address).href)).text(), /permission/i);
  }
  const names = (await page.getByRole("dialog").innerText()).toLowerCase();
  const { dependencies } = JSON.parse(readFileSync("package.json", "utf8")) as { dependencies: object };
  for (const name of Object.keys(dependencies)) {
    assert(names.includes(name.replace(/^@.*\//, "").replace("core", "dicebear")), `no credit for ${name}`);
  }
});

test("a career that was not agreed to be replaced stays", async () => {
  const { page } = await play(setting, "Ada Stays");
  await openSaves(page);
  await choose(page, workingActor());
  await press(page, "Keep what I have");
  await press(page, "Close");
  await finds(page, "Ada Stays");
  await page.reload();
  await finds(page, "Ada Stays");
});

test("a file that is no career changes nothing and says why", async () => {
  const whole = workingActor();
  const { page } = await play(setting, "Ada Untouched");
  await openSaves(page);
  // A property list that is not a save: the dictionary {"a": 1}.
  const another =
    "62706c6973743030d1010251611001080b0d000000000000010100000000000000030000000000000000000000000000000f";
  const files: [Buffer, RegExp][] = [
    [Buffer.alloc(0), /damaged/],
    [Buffer.from("a shopping list: eggs, flour"), /damaged/],
    [whole.subarray(0, whole.length / 2), /damaged/],
    [Buffer.from(another, "hex"), /no career/],
  ];
  for (const [file, words] of files) {
    await choose(page, file);
    await says(page, words);
    await says(page, "Your career is as it was.");
  }
  await press(page, "Close");
  await finds(page, "Ada Untouched");
  await page.reload();
  await finds(page, "Ada Untouched");
});

test("a save that there is no room for leaves the old one in place", async () => {
  const { page } = await play(setting, "Ada Small", fillable);
  await fill(page, true);
  await openSaves(page);
  await choose(page, workingActor());
  await press(page, "Replace my career");
  await says(page, /no room to store this save/);
  assert((await download(page)).includes("Ada Small"));
  await press(page, "Close");
  await finds(page, "Ada Small");
  await page.reload();
  await finds(page, "Ada Small");
});
