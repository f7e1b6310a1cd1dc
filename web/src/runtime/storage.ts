// Where the save lives: in this browser's IndexedDB, or in memory alone where the browser refuses.
//
// All that one action of the player wrote goes into one transaction, which is opened and committed in the
// same turn of the event loop: a page that is closed or killed right after loses nothing, and never keeps
// half an action. The browser's default durability is right here: it survives the end of the browser, and a phone
// that loses its power in the next moments goes back by an action or two, whole.
//
// The browser says only later whether a transaction was kept. Until then its changes wait, and the next
// action's transaction carries them once more: whichever is refused, what is stored is always the state after
// some action.

import { type DBSchema, type IDBPDatabase, openDB } from "idb";

import { type Change, joined, type Piece, Pieces } from "./pieces";

interface Schema extends DBSchema {
  pieces: { key: [string, number]; value: Piece };
  // Values that the game could not understand, as they were. Nothing reads them; they are there to be rescued.
  aside: { key: [string, number, Uint8Array<ArrayBuffer>]; value: Piece };
}

const databaseName = "top-billing";
const schemaVersion = 2; // raise it with every change of what is stored; src/shells/sqlite has the same
const pausesBeforeReopening = [0, 200, 1000]; // milliseconds
const openingPatience = 5000; // milliseconds; some browsers neither open a database nor refuse it

// Why nothing is saved here; each is told to the player in her own words.
export type Refusal = "refused" | "unreadable" | "newer";

export interface StorageWatcher {
  failed(why: string): void; // a save did not get through; told once until one does
  recovered(): void;
}

export class Storage {
  private waiting: Change[] = [];
  private latest = 0; // the number of the last transaction that was opened
  private failing = false;
  private writes: Promise<unknown> = Promise.resolve();

  private constructor(
    private database: IDBPDatabase<Schema> | undefined,
    private pieces: Pieces,
    readonly refusal: Refusal | undefined,
    private readonly watcher: StorageWatcher,
  ) {}

  // Always gives a storage; one with a refusal keeps everything in memory.
  static async open(watcher: StorageWatcher): Promise<Storage> {
    let storage: Storage | undefined;
    let database: IDBPDatabase<Schema>;
    try {
      database = await withPatience(openDatabase(() => storage?.lost()));
    } catch (error) {
      return new Storage(undefined, new Pieces(), isOfLaterSchema(error) ? "newer" : "refused", watcher);
    }
    try {
      const stored = await database.getAll("pieces");
      storage = new Storage(database, new Pieces(stored), undefined, watcher);
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

  // Replaces the whole save, or rejects and leaves everything as it was.
  async replace(changes: readonly Change[]): Promise<void> {
    const replaced = new Pieces();
    replaced.change(changes);
    const rewriting = replaced.rewriting();
    if (!this.refusal) await this.transaction(rewriting);
    this.pieces = replaced;
    this.waiting = [];
  }

  // When all that was handed over so far is kept or refused.
  async settled(): Promise<void> {
    await this.writes;
  }

  // Asks the browser not to throw the save away when it needs room. Some ask the player, so it should follow
  // something that she did.
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
    this.writes = (this.database ? this.transaction(this.waiting) : this.reopen()).then(
      () => {
        // What came after this transaction waits for the one that carries it.
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

  private async transaction(changes: readonly Change[]): Promise<void> {
    if (!this.database) throw closed();
    const transaction = this.database.transaction(["pieces", "aside"], "readwrite");
    try {
      const pieces = transaction.objectStore("pieces");
      const aside = transaction.objectStore("aside");
      const requests = changes.map(({ kind, stored }) => {
        if (kind === "put") return pieces.put(stored);
        if (kind === "drop") return pieces.delete([stored.key, stored.piece]);
        if (kind === "dropKey") return pieces.delete(IDBKeyRange.bound([stored.key], [stored.key, []]));
        if (kind === "dropAll") return pieces.clear();
        return aside.put(stored);
      });
      // A request that fails ends the transaction, and that is where its failure is heard.
      for (const request of requests) request.catch(() => undefined);
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

  // The browser closed the database by itself, and may have thrown its content away: the new one is given the
  // whole save. It may also need a moment before it opens one again.
  private async reopen(): Promise<void> {
    for (const pause of pausesBeforeReopening) {
      await new Promise((over) => setTimeout(over, pause));
      try {
        this.database ??= await withPatience(openDatabase(() => this.lost()));
        await this.transaction(this.pieces.rewriting());
        return;
      } catch {
        // The next try, or the error below, which is what the player is told.
      }
    }
    throw closed();
  }
}

function openDatabase(whenClosed: () => void): Promise<IDBPDatabase<Schema>> {
  return openDB<Schema>(databaseName, schemaVersion, {
    // Version 2 has columns among the pieces. A build that knows none would lose what is in them.
    upgrade(database, before) {
      if (before >= 1) return;
      database.createObjectStore("pieces", { keyPath: ["key", "piece"] });
      database.createObjectStore("aside", { keyPath: ["key", "piece", "bytes"] });
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
