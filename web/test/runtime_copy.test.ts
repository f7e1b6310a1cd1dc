// The second copy in a cache store that fails or stops at any call: what is read is the save after some action.

import assert from "node:assert/strict";
import { test } from "node:test";

import { type Change, type Piece, Pieces } from "../src/runtime/pieces";
import { Outbox } from "../src/runtime/save_place";
import { SecondCopy } from "../src/runtime/second_copy";

// A cache store in memory.
class TestStore {
  readonly entries = new Map<string, { body: Uint8Array<ArrayBuffer>; checksum: string }>();
  calls = 0;
  failsAt = Infinity; // number of the call
  endsAt = Infinity; // number of the call from which on all fail, as after a crash
  isWide = true; // there is room

  has = async () => true;
  open = async () => this;

  async keys(): Promise<{ url: string }[]> {
    this.count();
    return [...this.entries.keys()].map((url) => ({ url }));
  }

  async match(url: string): Promise<Response | undefined> {
    this.count();
    const entry = this.entries.get(url);
    return entry && new Response(entry.body, { headers: { checksum: entry.checksum } });
  }

  async put(url: string, response: Response): Promise<void> {
    this.count();
    const body = new Uint8Array(await response.arrayBuffer());
    const gaveRoom = ![...this.entries.keys()].some((known) => known.endsWith("room"));
    if (!this.isWide && !gaveRoom) throw new Error("full");
    this.entries.set(url, { body, checksum: response.headers.get("checksum") ?? "" });
  }

  async delete(url: string): Promise<boolean> {
    this.count();
    return this.entries.delete(url);
  }

  private count(): void {
    this.calls += 1;
    if (this.calls === this.failsAt || this.calls >= this.endsAt) throw new Error("failed");
  }
}

function stage(): TestStore {
  const store = new TestStore();
  Object.assign(globalThis, { caches: store, location: { href: "http://localhost/" } });
  return store;
}

const action = (number: number): Change[] =>
  [0, number % 3].map((piece) => ({
    kind: "put",
    stored: { key: `key ${number % 2}`, shape: 1, piece, bytes: new Uint8Array([number]) },
  }));

const plain = (pieces: readonly Piece[]) => pieces.map(({ key, piece, bytes }) => `${key} ${piece} ${bytes[0]}`).sort();

// The save after each action.
function saves(count: number): string[][] {
  const pieces = new Pieces();
  return Array.from({ length: count + 1 }, (_, number) => {
    if (number > 0) pieces.change(action(number));
    return plain(pieces.all());
  });
}

// Saves the actions one after another. Returns the last that was reported as saved.
async function play(from: number, to: number, pieces: Pieces): Promise<number> {
  const outbox = new Outbox();
  outbox.begin(from - 1);
  const copy = SecondCopy.create()!;
  let saved = from - 1;
  for (let number = from; number <= to; number += 1) {
    pieces.change(action(number));
    outbox.add(action(number));
    if (number === 4) copy.replaceAll();
    await outbox.send(copy, number, pieces).then(
      () => (saved = number),
      () => undefined,
    );
  }
  return saved;
}

async function found(): Promise<{ generation: number; pieces: Pieces }> {
  const save = await (await SecondCopy.find())!.read();
  return save ?? { generation: 0, pieces: new Pieces() };
}

const actions = 6;

for (const fault of ["failsAt", "endsAt"] as const) {
  test(`a cache store that ${fault === "failsAt" ? "fails at" : "is cut off from"} any call`, async () => {
    const expected = saves(2 * actions);
    for (let call = 1; call < 60; call += 1) {
      const store = stage();
      store[fault] = call;
      const saved = await play(1, actions, new Pieces());
      store.failsAt = store.endsAt = Infinity;
      const { generation, pieces } = await found();
      assert(generation >= saved, `${generation} of ${saved} after call ${call}`);
      assert.deepEqual(plain(pieces.all()), expected[generation], `call ${call}`);

      // It goes on from there.
      assert.equal(await play(generation + 1, 2 * actions, pieces), 2 * actions);
      const later = await found();
      assert.equal(later.generation, 2 * actions);
      assert.deepEqual(plain(later.pieces.all()), expected[2 * actions], `call ${call}`);
    }
  });
}

test("an entry that is damaged or gone ends what is read before it", async () => {
  const expected = saves(actions);
  const store = stage();
  await play(1, actions, new Pieces());
  for (const [url, entry] of [...store.entries]) {
    for (const harm of [() => store.entries.delete(url), () => store.entries.set(url, { ...entry, body: new Uint8Array(9) })]) {
      harm();
      const { generation, pieces } = await found();
      assert.deepEqual(plain(pieces.all()), expected[generation], url);
      store.entries.set(url, entry);
    }
  }
});

test("a browser that deletes the entries while the page is open gets all of the save back", async () => {
  const store = stage();
  const pieces = new Pieces();
  const copy = SecondCopy.create()!;
  const outbox = new Outbox();
  for (let number = 1; number <= actions; number += 1) {
    pieces.change(action(number));
    outbox.add(action(number));
    if (number === 5) store.entries.clear();
    await outbox.send(copy, number, pieces);
  }
  const save = await found();
  assert.equal(save.generation, actions);
  assert.deepEqual(plain(save.pieces.all()), plain(pieces.all()));
});

test("on a full disk the room that was kept is given away for the save", async () => {
  const store = stage();
  const pieces = new Pieces();
  await play(1, 2, pieces);
  store.isWide = false;
  assert.equal(await play(3, actions, pieces), actions);
  assert.equal((await found()).generation, actions);
});
