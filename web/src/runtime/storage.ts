// Stores the save in IndexedDB, or only in memory if the browser refuses.
//
// The changes of an action go into one transaction, which is opened and committed in the same turn of the
// event loop, so closing the page right after loses nothing and never saves half an action. With the default
// durability a power failure can lose the last action or two, but never a part of one.
//
// A browser reads thousands of small values slowly. So the save is in two parts: packs of many pieces, and the
// changes since the packs were written, which a start moves into new packs when they have become many.
//
// The result of a transaction comes later. Until then its changes stay pending and are repeated in the next
// transaction, so the stored state is always the state after some action.

import { type DBSchema, type IDBPDatabase, openDB, unwrap } from "idb";

import { type Change, joined, type Piece, Pieces, rowOf } from "./pieces";

interface Schema extends DBSchema {
  packs: { key: number; value: Uint8Array };
  pieces: { key: [string, number]; value: Piece }; // the changes, see rowOf()
  // Unreadable values, for manual recovery. The game does not read them.
  aside: { key: [string, number, Uint8Array<ArrayBuffer>]; value: Piece };
}

const databaseName = "top-billing";
const schemaVersion = 3; // raise it with every change of what is stored, also by the game
const pausesBeforeReopening = [0, 200, 1000]; // milliseconds
const openingPatience = 5000; // milliseconds; some browsers never report a result
const mostChanges = 500; // rows; more are moved into packs
const pauseBeforePacking = 3000; // milliseconds; the first page comes before

// Why nothing can be saved here.
export type Refusal = "refused" | "unreadable" | "newer";

export interface StorageWatcher {
  failed(why: string): void; // a save failed; called once until a save succeeds
  recovered(): void;
}

export class Storage {
  private waiting: Change[] = [];
  private latest = 0; // number of the last opened transaction
  private failing = false;
  private writes: Promise<unknown> = Promise.resolve();

  private constructor(
    private database: IDBPDatabase<Schema> | undefined,
    private pieces: Pieces,
    readonly refusal: Refusal | undefined,
    private readonly watcher: StorageWatcher,
  ) {}

  // Always resolves to a storage; with a refusal it is in memory only.
  static async open(watcher: StorageWatcher): Promise<Storage> {
    let storage: Storage | undefined;
    let database: IDBPDatabase<Schema>;
    try {
      database = await withPatience(openDatabase(() => storage?.lost()));
    } catch (error) {
      return new Storage(undefined, new Pieces(), isOfLaterSchema(error) ? "newer" : "refused", watcher);
    }
    try {
      const reading = database.transaction(["packs", "pieces"]);
      const packs = reading.objectStore("packs").getAll();
      const rows = reading.objectStore("pieces").getAll();
      await reading.done;
      storage = new Storage(database, new Pieces(await packs, await rows), undefined, watcher);
      if ((await rows).length > mostChanges) storage.packLater();
      return storage;
    } catch {
      return new Storage(undefined, new Pieces(), "unreadable", watcher);
    }
  }

  // The save after the last action.
  all(): Piece[] {
    return this.pieces.all();
  }

  save(changes: readonly Change[]): void {
    this.pieces.change(changes);
    this.waiting = this.waiting.length > 0 ? joined(this.waiting, changes) : [...changes];
    this.write();
  }

  // Replaces the whole save, or rejects without changes.
  async replace(changes: readonly Change[]): Promise<void> {
    const replaced = new Pieces();
    replaced.change(changes);
    if (!this.refusal) await this.transaction(rewriting(replaced));
    this.pieces = replaced;
    this.waiting = [];
  }

  // Resolves when all pending transactions have a result.
  async settled(): Promise<void> {
    await this.writes;
  }

  // Requests persistent storage. Some browsers ask the player, so call it after an action of the player.
  askToKeep(): void {
    if (!this.refusal) navigator.storage?.persist?.().catch(() => undefined);
  }

  close(): void {
    this.database?.close();
    this.database = undefined;
  }

