// A second copy of the save in the browser's cache store, for a database that the browser deletes because a full disk
// has damaged it. (The origin's private file system is no place for it: a browser deletes that too when it opens it on
// a full disk.) On a full disk a browser may delete the cache as well while the page is open. So each save looks
// whether the earlier ones are still there, and else stores everything.
//
// Each save is an entry: a whole save, or the changes since an earlier one. Its name has both generations, so that the
// newest save is known without reading contents, and nothing is written over. A large empty entry is room for the time
// when the disk is full.

import { backupFolder, type DocumentSummary, readDocument, type StoredDocument, writeDocument } from "./documents";
import { Pieces, readChanges, writeChanges, writePieces } from "./pieces";
import type { Save, SavePlace } from "./save_place";

const cacheName = "second copy of the save"; // the service worker deletes others
const roomName = "room";
const roomSize = 2 * 1024 * 1024; // bytes: about ten weeks of the busiest career
const mostChanges = 60; // entries between two whole saves
const pauseBeforeShortening = 2000; // milliseconds

interface Entry {
  readonly name: string;
  readonly generation: number;
  readonly since: number; // generation that the changes begin at; 0 for a whole save
}

// A cache that the browser has deleted can still be written to, so it is opened each time.
const openCache = () => caches.open(cacheName);
const addressOf = (name: string) => new URL(`second-copy/${name}`, location.href).href;
const nameOfSave = (generation: number, since: number) => `save-${generation}-${since}`;
// A document that is written again has another name, so that the old one stays until then.
const nameOfDocument = ({ folder, name, changed }: DocumentSummary) =>
  `document-${encodeURIComponent(`${folder}/${name}`)}-${changed}`;

function entriesAmong(names: readonly string[]): Entry[] {
  const found = names.flatMap((name) => {
    const numbers = /^save-(\d+)-(\d+)$/.exec(name);
    return numbers ? [{ name, generation: Number(numbers[1]), since: Number(numbers[2]) }] : [];
  });
  return found.sort((one, other) => one.generation - other.generation || one.since - other.since);
}

// The entries of the save with the whole one, in order.
function chainFrom(whole: Entry, entries: readonly Entry[]): Entry[] {
  const chain = [whole];
  for (const entry of entries) {
    const last = chain.at(-1)!.generation;
    if (entry.since > 0 && entry.generation > last && entry.since <= last) chain.push(entry);
  }
  return chain;
}

const chainsOf = (entries: readonly Entry[]) =>
  entries
    .filter(({ since }) => since === 0)
    .map((whole) => chainFrom(whole, entries))
    .reverse();

const newestOf = (chains: readonly Entry[][]) => Math.max(0, ...chains.map((chain) => chain.at(-1)!.generation));

export interface CopiedSave {
  readonly pieces: Pieces;
  readonly generation: number;
  readonly documents: readonly StoredDocument[];
}

export class SecondCopy implements SavePlace {
  private wantsWhole = false;
  private shortens = false;
  private latest = 0; // generation of the last save that began
  private work: Promise<unknown> = Promise.resolve();

  private constructor() {}

  // A copy for a career that has none yet. Undefined where the browser has no place for it.
  static create(): SecondCopy | undefined {
    return "caches" in globalThis ? new SecondCopy() : undefined;
  }

  // The copy of an earlier visit; undefined when there is none.
  static async find(): Promise<SecondCopy | undefined> {
    const isThere = "caches" in globalThis && (await caches.has(cacheName).catch(() => false));
    return isThere ? SecondCopy.create() : undefined;
  }

  // The generation of the save in the copy, 0 for none. Rejects when it can't be read.
  async open(): Promise<number> {
    return newestOf(chainsOf(entriesAmong(await this.names())));
  }

  // The newest save that can be read; undefined when there is none.
  async read(): Promise<CopiedSave | undefined> {
    const names = await this.names();
    for (const [whole, ...changes] of chainsOf(entriesAmong(names))) {
      const content = await this.content(whole!.name);
      if (!content) continue;
      const pieces = new Pieces([content]);
      if (pieces.isDamaged) continue;
      let { generation } = whole!;
      for (const entry of changes) {
        const stored = await this.content(entry.name);
        if (!stored) break;
        pieces.change(readChanges(stored));
        generation = entry.generation;
      }
      return { pieces, generation, documents: await this.documents(names) };
    }
    return undefined;
  }

  // The next save replaces everything but the documents.
  replaceAll(): void {
    this.wantsWhole = true;
  }

