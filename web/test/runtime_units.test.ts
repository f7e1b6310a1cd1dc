// Unit tests of the runtime without a browser.

import assert from "node:assert/strict";
import { spawn } from "node:child_process";
import { createServer } from "node:http";
import type { AddressInfo } from "node:net";
import { test } from "node:test";

import { localeFields } from "../src/runtime/locale";
import { MessageReader, MessageWriter } from "../src/runtime/message";
import { type Change, joined, type Piece, Pieces, readChanges, rowOf } from "../src/runtime/pieces";
import { Ticker } from "../src/runtime/ticker";
import { wasiImports } from "../src/runtime/wasi";
import { serve } from "../server.mjs";
import * as make from "./gallery_nodes";

const bytes = (...values: number[]) => new Uint8Array(values);

test("a message says on the other side what was put into it, however long", () => {
  const writer = new MessageWriter();
  const long = "Ж".repeat(5000);
  writer.number(4_000_000_000);
  writer.wideNumber(-3);
  writer.text(long);
  writer.bytesOf(bytes(1, 2, 3));
  const message = writer.message();
  const reader = new MessageReader(message);
  assert.equal(reader.number(), 4_000_000_000);
  assert.equal(reader.wideNumber(), -3);
  assert.equal(reader.text(), long);
  const read = reader.bytesOf();
  message.fill(0); // like reused memory
  assert.deepEqual([...read], [1, 2, 3]);
});

test("a commit of an unknown kind is refused rather than half understood", () => {
  const writer = new MessageWriter();
  writer.number(1);
  writer.number(9);
  assert.throws(() => readChanges(writer.message()));
});

// A fixed pseudorandom sequence.
function* draws(seed: number): Generator<number, never> {
  for (let state = seed; ; state = (state * 48271) % 2147483647) yield state;
}

function someChanges(draw: Generator<number, never>, count: number): Change[] {
  const kinds = ["put", "put", "put", "drop", "dropKey", "keepAside"] as const;
  const next = (below: number) => draw.next().value % below;
  return Array.from({ length: count }, () => {
    const kind = next(40) === 0 ? "dropAll" : kinds[next(kinds.length)]!;
    return { kind, stored: { key: `key ${next(3)}`, shape: 1, piece: next(3), bytes: bytes(next(256)) } };
  });
}

// The rows in the database after these changes, in the order of their keys.
function rowsAfter(changes: readonly Change[]): Piece[] {
  let rows: Piece[] = [];
  for (const change of changes) {
    const { kind, stored } = change;
    if (kind === "keepAside") continue;
    rows = rows.filter(({ key }) => kind !== "dropAll" && (kind !== "dropKey" || key !== stored.key));
    rows = rows.filter(({ key, piece }) => key !== stored.key || piece !== stored.piece);
    if (kind === "drop") rows.push({ ...stored, bytes: bytes() });
    else if (kind !== "dropAll") rows.push(rowOf(change));
  }
  return rows.sort((a, b) => a.key.localeCompare(b.key) || a.piece - b.piece);
}

const contents = (pieces: Pieces) =>
  pieces
    .all()
    .map(({ key, piece, bytes: [value] }) => `${key} ${piece} ${value}`)
    .sort();

test("what waits to be saved has the same outcome as all that was to be saved, and stays small", () => {
  const draw = draws(20260101);
  for (let round = 0; round < 300; round += 1) {
    const before = someChanges(draw, 8).filter(({ kind }) => kind === "put");
    const changes = Array.from({ length: 6 }, () => someChanges(draw, 5));
    const oneByOne = new Pieces();
    const atOnce = new Pieces();
    for (const pieces of [oneByOne, atOnce]) pieces.change(before);
    const packs = oneByOne.packs();
    for (const action of changes) oneByOne.change(action);
    const waiting = changes.reduce(joined, []);
    atOnce.change(waiting);
    assert.deepEqual(contents(atOnce), contents(oneByOne));

    const asides = changes.flat().filter(({ kind }) => kind === "keepAside").length;
    assert.equal(waiting.filter(({ kind }) => kind === "keepAside").length, asides);
    assert(waiting.length - asides <= 3 * 3 + 3 + 1, `${waiting.length} changes wait`);
    const voided = waiting.slice(0, Math.max(waiting.map(({ kind }) => kind).lastIndexOf("dropAll"), 0));
    assert(voided.every(({ kind }) => kind === "keepAside"), "what is dropped anyway waits");

    const isDropped = waiting.some(({ kind }) => kind === "dropAll");
    const opened = new Pieces(isDropped ? [] : packs, rowsAfter(waiting));
    assert.deepEqual(contents(opened), contents(oneByOne));
  }
});