  private write(): void {
    if (this.refusal) return;
    this.latest += 1;
    const upTo = this.latest;
    this.writes = (this.database ? this.transaction(writing(this.waiting)) : this.reopen()).then(
      () => {
        // Later changes stay pending.
        if (upTo === this.latest) this.waiting = [];
        if (this.failing) this.watcher.recovered();
        this.failing = false;
      },
      (error: unknown) => {
        if (!this.failing) this.watcher.failed(inWords(error));
        this.failing = true;
      },
    );
  }

  // If it fails, the changes stay where they are until the next start.
  private packLater(): void {
    setTimeout(() => this.transaction(rewriting(this.pieces)).catch(() => undefined), pauseBeforePacking);
  }

  private async transaction(write: (stores: Stores) => void): Promise<void> {
    if (!this.database) throw closed();
    const transaction = this.database.transaction(["packs", "pieces", "aside"], "readwrite");
    try {
      // Without a promise for each request: a failed one aborts the transaction, which reports the error.
      write({
        packs: unwrap(transaction.objectStore("packs")),
        pieces: unwrap(transaction.objectStore("pieces")),
        aside: unwrap(transaction.objectStore("aside")),
      });
      transaction.commit();
    } catch (error) {
      transaction.done.catch(() => undefined);
      abort(transaction);
      throw error;
    }
    await transaction.done;
  }

  private lost(): void {
    this.database = undefined;
    this.write();
  }

  // The browser closed the database and may have deleted it, so the whole save is written to the new one.
  // Opening can fail at first and is retried.
  private async reopen(): Promise<void> {
    for (const pause of pausesBeforeReopening) {
      await new Promise((over) => setTimeout(over, pause));
      try {
        this.database ??= await withPatience(openDatabase(() => this.lost()));
        await this.transaction(rewriting(this.pieces));
        return;
      } catch {
        // Tries again, or reports the error below.
      }
    }
    throw closed();
  }
}

interface Stores {
  readonly packs: IDBObjectStore;
  readonly pieces: IDBObjectStore;
  readonly aside: IDBObjectStore;
}

const writing = (changes: readonly Change[]) => ({ packs, pieces, aside }: Stores) => {
  for (const change of changes) {
    const { kind, stored } = change;
    if (kind === "dropAll") {
      packs.clear();
      pieces.clear();
    } else if (kind === "keepAside") {
      aside.put(stored);
    } else {
      if (kind === "dropKey") pieces.delete(IDBKeyRange.bound([stored.key], [stored.key, []]));
      pieces.put(rowOf(change));
    }
  }
};

// Writes all pieces into new packs.
const rewriting = (all: Pieces) => ({ packs, pieces }: Stores) => {
  packs.clear();
  pieces.clear();
  all.packs().forEach((pack, number) => packs.put(pack, number));
};

function openDatabase(whenClosed: () => void): Promise<IDBPDatabase<Schema>> {
  return openDB<Schema>(databaseName, schemaVersion, {
    // Version 2 has columns among the pieces, version 3 has packs. A build that knows none would lose what is in
    // them.
    upgrade(database, before) {
      if (before < 1) {
        database.createObjectStore("pieces", { keyPath: ["key", "piece"] });
        database.createObjectStore("aside", { keyPath: ["key", "piece", "bytes"] });
      }
      if (before < 3) database.createObjectStore("packs");
    },
    terminated: whenClosed,
  });
}

const isOfLaterSchema = (error: unknown) => error instanceof DOMException && error.name === "VersionError";

const closed = () => new DOMException("The database was closed.", "InvalidStateError");

function withPatience<T>(promise: Promise<T>): Promise<T> {
  return new Promise((resolve, reject) => {
    const late = setTimeout(() => reject(new DOMException("", "TimeoutError")), openingPatience);
    promise.then(resolve, reject).finally(() => clearTimeout(late));
  });
}

function abort(transaction: { abort(): void }): void {
  try {
    transaction.abort();
  } catch {
    // It has ended already.
  }
}

// The end of the sentence "The game can't save right now: ".
function inWords(error: unknown): string {
  const name = error instanceof DOMException ? error.name : "";
  if (name === "QuotaExceededError") return "this device has no room left for it.";
  if (name === "InvalidStateError") return "the browser closed the place where it saves.";
  return "the browser refused to keep it.";
}
