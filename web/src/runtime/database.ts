// The save in IndexedDB.
//
// The changes of an action go into one transaction, which is opened and committed in the same turn of the
// event loop, so closing the page right after loses nothing and never saves half an action. With the default
// durability a power failure can lose the last action or two, but never a part of one.
//
// A browser reads thousands of small values slowly. So the save is in two parts: packs of many pieces, and the
// changes since the packs were written, which a start moves into new packs when they have become many.

import { type DBSchema, type IDBPDatabase, openDB, unwrap } from "idb";

import type { DocumentChange, DocumentPlace, DocumentSummary } from "./documents";
import { type Change, type Piece, Pieces, rowOf } from "./pieces";
import type { Save, SavePlace } from "./save_place";

interface Schema extends DBSchema {
  packs: { key: number; value: Uint8Array };
  pieces: { key: [string, number]; value: Piece }; // the changes, see rowOf()
  // Unreadable values, for manual recovery. The game does not read them.
  aside: { key: [string, number, Uint8Array<ArrayBuffer>]; value: Piece };
  // Slots and backups; their contents are not read before they are asked for.
  summaries: { key: [string, string]; value: DocumentSummary };
  contents: { key: [string, string]; value: DocumentPlace & { content: Uint8Array<ArrayBuffer> } };
  about: { key: "generation"; value: number }; // of the last save
}

const databaseName = "top-billing";
const schemaVersion = 6; // raise it with every change of what is stored; src/shells/sqlite has its own
const pausesBeforeReopening = [0, 200, 1000]; // milliseconds
const openingPatience = 5000; // milliseconds; some browsers never report a result
const mostChanges = 500; // rows; more are moved into packs
const pauseBeforePacking = 3000; // milliseconds; the first page comes before

export interface Stored {
  readonly pieces: Pieces;
  readonly summaries: readonly DocumentSummary[];
  readonly generation: number;
  readonly wantsPacking: boolean;
}

export class Database implements SavePlace {
  private database: IDBPDatabase<Schema> | undefined;
  private wantsWhole = false;

  // `lost`: the browser closed the database and may have deleted it.
  private constructor(private readonly lost: () => void) {}

  // Rejects when the browser refuses it, or with a VersionError for a database of a newer version of the game.
  static async open(lost: () => void): Promise<Database> {
    const opened = new Database(lost);
    opened.database = await opened.openPatiently();
    return opened;
  }

  // Rejects when it can't be read.
  async read(): Promise<Stored> {
    const reading = this.opened().transaction(["packs", "pieces", "summaries", "about"]);
    const packs = reading.objectStore("packs").getAll();
    const rows = reading.objectStore("pieces").getAll();
    const summaries = reading.objectStore("summaries").getAll();
    const generation = reading.objectStore("about").get("generation");
    await reading.done;
    return {
      pieces: new Pieces(await packs, await rows),
      summaries: await summaries,
      generation: (await generation) ?? 0,
      wantsPacking: (await rows).length > mostChanges,
    };
  }

  // The content of a document; undefined when there is none. Rejects when it can't be read.
  async readDocument({ folder, name }: DocumentPlace): Promise<Uint8Array<ArrayBuffer> | undefined> {
    return (await this.opened().get("contents", [folder, name]))?.content;
  }

  // The next save replaces everything but the documents.
  replaceAll(): void {
    this.wantsWhole = true;
  }

  async save({ generation, changes, documents, all }: Save): Promise<void> {
    if (!this.database) return this.reopen(generation, all, documents);
    const isWhole = this.wantsWhole;
    await this.transaction(isWhole ? rewriting(generation, all, documents) : writing(generation, changes, documents));
    if (isWhole) this.wantsWhole = false;
  }

  // Replaces everything but the documents, or rejects without changes.
  async replace(generation: number, all: Pieces, documents: readonly DocumentChange[]): Promise<void> {
    await this.transaction(rewriting(generation, all, documents));
  }

  // If it fails, the changes stay where they are until the next start.
  packLater(stored: () => readonly [generation: number, all: Pieces]): void {
    setTimeout(() => this.transaction(rewriting(...stored(), [])).catch(() => undefined), pauseBeforePacking);
  }

  close(): void {
    this.database?.close();
    this.database = undefined;
  }

  private opened(): IDBPDatabase<Schema> {
    if (!this.database) throw closed();
    return this.database;
  }

  private openPatiently(): Promise<IDBPDatabase<Schema>> {
    const whenClosed = () => {
      this.database = undefined;
      this.lost();
    };
    return withPatience(openDatabase(whenClosed));
  }

  private async transaction(write: (stores: Stores) => void): Promise<void> {
    const transaction = this.opened().transaction(storeNames, "readwrite");
    try {
      // Without a promise for each request: a failed one aborts the transaction, which reports the error.
      write({
        packs: unwrap(transaction.objectStore("packs")),
        pieces: unwrap(transaction.objectStore("pieces")),
        aside: unwrap(transaction.objectStore("aside")),
        summaries: unwrap(transaction.objectStore("summaries")),
        contents: unwrap(transaction.objectStore("contents")),
        about: unwrap(transaction.objectStore("about")),
      });
      transaction.commit();
    } catch (error) {
      transaction.done.catch(() => undefined);
      abort(transaction);
      throw error;
    }
    await transaction.done;
  }

  // The browser may have deleted the database, so the whole save is written to the new one. Opening can fail at
  // first and is retried.
  private async reopen(generation: number, all: Pieces, documents: readonly DocumentChange[]): Promise<void> {
    for (const pause of pausesBeforeReopening) {
      await new Promise((over) => setTimeout(over, pause));
      try {
        this.database ??= await this.openPatiently();
        await this.transaction(rewriting(generation, all, documents));
        return;
      } catch {
        // Tries again, or reports the error below.
      }
    }
    throw closed();
  }
}

const storeNames = ["packs", "pieces", "aside", "summaries", "contents", "about"] as const;

type Stores = Record<(typeof storeNames)[number], IDBObjectStore>;

const writing = (generation: number, changes: readonly Change[], documents: readonly DocumentChange[]) => (
  stores: Stores,
) => {
  const { packs, pieces, aside, about } = stores;
  writeDocuments(documents, stores);
  about.put(generation, "generation");
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
const rewriting = (generation: number, all: Pieces, documents: readonly DocumentChange[]) => (stores: Stores) => {
  const { packs, pieces, about } = stores;
  writeDocuments(documents, stores);
  about.put(generation, "generation");
  packs.clear();
  pieces.clear();
  all.packs().forEach((pack, number) => packs.put(pack, number));
};

function openDatabase(whenClosed: () => void): Promise<IDBPDatabase<Schema>> {
  return openDB<Schema>(databaseName, schemaVersion, {
    // Version 2 has columns among the pieces, version 3 packs and documents. A build that knows none would lose
    // what is in them. Version 4 has journals among the pieces, version 5 the generation, version 6 other journals.
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
      if (before < 5) database.createObjectStore("about");
    },
    terminated: whenClosed,
  });
}

export const isOfLaterSchema = (error: unknown) => error instanceof DOMException && error.name === "VersionError";

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