  save({ generation, since, changes, documents, all }: Save): Promise<void> {
    this.latest = generation;
    return this.inTurn(async () => {
      for (const change of documents) if (change.kind === "put") await this.putDocument(change.document);
      const entries = entriesAmong(await this.names());
      if (this.wantsWhole || newestOf(chainsOf(entries)) < Math.max(since, 1)) {
        await this.put(nameOfSave(generation, 0), writePieces(all.all()));
        this.wantsWhole = false;
        await this.remove(entries.map(({ name }) => name));
        await this.takeRoom();
      } else {
        await this.put(nameOfSave(generation, Math.max(since, 1)), writeChanges(changes));
        if (entries.length > mostChanges) this.shortenLater(all);
      }
    });
  }

  // Stores the save of this generation if the copy has an older one.
  async catchUp(generation: number, all: Pieces): Promise<void> {
    if (this.wantsWhole) await this.save({ generation, since: generation, changes: [], documents: [], all });
    else await this.inTurn(() => this.takeRoom());
  }

  // Removes the documents that are not among these, and returns those that are missing.
  keepDocuments(summaries: readonly DocumentSummary[]): Promise<DocumentSummary[]> {
    return this.inTurn(async () => {
      const there = (await this.names()).filter((name) => name.startsWith("document-"));
      const known = summaries.map(nameOfDocument);
      await this.remove(there.filter((name) => !known.includes(name)));
      return summaries.filter((summary) => !there.includes(nameOfDocument(summary)));
    });
  }

  async readDocument(summary: DocumentSummary): Promise<Uint8Array<ArrayBuffer> | undefined> {
    const content = await this.content(nameOfDocument(summary));
    return content && readDocument(content).content;
  }

  // Without room for a backup the copy goes on without it.
  async putDocument(document: StoredDocument): Promise<void> {
    const stored = this.put(nameOfDocument(document), writeDocument(document));
    await (document.folder === backupFolder ? stored.catch(() => undefined) : stored);
  }

  private async names(): Promise<string[]> {
    return (await (await openCache()).keys()).map(({ url }) => url.slice(url.lastIndexOf("/") + 1));
  }

  // Undefined when the entry is missing or damaged.
  private async content(name: string): Promise<Uint8Array<ArrayBuffer> | undefined> {
    try {
      const found = await (await openCache()).match(addressOf(name));
      const bytes = new Uint8Array(await found!.arrayBuffer());
      return checksum(bytes) === Number(found!.headers.get("checksum")) ? bytes : undefined;
    } catch {
      return undefined;
    }
  }

  private async documents(names: readonly string[]): Promise<StoredDocument[]> {
    const found: StoredDocument[] = [];
    for (const name of names.filter((known) => known.startsWith("document-"))) {
      const content = await this.content(name);
      if (content) found.push(readDocument(content));
    }
    return found.sort((one, other) => one.changed - other.changed);
  }

  // On a full disk the room is given away.
  private async put(name: string, content: Uint8Array<ArrayBuffer>): Promise<void> {
    const cache = await openCache();
    const store = () =>
      cache.put(addressOf(name), new Response(content, { headers: { checksum: String(checksum(content)) } }));
    try {
      await store();
    } catch (error) {
      if (!(await cache.delete(addressOf(roomName)))) throw error;
      await store();
    }
  }

  private async remove(names: readonly string[]): Promise<void> {
    const cache = await openCache();
    for (const name of names) await cache.delete(addressOf(name));
  }

  private async takeRoom(): Promise<void> {
    const cache = await openCache();
    if (await cache.match(addressOf(roomName))) return;
    await cache.put(addressOf(roomName), new Response(new Uint8Array(roomSize))).catch(() => undefined);
  }

  // A week does not wait for it.
  private shortenLater(all: Pieces): void {
    if (this.shortens) return;
    this.shortens = true;
    setTimeout(() => {
      this.shortens = false;
      this.wantsWhole = true;
      this.catchUp(this.latest, all).catch(() => (this.wantsWhole = false));
    }, pauseBeforeShortening);
  }

  // One after another.
  private inTurn<T>(action: () => Promise<T>): Promise<T> {
    const done = this.work.then(action);
    this.work = done.catch(() => undefined);
    return done;
  }
}

// Adler's checksum of 32 bits, as a number.
function checksum(bytes: Uint8Array): number {
  const modulus = 65521;
  const stretch = 5552; // bytes; the sums stay below 2^32
  let one = 1;
  let two = 0;
  for (let start = 0; start < bytes.length; start += stretch) {
    for (let at = start; at < Math.min(start + stretch, bytes.length); at += 1) {
      one += bytes[at]!;
      two += one;
    }
    one %= modulus;
    two %= modulus;
  }
  return two * 65536 + one;
}
