// The save as pieces of a dictionary, changed by the game's commits. Uses the terms of src/core/save_store.h.

import { MessageReader, MessageWriter } from "./message";

export interface Piece {
  readonly key: string;
  readonly shape: number;
  readonly piece: number;
  readonly bytes: Uint8Array<ArrayBuffer>;
}

const changeKinds = ["put", "drop", "dropKey", "dropAll", "keepAside"] as const;

export interface Change {
  readonly kind: (typeof changeKinds)[number];
  readonly stored: Piece;
}

export function writePieces(pieces: readonly Piece[]): Uint8Array {
  const writer = new MessageWriter();
  writer.number(pieces.length);
  for (const { key, shape, piece, bytes } of pieces) {
    writer.text(key);
    writer.number(shape);
    writer.wideNumber(piece);
    writer.bytesOf(bytes);
  }
  return writer.message();
}

export function readChanges(message: Uint8Array): Change[] {
  const reader = new MessageReader(message);
  return Array.from({ length: reader.number() }, () => {
    const kind = changeKinds[reader.number()];
    if (!kind) throw new Error("The game sent a change of an unknown kind.");
    const key = reader.text();
    const shape = reader.number();
    const piece = reader.wideNumber();
    return { kind, stored: { key, shape, piece, bytes: reader.bytesOf() } };
  });
}

// Merges two lists of changes and drops those that later ones override, so that pending changes never exceed
// the size of the save.
export function joined(earlier: readonly Change[], later: readonly Change[]): Change[] {
  let all = [...earlier];
  for (const change of later) {
    all = all.filter((old) => !voids(change, old));
    all.push(change);
  }
  return all;
}

function voids(later: Change, earlier: Change): boolean {
  if (earlier.kind === "keepAside" || later.kind === "keepAside") return false;
  if (later.kind === "dropAll") return true;
  if (earlier.kind === "dropAll" || earlier.stored.key !== later.stored.key) return false;
  if (later.kind === "dropKey") return true;
  return earlier.kind !== "dropKey" && earlier.stored.piece === later.stored.piece;
}

// All pieces of the save, in memory.
export class Pieces {
  private readonly byKey = new Map<string, Map<number, Piece>>();

  constructor(pieces: readonly Piece[] = []) {
    for (const stored of pieces) this.put(stored);
  }

  all(): Piece[] {
    return [...this.byKey.values()].flatMap((pieces) => [...pieces.values()]);
  }

  change(changes: readonly Change[]): void {
    for (const { kind, stored } of changes) {
      if (kind === "put") this.put(stored);
      if (kind === "drop") this.byKey.get(stored.key)?.delete(stored.piece);
      if (kind === "dropKey") this.byKey.delete(stored.key);
      if (kind === "dropAll") this.byKey.clear();
    }
  }

  // The changes that make any storage hold exactly these pieces.
  rewriting(): Change[] {
    const nothing = { key: "", shape: 0, piece: 0, bytes: new Uint8Array() };
    const puts = this.all().map((stored) => ({ kind: "put", stored }) as const);
    return [{ kind: "dropAll", stored: nothing }, ...puts];
  }

  private put(stored: Piece): void {
    const pieces = this.byKey.get(stored.key);
    if (pieces) pieces.set(stored.piece, stored);
    else this.byKey.set(stored.key, new Map([[stored.piece, stored]]));
  }
}
