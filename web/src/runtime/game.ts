// A typed wrapper of an instance of the WebAssembly module. After a trap the instance is unusable; the caller
// starts a new one from the saved data.

import type { Page } from "../view_types";
import { type DocumentPlace, type DocumentSummary, readDocument, readPlace, type StoredDocument, writePlace, writeSummaries } from "./documents";
import { MessageReader } from "./message";
import { type Change, packs, type Piece, readChanges, writePieces } from "./pieces";
import { wasiImports } from "./wasi";

interface Exports {
  readonly memory: WebAssembly.Memory;
  _initialize(): void;
  incoming(size: number): number;
  answer(): number;
  add_pieces(): void;
  open_store(): void;
  open_documents(): void;
  set_texts(): void;
  start(): void;
  view(): number;
  press(handle: number): void;
  type(handle: number): void;
  slide(handle: number, value: number): void;
  tick(seconds: number): void;
  back(): void;
  document_read(number: number, found: number): void;
  document_lost(): void;
  saving_failed(): void;
  back_up_store(): void;
  last_week(): number;
  back_to_last_week(): number;
  export_store(): number;
  import_store(): number;
}

// The program is in two modules, so that a new player does not wait for all of it (web/split.mjs).
export interface Program {
  readonly form: WebAssembly.Module; // what the form of a new career needs
  readonly rest?: RestOfProgram; // everything but that form needs it
}

export interface RestOfProgram {
  readonly code: WebAssembly.Module;
  readonly texts: Uint8Array; // the rows of all banks
}

// A function of the rest was called before it was there. This cause of a GameStopped is no fault in the career.
export class RestMissing extends Error {}

// What the form's module imports of the rest, until complete() replaces it.
const missingRest = new Proxy<WebAssembly.ModuleImports>({}, {
  get: () => () => {
    throw new RestMissing();
  },
});

const exportNames = [
  "_initialize", "incoming", "answer", "add_pieces", "open_store", "open_documents", "set_texts", "start", "view", "press", "type",
  "slide", "tick", "back", "document_read", "document_lost", "saving_failed", "back_up_store", "last_week",
  "back_to_last_week", "export_store", "import_store",
] as const satisfies readonly Exclude<keyof Exports, "memory">[];

// The game trapped. `cause` is the trap; the log has its last output.
export class GameStopped extends Error {
  constructor(cause: unknown, readonly log: readonly string[]) {
    super("The game stopped.", { cause });
  }
}

export interface GameHost {
  // The changes of an action. Called during the action.
  commit(changes: Change[]): void;
  // Slots and backups; without it the game has none.
  readonly documents?: DocumentHost;
}

export interface DocumentHost {
  summaries(): readonly DocumentSummary[];
  put(document: StoredDocument): void;
  remove(place: DocumentPlace): void;
  // Answers with Game.documentRead.
  read(number: number, place: DocumentPlace): void;
}

const linesKept = 20;

// The game's debug output. The lines of a call are written as one message, because a busy week has dozens and
// each message takes a millisecond on a slow phone.
class DebugLog {
  readonly lines: string[] = []; // the last ones
  private fresh: string[] = [];

  add(line: string): void {
    this.fresh.push(line);
  }

  write(): void {
    if (this.fresh.length === 0) return;
    console.info(this.fresh.join("\n"));
    this.lines.push(...this.fresh);
    this.lines.splice(0, this.lines.length - linesKept);
    this.fresh = [];
  }
}

export class Game {
  isComplete = false;
  private linked: Promise<unknown> | undefined;
  private stopped = false;

  private constructor(
    private readonly exports: Exports,
    private readonly log: DebugLog,
  ) {}

  // Creates a game with these pieces. Like all functions of a game, it throws GameStopped.
  static async open({ form, rest }: Program, host: GameHost, pieces: readonly Piece[]): Promise<Game> {
    const log = new DebugLog();
    const memory = () => exports.memory;
    const wasi = wasiImports({ memory, line: (text) => log.add(text) });
    const bytes = (at: number, size: number) => new Uint8Array(memory().buffer, at, size);
    const imports = {
      commit: (at: number, size: number) => host.commit(readChanges(bytes(at, size))),
      put_document: (at: number, size: number) => host.documents?.put(readDocument(bytes(at, size))),
      remove_document: (at: number, size: number) => host.documents?.remove(readPlace(bytes(at, size))),
      read_document: (number: number, at: number, size: number) =>
        host.documents?.read(number, readPlace(bytes(at, size))),
    };
    const instance = await WebAssembly.instantiate(form, { wasi_snapshot_preview1: wasi, game: imports, rest: missingRest });
    const exports = exportsOf(instance);

    const game = new Game(exports, log);
    if (rest) await game.link(rest);
    game.guarded(() => {
      exports._initialize();
      if (rest) game.setTexts(rest);
      for (const pack of packs(pieces)) {
        writePieces(pack, (size) => game.incoming(size));
        exports.add_pieces();
      }
      exports.open_store();
      if (!host.documents) return;
      game.setIncoming(writeSummaries(host.documents.summaries()));
      exports.open_documents();
    });
    return game;
  }