test("money, numbers and months are written as the device writes them", () => {
  const [symbol, before, gap, point, group, minus, january] = localeFields("en-US");
  assert.deepEqual([symbol, before, gap, point, group, minus, january], ["$", "1", "", ".", ",", "-", "January"]);
  assert.deepEqual(localeFields("de-DE").slice(0, 7), ["€", "0", "\u00a0", ",", ".", "-", "Januar"]);
  assert.deepEqual(localeFields("pt-BR").slice(0, 5), ["R$", "1", "\u00a0", ",", "."]);
  assert.equal(localeFields("en-CA")[0], "$");
  assert.equal(localeFields("ja")[0], "￥"); // a language without a region has a default one
  const capitals = (tag: string) => localeFields(tag).slice(6 + 12);
  assert.equal(capitals("ru-RU")[0], "ЯНВАРЬ"); // in the language's own script
  assert.equal(capitals("tr-TR")[3], "NİSAN");
  assert.match(capitals("el-GR")[0]!, /^ΙΑΝΟΥΑΡΙΟ[ΣΥ]$/); // without its accent; the case is the browser's
  for (const tag of ["en", "ar-EG", "fa-IR", "hi-IN", "de-CH", "fr-FR", "tr-TR", "th-TH", "und", "eo"]) {
    const fields = localeFields(tag);
    assert.equal(fields.length, 6 + 2 * 12, tag);
    assert(fields.slice(6).every((month) => month !== ""), tag);
    assert(fields[0] !== "", tag);
  }
});

test("a countdown goes on while it is looked at, and on no other page", (context) => {
  const document = Object.assign(new EventTarget(), { hidden: false });
  Object.assign(globalThis, { document });
  const nothing = () => undefined;
  let tick: () => void = nothing;
  context.mock.method(globalThis, "clearInterval", () => (tick = nothing));
  context.mock.method(globalThis, "setInterval", (run: () => void) => {
    tick = run;
    return 1;
  });
  let time = 0; // milliseconds
  context.mock.method(performance, "now", () => time);
  let told = 0; // seconds
  const ticker = new Ticker((seconds) => (told += seconds));
  const pass = (seconds: number) => {
    for (let passed = 0; passed < 4 * seconds; passed += 1) {
      time += 250;
      tick();
    }
    return Math.round(told);
  };
  const auction = make.page({ nodes: [make.section("Auction", make.card({ nodes: [make.countdown("Left", 60)] }))] });
  ticker.watch(auction);
  assert.equal(pass(2), 2);
  document.hidden = true;
  assert.equal(pass(60), 2);
  document.hidden = false;
  document.dispatchEvent(new Event("visibilitychange"));
  assert.equal(pass(3), 5);
  for (const other of [make.page(), undefined, { ...auction, dialog: make.dialog("Sold!", "") }]) {
    ticker.watch(other);
    assert.equal(pass(2), 5);
  }
});

test("the game gets random bytes of any length, in pieces that a browser gives", () => {
  const memory = new WebAssembly.Memory({ initial: 4 });
  const { random_get } = wasiImports({ memory: () => memory, line: () => undefined });
  assert.equal((random_get as (at: number, size: number) => number)(10, 200_000), 0);
  const filled = new Uint8Array(memory.buffer, 10, 200_000);
  for (const at of [0, 65_536, 131_072, 199_000]) {
    assert(filled.subarray(at, at + 64).some((value) => value !== 0), `nothing random at ${at}`);
  }
  assert.equal(new Uint8Array(memory.buffer)[9], 0);
  assert.equal(new Uint8Array(memory.buffer)[200_010], 0);
});

test("what the game logs comes line by line, emoji whole, even when it is written in parts", () => {
  const memory = new WebAssembly.Memory({ initial: 1 });
  const lines: string[] = [];
  const { fd_write } = wasiImports({ memory: () => memory, line: (text) => lines.push(text) });
  const write = (content: Uint8Array) => {
    new Uint8Array(memory.buffer).set(content, 100);
    const view = new DataView(memory.buffer);
    view.setUint32(0, 100, true);
    view.setUint32(4, content.length, true);
    return (fd_write as (...values: number[]) => number)(2, 0, 1, 8);
  };
  const text = new TextEncoder().encode("rating save failed: 🎬\nnext");
  assert.equal(write(text.subarray(0, 22)), 0); // splits the emoji
  assert.equal(write(text.subarray(22)), 0);
  assert.deepEqual(lines, ["rating save failed: 🎬"]);
  assert.equal((fd_write as (...values: number[]) => number)(5, 0, 0, 8), 8);
});

test("a taken port opens the game that is served there, and no other", async () => {
  const start = (port: string) =>
    new Promise<{ code: number | null; said: string }>((resolve) => {
      const child = spawn("node", ["serve.mjs", "--port", port], { stdio: ["ignore", "pipe", "pipe"] });
      let said = "";
      for (const stream of [child.stdout, child.stderr]) stream.on("data", (part) => (said += String(part)));
      child.on("close", (code) => resolve({ code, said }));
    });
  const game = await serve("dist", 0);
  const found = await start(new URL(game.address).port);
  await game.stop();
  assert.deepEqual(found, { code: 0, said: `Top Billing is already served at ${game.address}\n` });

  const other = createServer((_, response) => response.end()).listen(0, "127.0.0.1");
  await new Promise((listening) => other.once("listening", listening));
  const refused = await start(String((other.address() as AddressInfo).port));
  other.close();
  assert.equal(refused.code, 1);
  assert.match(refused.said, /used by another program/);
  assert.match((await start("cinema")).said, /is not a port/);
});
