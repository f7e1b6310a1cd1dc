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

import { type DocumentChange, type DocumentPlace, type DocumentSummary, isSamePlace } from "./documents";
import { type Change, joined, type Piece, Pieces, rowOf } from "./pieces";

interface Schema extends DBSchema {
  packs: { key: number; value: Uint8Array };
  pieces: { key: [string, number]; value: Piece }; // the changes, see rowOf()
  // Unreadable values, for manual recovery. The game does not read them.
  aside: { key: [string, number, Uint8Array<ArrayBuffer>]; value: Piece };
  // Slots and backups; their contents are not read before they are asked for.
  summaries: { key: [string, string]; value: DocumentSummary };
  contents: { key: [string, string]; value: DocumentPlace & { content: Uint8Array<ArrayBuffer> } };
}

const databaseName = "top-billing";
const schemaVersion = 3; // raise it with every change of what is stored; src/shells/sqlite has its own
const pausesBeforeReopening = [0, 200, 1000]; // milliseconds
const backupFolder = "SaveBackups"; // as in src/core/save_backups.h
const openingPatience = 5000; // milliseconds; some browsers never report a result
const mostChanges = 500; // rows; more are moved into packs
const pauseBeforePacking = 3000; // milliseconds; the first page comes before

// Why nothing can be saved here.
export type Refusal = "refused" | "unreadable" | "newer";

export interface StorageWatcher {
  failed(why: string): void; // a save failed; called once until a save succeeds
  recovered(): void;
  backupLost(place: DocumentPlace): void; // there was no room for it
}

export class Storage {
  private waiting: Change[] = [];
  private waitingDocuments: DocumentChange[] = [];
  private latest = 0; // number of the last opened transaction
  private failing = false;
  private writes: Promise<unknown> = Promise.resolve();

