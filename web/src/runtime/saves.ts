// Taking the whole save out as a file, and bringing one in. Both work on a game of their own that never plays,
// so that they are there when the career in play does not start, and a bad file can do no harm.

import type { Page } from "../view_types";
import { Game, GameStopped } from "./game";
import { type Change, joined } from "./pieces";
import type { Storage } from "./storage";

const largestFile = 256 * 1024 * 1024; // bytes; a career of a hundred years takes a tenth of it

export async function downloadSave(module: WebAssembly.Module, storage: Storage): Promise<void> {
  const game = await Game.open(module, { commit: () => undefined }, storage.all());
  const file = new Blob([game.exportStore()], { type: "application/x-plist" });
  const link = document.createElement("a");
  link.href = URL.createObjectURL(file);
  link.download = `top-billing-${new Date().toISOString().slice(0, 10)}.plist`;
  link.click();
  // The download has begun, but a phone may still be asking where to put it.
  setTimeout(() => URL.revokeObjectURL(link.href), 60_000);
}

// What a player knows a career by.
export interface Career {
  readonly name: string;
  readonly date: string; // as the hub shows it; empty before the career has begun
}

// A save that was read and started once, and that nothing has been replaced by yet.
export interface ReadSave {
  readonly changes: readonly Change[];
  readonly career: Career;
}

// A page without tabs is the form of a career that has not begun.
function careerOn(page: Page): Career {
  if (page.tabs.length === 0) return { name: "a career that has not begun", date: "" };
  return { name: page.title, date: page.subtitle.replaceAll("\n", " ") };
}

// The career that is stored here now; nothing when it can't be opened.
export async function storedCareer(
  module: WebAssembly.Module,
  texts: Uint8Array,
  locale: Uint8Array,
  storage: Storage,
): Promise<Career | undefined> {
  try {
    const game = await Game.open(module, { commit: () => undefined }, storage.all());
    game.handInTexts(texts);
    game.start(locale);
    return careerOn(game.page());
  } catch {
    return undefined;
  }
}

// What the file holds, or why it can't be brought in: a sentence for the player.
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
    const refusal = game.importStore(new Uint8Array(await file.arrayBuffer()));
    if (refusal !== "") return refusal;
    game.handInTexts(texts);
    game.start(locale);
    return { changes, career: careerOn(game.page()) };
  } catch (error) {
    if (error instanceof GameStopped) return "The career in this file can't be opened.";
    return "This file can't be read.";
  }
}
