// Stores the save in two places: the browser's database, and a second copy in another kind of store, because a
// browser deletes a database that a full disk has damaged. A start takes the newer one. Where the browser refuses the
// database and there is no copy, the save is in memory only.

import { Database, isOfLaterSchema } from "./database";
import {
  backupFolder, type DocumentChange, type DocumentPlace, type DocumentSummary, isSamePlace, summaryOf,
} from "./documents";
import { type Change, type Piece, Pieces } from "./pieces";
import { Outbox } from "./save_place";
import { type CopiedSave, SecondCopy } from "./second_copy";

const pauseBeforeCopying = 5000; // milliseconds; the first page comes before

// Why nothing can be saved here.
export type Refusal = "refused" | "unreadable" | "newer";

// A save failed in the database.
export interface SavingFailure {
  readonly why: string;
  readonly isNew: boolean; // the last save failed; else an earlier one
  readonly isSaved: boolean; // nevertheless: in the second copy, or by a later save
}

export interface StorageWatcher {
  failing(failure: SavingFailure): void; // called after each save from the first failure on
  backupLost(place: DocumentPlace): void; // there was no room for it
}

export class Storage {
  refusal: Refusal | undefined;
  isRestored = false; // from the second copy, because the database had lost the save

  private pieces = new Pieces();
  private summaries: readonly DocumentSummary[] = [];
  private generation = 0; // of the last save
  private damaged: Pieces | undefined; // what can be read of a save with unreadable parts
  private database: Database | undefined;
  private copy: SecondCopy | undefined;
  private readonly forDatabase = new Outbox();
  private readonly forCopy = new Outbox();
  private failure: string | undefined;
  private writes: Promise<unknown> = Promise.resolve();

  private constructor(private readonly watcher: StorageWatcher) {}

  // Always resolves to a storage; with a refusal it is in memory only.
  static async open(watcher: StorageWatcher): Promise<Storage> {
    const storage = new Storage(watcher);
    const [copied] = await Promise.all([storage.findCopy(), storage.loadDatabase()]);
    storage.begin();
    await storage.compare(copied);
    return storage;
  }

  // The save after the last action.
  all(): Piece[] {
    return this.pieces.all();
  }

  // The save for a file to keep, even if parts of it can't be read.
  readable(): Piece[] {
    return (this.damaged ?? this.pieces).all();
  }

  // The slots and backups, without their contents.
  documents(): readonly DocumentSummary[] {
    return this.summaries;
  }

  // Stored before the changes that are saved after it.
  changeDocument(change: DocumentChange): void {
    this.summaries = this.summaries.filter((old) => !isSamePlace(old, change.document));
    if (change.kind === "put") this.summaries = [...this.summaries, summaryOf(change.document)];
    this.forDatabase.addDocument(change);
    if (this.copies()) this.forCopy.addDocument(change);
    this.write();
    void this.writes.then(() => this.copyDocuments());
  }

  // The content of a document; undefined when there is none or it can't be read.
  async readDocument(place: DocumentPlace): Promise<Uint8Array<ArrayBuffer> | undefined> {
    const change = this.forDatabase.waitingDocuments().find(({ document }) => isSamePlace(document, place));
    if (change) return change.kind === "put" ? change.document.content : undefined;
    const stored = await this.database?.readDocument(place).catch(() => undefined);
    if (stored) return stored;
    const summary = this.summaries.find((known) => isSamePlace(known, place));
    return summary && this.copy?.readDocument(summary).catch(() => undefined);
  }

  save(changes: readonly Change[]): void {
    this.pieces.change(changes);
    this.forDatabase.add(changes);
    if (this.copies()) this.forCopy.add(changes);
    this.write();
  }

  // Replaces the whole save, or rejects without changes.
  async replace(changes: readonly Change[]): Promise<void> {
    const replaced = new Pieces();
    replaced.change(changes);
    const documents = this.forDatabase.waitingDocuments();
    if (this.database) await this.database.replace(this.generation + 1, replaced, documents);
    this.generation += 1;
    this.pieces = replaced;
    this.forDatabase.begin(this.generation);
    if (this.database) this.forDatabase.forget(documents);
    if (!this.copies()) return;
    this.forCopy.begin(this.generation);
    this.copy?.replaceAll();
    const stored = this.forCopy.send(this.copy!, this.generation, replaced);
    await (this.database ? stored.catch(() => undefined) : stored);
  }

  // Resolves when all pending saves have a result.
  async settled(): Promise<void> {
    await this.writes;
  }

  // Requests persistent storage: without it Chromium deletes both places when it starts on a full disk. Some browsers
  // ask the player, so call it after an action of the player.
  askToKeep(): void {
    if (!this.refusal) navigator.storage?.persist?.().catch(() => undefined);
  }

  close(): void {
    this.database?.close();
    this.database = this.copy = undefined;
    this.refusal = "refused";
  }