  private constructor(
    private database: IDBPDatabase<Schema> | undefined,
    private pieces: Pieces,
    private summaries: readonly DocumentSummary[],
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
      return new Storage(undefined, new Pieces(), [], isOfLaterSchema(error) ? "newer" : "refused", watcher);
    }
    try {
      const reading = database.transaction(["packs", "pieces", "summaries"]);
      const packs = reading.objectStore("packs").getAll();
      const rows = reading.objectStore("pieces").getAll();
      const summaries = reading.objectStore("summaries").getAll();
      await reading.done;
      storage = new Storage(database, new Pieces(await packs, await rows), await summaries, undefined, watcher);
      if ((await rows).length > mostChanges) storage.packLater();
      return storage;
    } catch {
      return new Storage(undefined, new Pieces(), [], "unreadable", watcher);
    }
  }

  // The save after the last action.
  all(): Piece[] {
    return this.pieces.all();
  }

  // The slots and backups, without their contents.
  documents(): readonly DocumentSummary[] {
    return this.summaries;
  }

  // Stored before the changes that are saved after it.
  changeDocument(change: DocumentChange): void {
    const others = (list: readonly DocumentSummary[]) => list.filter((old) => !isSamePlace(old, change.document));
    this.summaries = others(this.summaries);
    if (change.kind === "put") {
      const { content: _, ...summary } = change.document;
      this.summaries = [...this.summaries, summary];
    }
    this.waitingDocuments = this.waitingDocuments.filter((old) => !isSamePlace(old.document, change.document));
    this.waitingDocuments.push(change);
    this.write();
  }

  // The content of a document; undefined when there is none or it can't be read.
  async readDocument(place: DocumentPlace): Promise<Uint8Array | undefined> {
    const change = this.waitingDocuments.find(({ document }) => isSamePlace(document, place));
    if (change) return change.kind === "put" ? change.document.content : undefined;
    try {
      return (await this.database?.get("contents", [place.folder, place.name]))?.content;
    } catch {
      return undefined;
    }
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
    const documents = this.waitingDocuments;
    if (!this.refusal) await this.transaction(rewriting(replaced, documents));
    this.pieces = replaced;
    this.waiting = [];
    if (!this.refusal) this.forget(documents);
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
    if (this.refusal || this.waiting.length + this.waitingDocuments.length === 0) return;
    this.latest += 1;
    const upTo = this.latest;
    const documents = this.waitingDocuments;
    this.writes = (this.database ? this.transaction(writing(this.waiting, documents)) : this.reopen()).then(
      () => {
        // Later changes stay pending.
        if (upTo === this.latest) this.waiting = [];
        this.forget(documents);
        if (this.failing) this.watcher.recovered();
        this.failing = false;
      },
      (error: unknown) => {
        if (this.dropBackups()) return this.write();
        if (!this.failing) this.watcher.failed(inWords(error));
        this.failing = true;
      },
    );
  }

  // A backup that can't be stored is given up, so that the game itself can still be saved. False when none waits.
  private dropBackups(): boolean {
    const isBackup = ({ kind, document }: DocumentChange) => kind === "put" && document.folder === backupFolder;
    const backups = this.waitingDocuments.filter(isBackup);
    this.forget(backups);
    for (const { document } of backups) {
      this.summaries = this.summaries.filter((old) => !isSamePlace(old, document));
      this.watcher.backupLost(document);
    }
    return backups.length > 0;
  }

  // These changes are stored.
  private forget(documents: readonly DocumentChange[]): void {
    this.waitingDocuments = this.waitingDocuments.filter((change) => !documents.includes(change));
  }

  // If it fails, the changes stay where they are until the next start.
  private packLater(): void {
    setTimeout(() => this.transaction(rewriting(this.pieces, [])).catch(() => undefined), pauseBeforePacking);
  }

  private async transaction(write: (stores: Stores) => void): Promise<void> {
    if (!this.database) throw closed();
    const transaction = this.database.transaction(["packs", "pieces", "aside", "summaries", "contents"], "readwrite");
    try {
      // Without a promise for each request: a failed one aborts the transaction, which reports the error.
      write({
        packs: unwrap(transaction.objectStore("packs")),
        pieces: unwrap(transaction.objectStore("pieces")),
        aside: unwrap(transaction.objectStore("aside")),
        summaries: unwrap(transaction.objectStore("summaries")),
        contents: unwrap(transaction.objectStore("contents")),
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
        await this.transaction(rewriting(this.pieces, this.waitingDocuments));
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
  readonly summaries: IDBObjectStore;
  readonly contents: IDBObjectStore;
}

const writing = (changes: readonly Change[], documents: readonly DocumentChange[]) => (stores: Stores) => {
  const { packs, pieces, aside } = stores;
  writeDocuments(documents, stores);
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

function writeDocuments(changes: readonly DocumentChange[], { summaries, contents }: Stores): void {
  for (const change of changes) {
    const { folder, name } = change.document;
    if (change.kind === "remove") {
      summaries.delete([folder, name]);
      contents.delete([folder, name]);
    } else {
      const { content, ...summary } = change.document;
      summaries.put(summary);
      contents.put({ folder, name, content });
    }
  }
}

// Writes all pieces into new packs.
const rewriting = (all: Pieces, documents: readonly DocumentChange[]) => (stores: Stores) => {
  const { packs, pieces } = stores;
  writeDocuments(documents, stores);
  packs.clear();
  pieces.clear();
  all.packs().forEach((pack, number) => packs.put(pack, number));
};

function openDatabase(whenClosed: () => void): Promise<IDBPDatabase<Schema>> {
  return openDB<Schema>(databaseName, schemaVersion, {
    // Version 2 has columns among the pieces, version 3 packs and documents. A build that knows none would lose
    // what is in them.
    upgrade(database, before) {
      if (before < 1) {
        database.createObjectStore("pieces", { keyPath: ["key", "piece"] });
        database.createObjectStore("aside", { keyPath: ["key", "piece", "bytes"] });
      }
      if (before < 3) {
        database.createObjectStore("packs");
        database.createObjectStore("summaries", { keyPath: ["folder", "name"] });
        database.createObjectStore("contents", { keyPath: ["folder", "name"] });
      }
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