  // Adds the rest of the program to a game that was opened without it; once.
  async complete(rest: RestOfProgram): Promise<void> {
    await this.link(rest);
    if (!this.isComplete) this.guarded(() => this.setTexts(rest));
  }

  // Loads the career, or opens the new-career form. The functions below need a started game, except export,
  // import and the way back.
  start(locale: Uint8Array): void {
    this.guarded(() => {
      this.setIncoming(locale);
      this.exports.start();
    });
  }

  page(): Page {
    const json = this.guarded(() => this.answer(this.exports.view()));
    return JSON.parse(new TextDecoder().decode(json)) as Page;
  }

  press(handle: number): void {
    this.guarded(() => this.exports.press(handle));
  }

  type(handle: number, text: string): void {
    this.guarded(() => {
      this.setIncoming(new TextEncoder().encode(text));
      this.exports.type(handle);
    });
  }

  slide(handle: number, value: number): void {
    this.guarded(() => this.exports.slide(handle, value));
  }

  tick(seconds: number): void {
    this.guarded(() => this.exports.tick(seconds));
  }

  back(): void {
    this.guarded(() => this.exports.back());
  }

  // The document that the game asked for; undefined when there is none.
  documentRead(number: number, content: Uint8Array | undefined): void {
    this.guarded(() => {
      this.setIncoming(content ?? new Uint8Array());
      this.exports.document_read(number, content ? 1 : 0);
    });
  }

  // There was no room for a backup.
  documentLost(place: DocumentPlace): void {
    this.guarded(() => {
      this.setIncoming(writePlace(place));
      this.exports.document_lost();
    });
  }

  savingFailed(why: string): void {
    this.guarded(() => {
      this.setIncoming(new TextEncoder().encode(why));
      this.exports.saving_failed();
    });
  }

  // Puts a backup of the stored career among the documents.
  backUpStore(): void {
    this.guarded(() => this.exports.back_up_store());
  }

  // "week 12 of 2031": the stored career can go back to the moment before it ended. Empty when it can't.
  lastWeek(): string {
    return this.guarded(() => new TextDecoder().decode(this.answer(this.exports.last_week())));
  }

  // Goes back there and commits. Returns why that was not possible; empty when it was done.
  backToLastWeek(): string {
    return this.guarded(() => new TextDecoder().decode(this.answer(this.exports.back_to_last_week())));
  }

  exportStore(): Uint8Array<ArrayBuffer> {
    return this.guarded(() => this.answer(this.exports.export_store()));
  }

  // Returns why the file was refused (empty when it was imported and committed), and a remark on the file.
  importStore(file: Uint8Array): { readonly refusal: string; readonly remark: string } {
    const answer = this.guarded(() => {
      this.setIncoming(file);
      return this.answer(this.exports.import_store());
    });
    const reader = new MessageReader(answer);
    return { refusal: reader.text(), remark: reader.text() };
  }

  // The modules share the memory and the table of functions, in which the rest replaces what was missing.
  private link({ code }: RestOfProgram): Promise<unknown> {
    this.linked ??= WebAssembly.instantiate(code, { form: { ...this.exports } });
    return this.linked;
  }

  private setTexts({ texts }: RestOfProgram): void {
    this.setIncoming(texts);
    this.exports.set_texts();
    this.isComplete = true;
  }

  // Growing memory detaches views, so each use creates a new one.
  private setIncoming(bytes: Uint8Array): void {
    this.incoming(bytes.length).set(bytes);
  }

  private incoming(size: number): Uint8Array<ArrayBuffer> {
    const at = this.exports.incoming(size);
    return new Uint8Array(this.exports.memory.buffer as ArrayBuffer, at, size);
  }

  private answer(size: number): Uint8Array<ArrayBuffer> {
    return new Uint8Array(this.exports.memory.buffer, this.exports.answer(), size).slice() as Uint8Array<ArrayBuffer>;
  }

  private guarded<T>(action: () => T): T {
    if (this.stopped) throw new GameStopped(undefined, this.log.lines);
    try {
      return action();
    } catch (cause) {
      this.stopped = true;
      throw new GameStopped(cause, this.log.lines);
    } finally {
      this.log.write();
    }
  }
}

function exportsOf(instance: WebAssembly.Instance): Exports {
  const missing = exportNames.filter((name) => typeof instance.exports[name] !== "function");
  if (missing.length > 0) throw new Error(`The game has no ${missing.join(", ")}.`);
  return instance.exports as unknown as Exports;
}
