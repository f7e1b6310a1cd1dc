// Plays careers in a browser whose stores fail at a given call. Runs in a page of its own, without drawing: the game
// and its storage as shell.ts puts them together. Random numbers and the time are the same in each run, so a run
// without faults shows what each one must find.

import type { DocumentPlace } from "../src/runtime/documents";
import { Game } from "../src/runtime/game";
import { localeMessage } from "../src/runtime/locale";
import { wholeProgram } from "../src/runtime/parts";
import { Storage } from "../src/runtime/storage";
import { storedGameHost } from "../src/runtime/stored_game_host";

// The call with this number fails: once, or with all that follow.
interface Fault {
  readonly call: number;
  readonly lasts: boolean;
}

let fault: Fault | undefined;
let calls = 0;

function makeStoresFaulty(): void {
  const breaks = (prototype: object, names: readonly string[], answersLater = false) => {
    for (const name of names) {
      const real = (prototype as Record<string, (...values: unknown[]) => unknown>)[name]!;
      const failing = function (this: unknown, ...values: unknown[]): unknown {
        calls += 1;
        if (fault && (fault.lasts ? calls >= fault.call : calls === fault.call)) {
          if (this instanceof IDBTransaction) this.abort();
          const error = new DOMException("A fault of the test.", "UnknownError");
          if (answersLater) return Promise.reject(error);
          throw error;
        }
        return real.apply(this, values);
      };
      Object.defineProperty(prototype, name, { value: failing });
    }
  };
  breaks(IDBFactory.prototype, ["open"]);
  breaks(IDBDatabase.prototype, ["transaction"]);
  breaks(IDBTransaction.prototype, ["commit"]);
  breaks(IDBObjectStore.prototype, ["put", "get", "getAll", "clear", "delete"]);
  breaks(CacheStorage.prototype, ["open", "has"], true);
  breaks(Cache.prototype, ["put", "match", "keys", "delete"], true);
}

let seed = 1;

function makeDeterministic(): void {
  Object.defineProperty(crypto, "getRandomValues", {
    value: (words: Uint8Array) => words.forEach((_, at) => (words[at] = (seed = (seed * 48271) % 2147483647) >> 8)),
  });
  Date.now = () => Date.UTC(2030, 4, 6);
}

// A career in play, until something says no.
class Player {
  private isSaved = true;
  private waiting = 0; // documents that the game asked for

  private constructor(
    private readonly storage: Storage,
    private readonly game: Game,
  ) {}

  static async start(): Promise<Player> {
    const late: { player?: Player } = {};
    const storage = await Storage.open({
      failing: ({ isSaved }) => late.player && (late.player.isSaved = isSaved),
      backupLost: (place) => late.player?.game.documentLost(place),
    });
    const host = storedGameHost(storage, (number, content) => {
      late.player!.game.documentRead(number, content);
      late.player!.waiting -= 1;
    });
    const read = (number: number, place: DocumentPlace) => {
      late.player!.waiting += 1;
      host.documents.read(number, place);
    };
    const waits = { ...host, documents: { ...host.documents, read } };
    const game = await Game.open(await wholeProgram(), waits, storage.all());
    const player = (late.player = new Player(storage, game));
    game.start(localeMessage("en-US"));
    return player;
  }

  // Presses what has this name, or a name that begins with it.
  async press(name: string): Promise<boolean> {
    const page = this.game.page();
    const handle = handleOf(page.dialog.length > 0 ? page.dialog : page, name);
    if (handle === undefined) return false;
    this.game.press(handle);
    while (this.waiting > 0) await new Promise((later) => setTimeout(later));
    await this.storage.settled();
    return true;
  }

  typeName(name: string): void {
    this.game.type(handleOf(this.game.page(), "Stage name")!, name);
  }

  // Whether what was played can be read again, as far as the player was told.
  get isKept(): boolean {
    return this.isSaved && this.storage.refusal === undefined;
  }

  stored(): Promise<Stored> {
    return storedIn(this.storage);
  }

  get pieces(): string {
    return piecesIn(this.storage);
  }

  end(): void {
    this.storage.close();
  }
}

// The handle of the first thing with the name; undefined when there is none that can be used.
function handleOf(part: unknown, name: string): number | undefined {
  if (typeof part !== "object" || part === null) return undefined;
  const { handle, name: own, label } = part as { handle?: number; name?: string; label?: string };
  if (handle && (own || label || "").startsWith(name)) return handle;
  for (const inner of Object.values(part)) {
    const found = handleOf(inner, name);
    if (found !== undefined) return found;
  }
  return undefined;
}

// What is stored, in a form that can be compared.
interface Stored {
  readonly pieces: string;
  readonly documents: Readonly<Record<string, number>>; // checksums by path; 0 when it can't be read
}

function checksum(bytes: Uint8Array | undefined): number {
  let sum = bytes?.length ?? 0;
  for (const byte of bytes ?? []) sum = Math.imul(sum ^ byte, 16777619);
  return sum;
}

const piecesIn = (storage: Storage) =>
  storage.all().map(({ key, piece, shape, bytes }) => `${key} ${piece} ${shape} ${checksum(bytes)}`).sort().join("\n");

async function storedIn(storage: Storage): Promise<Stored> {
  const documents: Record<string, number> = {};
  for (const place of storage.documents()) documents[pathOf(place)] = checksum(await storage.readDocument(place));
  return { pieces: piecesIn(storage), documents };
}

const pathOf = ({ folder, name }: DocumentPlace) => `${folder}/${name}`;

async function find(): Promise<Stored> {
  const storage = await Storage.open({ failing: () => undefined, backupLost: () => undefined });
  const found = await storedIn(storage);
  storage.close();
  return found;
}

