// Export and import of the whole save. Both use a separate game instance, so that they work when the current
// career does not start, and a bad file does no harm.

import type { Page } from "../view_types";
import { Game, type GameHost, GameStopped } from "./game";
import { type Change, joined } from "./pieces";
import type { Storage } from "./storage";

const largestFile = 64 * 1024 * 1024; // bytes; a career of a hundred years needs less than half of this

export async function downloadSave(module: WebAssembly.Module, storage: Storage): Promise<void> {
  const game = await Game.open(module, { commit: () => undefined }, storage.readable());
  const file = new Blob([game.exportStore()], { type: "application/x-plist" });
  const link = document.createElement("a");
  link.href = URL.createObjectURL(file);
  link.download = `top-billing-${new Date().toISOString().slice(0, 10)}.plist`;
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
  readonly findings: readonly string[]; // what is damaged in it
}

// A page without tabs is the new-career form.
function careerOn(page: Page): Career {
  if (page.tabs.length === 0) return { name: "a career that has not begun", date: "" };
  return { name: page.title, date: page.subtitle.replaceAll("\n", " ") };
}

// The stored career; undefined when it can't be opened.
export async function storedCareer(
  module: WebAssembly.Module,
  texts: Uint8Array,
  locale: Uint8Array,
  storage: Storage,
): Promise<Career | undefined> {
  try {
    const game = await Game.open(module, { commit: () => undefined }, storage.all());
    game.setTexts(texts);
    game.start(locale);
    return careerOn(game.page());
  } catch {
    return undefined;
  }
}

// Puts a backup of the stored career among the documents. A career that can't be read has none.
export async function backUpCareer(module: WebAssembly.Module, host: GameHost, storage: Storage): Promise<void> {
  try {
    (await Game.open(module, host, storage.all())).backUpStore();
  } catch (error) {
    if (!(error instanceof GameStopped)) throw error;
  }
}

// The save in the file, or a message why it can't be imported.
export async function readSave(
  module: WebAssembly.Module,
  texts: Uint8Array,
  locale: Uint8Array,
  file: Blob,
): Promise<ReadSave | string> {
  if (file.size > largestFile) return "This file is too large to be a save of Top Billing.";
  let changes: Change[] = [];
  const keep = (more: Change[]) => {
    changes = joined(changes, more);
  };
  try {
    const game = await Game.open(module, { commit: keep }, []);
    const { refusal, remark } = game.importStore(new Uint8Array(await file.arrayBuffer()));
    if (refusal !== "") return refusal;
    game.setTexts(texts);
    game.start(locale);
    const page = game.page();
    // The only notice at the start is about what could not be read.
    const findings = [remark, ...page.dialog.map(({ message }) => message)].filter((text) => text !== "");
    return { changes, career: careerOn(page), findings };
  } catch (error) {
    if (error instanceof GameStopped) return "The career in this file can't be opened.";
    return "This file can't be read.";
  }
}
