// Export and import of the whole save. Both use a separate game instance, so that they work when the current
// career does not start, and a bad file does no harm.

import type { Page } from "../view_types";
import { backupFolder, type DocumentPlace, type StoredDocument } from "./documents";
import { type DocumentHost, Game, type GameHost, GameStopped, type Program } from "./game";
import { type Change, joined } from "./pieces";
import type { Storage } from "./storage";

const careerFile = "career.plist"; // of an archive: the career in play
const largestFile = 64 * 1024 * 1024; // bytes; a career of a hundred years needs less than half of this
const largestArchive = 256 * 1024 * 1024; // bytes; of a career, three slots and eight backups

const today = () => new Date().toISOString().slice(0, 10);

async function exported(program: Program, storage: Storage): Promise<Uint8Array<ArrayBuffer>> {
  const game = await Game.open(program, { commit: () => undefined }, storage.readable());
  return game.exportStore();
}

export async function downloadSave(program: Program, storage: Storage): Promise<void> {
  handOver(await exported(program, storage), `top-billing-${today()}.plist`, "application/x-plist");
}

// A slot or a backup. Rejects when it can't be read.
export async function downloadDocument(storage: Storage, place: DocumentPlace): Promise<void> {
  const content = await storage.readDocument(place);
  if (!content) throw new Error("The document can't be read.");
  handOver(content, `top-billing-${place.name}`, "application/x-plist");
}

// The career in play, the slots and the backups as one archive. Returns how many of them can't be read.
export async function downloadAll(program: Program, storage: Storage): Promise<number> {
  const files: Record<string, Uint8Array<ArrayBuffer>> = { [careerFile]: await exported(program, storage) };
  let lost = 0;
  for (const place of storage.documents()) {
    const content = await storage.readDocument(place);
    if (content) files[`${place.folder}/${place.name}`] = content;
    else lost += 1;
  }
  const { zipped } = await import("../archive/zip");
  handOver(zipped(files), `top-billing-all-${today()}.zip`, "application/zip");
  return lost;
}

function handOver(content: Uint8Array<ArrayBuffer>, name: string, type: string): void {
  const link = document.createElement("a");
  link.href = URL.createObjectURL(new Blob([content], { type }));
  link.download = name;
  link.click();
  // A phone can still be asking where to save the file.
  setTimeout(() => URL.revokeObjectURL(link.href), 60_000);
}

// Identifies a career to the player.
export interface Career {
  readonly name: string;
  readonly date: string; // as on the hub; empty before the career starts
}

// A save that was read and started for validation, but not stored yet.
export interface ReadSave {
  readonly changes: readonly Change[];
  readonly career: Career;
  readonly documents: readonly StoredDocument[]; // the slots and backups of an archive
  readonly others: string; // a sentence about them
  readonly findings: readonly string[]; // what is damaged in it
}

// A page without tabs is the new-career form.
function careerOn(page: Page): Career {
  if (page.tabs.length === 0) return { name: "a career that has not begun", date: "" };
  return { name: page.title, date: page.subtitle.replaceAll("\n", " ") };
}

// The stored career; undefined when it can't be opened.
export async function storedCareer(
  program: Program,
  locale: Uint8Array,
  storage: Storage,
): Promise<Career | undefined> {
  try {
    const game = await Game.open(program, { commit: () => undefined }, storage.all());
    game.start(locale);
    return careerOn(game.page());
  } catch {
    return undefined;
  }
}

// Puts a backup of the stored career among the documents. A career that can't be read has none.
export async function backUpCareer(program: Program, host: GameHost, storage: Storage): Promise<void> {
  try {
    (await Game.open(program, host, storage.all())).backUpStore();
  } catch (error) {
    if (!(error instanceof GameStopped)) throw error;
  }
}

// The newest backup whose career can be opened.
export async function newestBackup(
  program: Program,
  locale: Uint8Array,
  storage: Storage,
): Promise<ReadSave | undefined> {
  const backups = storage.documents().filter(({ folder }) => folder === backupFolder);
  // Their names have the time.
  for (const backup of backups.sort((one, other) => (one.name < other.name ? 1 : -1))) {
    const content = await storage.readDocument(backup);
    const save = content && (await readSave(program, locale, new Blob([content])));
    if (save && typeof save !== "string") return save;
  }
  return undefined;
}

// Reads an archive of downloadAll(). Slots and backups that can't be opened, or for which there is no place beside the
// `known` ones, are left out.
async function readArchive(
  program: Program,
  locale: Uint8Array,
  archive: Blob,
  known: readonly DocumentPlace[],
): Promise<ReadSave | string> {
  const { fitting, sentenceAbout, unzipped } = await import("../archive/zip");
  try {
    const { [careerFile]: career, ...others } = unzipped(new Uint8Array(await archive.arrayBuffer()));
    if (!career) return "There is no career in this archive.";
    const save = await readSave(program, locale, new Blob([career]));
    if (typeof save === "string") return save;
    const documents: StoredDocument[] = [];
    for (const [path, content] of Object.entries(others)) {
      const document = await documentOf(program, path, content);
      if (document) documents.push(document);
    }
    const coming = fitting(documents, known);
    return { ...save, documents: coming, others: sentenceAbout(coming.length, documents.length - coming.length) };
  } catch {
    return "This archive is damaged.";
  }
}

// The slot or backup in a file, with what lists show of it; undefined when there is none.
async function documentOf(
  program: Program,
  path: string,
  content: Uint8Array<ArrayBuffer>,
): Promise<StoredDocument | undefined> {
  const [folder, name] = /^(SaveSlots|SaveBackups)\/([\w-]+\.plist)$/.exec(path)?.slice(1) ?? [];
  if (!folder || !name) return undefined;
  let found: StoredDocument | undefined;
  const documents: DocumentHost = {
    summaries: () => [],
    put: (document) => (found = { ...document, folder, name }),
    remove: () => undefined,
    read: () => undefined,
  };
  try {
    const game = await Game.open(program, { commit: () => undefined, documents }, []);
    if (game.importStore(content).refusal === "") game.backUpStore();
    // With its own checksum, so that a damaged one is known when it is opened.
    return found && { ...found, size: content.length, content };
  } catch {
    return undefined;
  }
}

const isArchive = async (file: Blob) => (await file.slice(0, 2).text()) === "PK";

// The save in the file, or a message why it can't be imported. `known`: the slots and backups that are here.
export async function readSave(
  program: Program,
  locale: Uint8Array,
  file: Blob,
  known: readonly DocumentPlace[] = [],
): Promise<ReadSave | string> {
  const archive = await isArchive(file);
  if (file.size > (archive ? largestArchive : largestFile)) {
    return "This file is too large to be a save of Top Billing.";
  }
  if (archive) return readArchive(program, locale, file, known);
  let changes: Change[] = [];
  const keep = (more: Change[]) => {
    changes = joined(changes, more);
  };
  try {
    const game = await Game.open(program, { commit: keep }, []);
    const { refusal, remark } = game.importStore(new Uint8Array(await file.arrayBuffer()));
    if (refusal !== "") return refusal;
    game.start(locale);
    const page = game.page();
    // The only notice at the start is about what could not be read.
    const findings = [remark, ...page.dialog.map(({ message }) => message)].filter((text) => text !== "");
    return { changes, career: careerOn(page), findings, documents: [], others: "" };
  } catch (error) {
    if (error instanceof GameStopped) return "The career in this file can't be opened.";
    return "This file can't be read.";
  }
}