  private async loadDatabase(): Promise<void> {
    try {
      this.database = await Database.open(() => this.lost());
    } catch (error) {
      this.refusal = isOfLaterSchema(error) ? "newer" : "refused";
      return;
    }
    try {
      const { pieces, summaries, generation, wantsPacking } = await this.database.read();
      if (pieces.isDamaged) this.damaged = pieces;
      else this.pieces = pieces;
      this.summaries = summaries;
      this.generation = generation;
      if (wantsPacking) this.database.packLater(() => [this.generation, this.pieces]);
    } catch {
      this.refusal = "unreadable";
    }
    if (this.damaged) this.refusal = "unreadable";
    if (this.refusal) this.withoutDatabase();
  }

  private begin(): void {
    this.forDatabase.begin(this.generation);
    this.forCopy.begin(this.generation);
  }

  // What can't be read is not overwritten.
  private withoutDatabase(): void {
    this.database?.close();
    this.database = undefined;
    this.generation = 0;
  }

  // The generation of the copy of an earlier visit, 0 for none; undefined when it can't be read.
  private async findCopy(): Promise<number | undefined> {
    this.copy = await SecondCopy.find();
    return this.copy ? this.copy.open().catch(() => undefined) : 0;
  }

  // Takes the save in the copy if it is newer.
  private async compare(copied: number | undefined): Promise<void> {
    if (this.refusal === "newer") this.copy = undefined;
    if (!this.copy) return;
    const isNewer = copied === undefined ? this.all().length === 0 : copied > this.generation;
    const save = isNewer ? await this.copy.read().catch(() => undefined) : undefined;
    if (save && save.generation > this.generation) return this.restore(save);
    if (isNewer && this.all().length === 0) this.refusal ??= "unreadable";
    if (copied !== this.generation) this.copy.replaceAll();
    if (!this.refusal) setTimeout(() => void this.bringCopyUpToDate(), pauseBeforeCopying);
  }

  private restore({ pieces, documents, generation }: CopiedSave): void {
    this.isRestored = this.refusal === undefined;
    if (this.refusal) this.failure = "the browser can't read the place where it saves.";
    this.refusal = undefined;
    this.pieces = pieces;
    this.generation = generation;
    this.begin();
    this.database?.replaceAll();
    for (const document of documents) {
      const known = this.summaries.find((summary) => isSamePlace(summary, document));
      if (known && known.changed >= document.changed) continue;
      this.summaries = [...this.summaries.filter((summary) => summary !== known), summaryOf(document)];
      this.forDatabase.addDocument({ kind: "put", document });
    }
    this.write();
  }

  // Whether there is a second copy; begins one for a career that has none.
  private copies(): boolean {
    if (!this.copy && !this.refusal) this.copy = SecondCopy.create();
    return this.copy !== undefined;
  }

  private write(): void {
    if (this.refusal) return;
    this.generation += 1;
    const { generation, pieces } = this;
    const stored = this.database && this.forDatabase.send(this.database, generation, pieces);
    const copied = this.copy && this.forCopy.send(this.copy, generation, pieces);
    this.writes = Promise.allSettled([stored, copied]).then(([database, copy]) => {
      const isStored = this.database !== undefined && database.status === "fulfilled";
      if (database.status === "rejected") {
        if (this.dropBackups()) return this.write();
        this.failure = inWords(database.reason);
      }
      const isCopied = this.copy !== undefined && copy.status === "fulfilled";
      if (this.failure === undefined) return;
      this.watcher.failing({ why: this.failure, isNew: !isStored, isSaved: isStored || isCopied });
    });
  }

  // A backup that can't be stored is given up, so that the game itself can still be saved. False when none waits.
  private dropBackups(): boolean {
    const isBackup = ({ kind, document }: DocumentChange) => kind === "put" && document.folder === backupFolder;
    const backups = this.forDatabase.waitingDocuments().filter(isBackup);
    this.forDatabase.forget(backups);
    for (const { document } of backups) {
      this.summaries = this.summaries.filter((old) => !isSamePlace(old, document));
      this.watcher.backupLost(document);
    }
    return backups.length > 0;
  }

  // Makes the copy the same as the database.
  private async bringCopyUpToDate(): Promise<void> {
    await this.copy?.catchUp(this.generation, this.pieces).catch(() => undefined);
    await this.copyDocuments();
  }

  private async copyDocuments(): Promise<void> {
    if (!this.copy || this.refusal) return;
    const missing = await this.copy.keepDocuments(this.summaries).catch(() => []);
    for (const summary of missing) {
      const content = await this.database?.readDocument(summary).catch(() => undefined);
      if (content) await this.copy?.putDocument({ ...summary, content }).catch(() => undefined);
    }
  }

  // The browser closed the database and may have deleted it with its slots and backups.
  private lost(): void {
    const summaries = this.summaries;
    this.write();
    void this.writes.then(async () => {
      for (const summary of summaries) {
        const content = await this.readDocument(summary);
        if (content) this.forDatabase.addDocument({ kind: "put", document: { ...summary, content } });
      }
      if (!this.forDatabase.isEmpty) this.write();
    });
  }
}

// The end of the sentence "Saving failed: ".
function inWords(error: unknown): string {
  const name = error instanceof DOMException ? error.name : "";
  if (name === "QuotaExceededError") return "this device has no room left for it.";
  if (name === "InvalidStateError") return "the browser closed the place where it saves.";
  return "the browser refused to keep it.";
}