// Starts the game, presses these one after another, and ends it. Calls `after` after each step.
async function play(steps: readonly string[], after: (player: Player) => unknown = () => undefined): Promise<Player> {
  seed = 1;
  const player = await Player.start();
  await after(player);
  for (const step of steps) {
    if (!(await player.press(step))) break;
    await after(player);
  }
  player.end();
  return player;
}

const repeated = (steps: readonly string[], times: number) => Array.from({ length: times }, () => steps).flat();
const week = ["End Week", "Carry on"];
const backups = ["Settings", "Backups"];
const saves = ["Settings", "Choose a save"];

// Two careers with backups; the one in play has weeks that can be taken back.
async function prepare(): Promise<void> {
  for (const name of ["Ada First", "Ben Second"]) {
    const player = await Player.start();
    if (name !== "Ada First") for (const step of [...saves, "Empty"]) await player.press(step);
    player.typeName(name);
    await player.press("Start my career");
    for (const step of [...repeated(week, 2), ...backups, "Back up now"]) await player.press(step);
    player.end();
  }
}

// What the browser's stores have.
type Contents = readonly [databases: readonly Rows[], entries: readonly (readonly [Request, Response])[]];
interface Rows {
  readonly store: string;
  readonly keys: readonly IDBValidKey[] | undefined; // undefined where the values have their keys
  readonly values: readonly unknown[];
}

const done = <T,>(request: IDBRequest<T>) =>
  new Promise<T>((resolve, reject) => {
    request.onsuccess = () => resolve(request.result);
    request.onerror = () => reject(request.error as Error);
  });
const copy = () => caches.open("second copy of the save");

async function contents(): Promise<Contents> {
  const database = await done(indexedDB.open("top-billing"));
  const stores = database.transaction([...database.objectStoreNames]);
  const rows: Rows[] = [];
  for (const store of database.objectStoreNames) {
    const { keyPath } = stores.objectStore(store);
    const keys = keyPath === null ? await done(stores.objectStore(store).getAllKeys()) : undefined;
    rows.push({ store, keys, values: await done(stores.objectStore(store).getAll()) });
  }
  database.close();
  const cache = await copy();
  const requests = await cache.keys();
  return [rows, await Promise.all(requests.map(async (request) => [request, (await cache.match(request))!] as const))];
}

async function putBack([rows, entries]: Contents): Promise<void> {
  const database = await done(indexedDB.open("top-billing"));
  const stores = database.transaction([...database.objectStoreNames], "readwrite");
  for (const { store, keys, values } of rows) {
    const filled = stores.objectStore(store);
    filled.clear();
    values.forEach((value, at) => filled.put(value, keys?.[at]));
  }
  await new Promise((over) => (stores.oncomplete = over));
  database.close();
  const cache = await copy();
  for (const request of await cache.keys()) await cache.delete(request);
  for (const [request, response] of entries) await cache.put(request, response.clone());
}

// Why what was found is of no moment of the run without faults; empty when it is of one.
function whatIsWrong(found: Stored, states: readonly Stored[]): string {
  if (!states.some(({ pieces }) => pieces === found.pieces)) return "the career is of no moment";
  for (const [path, content] of Object.entries(found.documents)) {
    if (!states.some(({ documents }) => documents[path] === content)) return `${path} is of no moment`;
  }
  const lost = Object.keys(states[0]!.documents).find(
    (path) => !(path in found.documents) && states.every(({ documents }) => path in documents),
  );
  return lost === undefined ? "" : `${lost} is gone`;
}

const actions: Readonly<Record<string, readonly string[]>> = {
  "a start": [],
  "a week": week,
  "a switch to a career": [...saves, "Play"],
  "a switch to an empty slot": [...saves, "Empty"],
  "a deletion": [...saves, "Delete", "Delete"],
  "a backup": [...backups, "Back up now"],
  "a restore": [...backups, "Restore", "Restore"],
  "a week taken back": ["Settings", "Back to last week", "Go back"],
};

// Does each action with each of its first 30 calls failing, and then each `stride`-th, as most of these put rows in one
// transaction. Returns the number of failed calls by action, and what went wrong.
async function failCalls(
  stride: number,
): Promise<{ readonly counts: Record<string, number>; readonly wrong: string[] }> {
  makeStoresFaulty();
  makeDeterministic();
  await prepare();
  const prepared = await contents();
  const counts: Record<string, number> = {};
  const wrong: string[] = [];
  for (const [name, steps] of Object.entries(actions)) {
    const states: Stored[] = [];
    let first = 1; // call; those of the start are tried once
    await putBack(prepared);
    calls = 0;
    await play(steps, async (player) => {
      if (states.length === 0 && steps.length > 0) first = calls + 1;
      states.push(await player.stored());
    });
    if (states.length !== steps.length + 1) wrong.push(`${name} ended after ${states.length - 1} steps`);
    counts[name] = 0;
    for (const lasts of [false, true]) {
      for (let call = first; ; call += call < first + 30 ? 1 : stride) {
        await putBack(prepared);
        calls = 0;
        fault = { call, lasts };
        const played = await play(steps);
        const wasReached = calls >= call;
        fault = undefined;
        const found = await find();
        const problem =
          whatIsWrong(found, states) ||
          (played.isKept && found.pieces !== played.pieces && "a week was lost without a word");
        if (problem) wrong.push(`${name}, call ${call} fails ${lasts ? "for good" : "once"}: ${problem}`);
        if (!wasReached) break;
        counts[name] += 1;
      }
    }
  }
  return { counts, wrong };
}

Object.assign(globalThis, { failCalls });

export type FailCalls = typeof failCalls;
