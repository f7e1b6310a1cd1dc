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

function writePiece(writer: MessageWriter, { key, shape, piece, bytes }: Piece): void {
  writer.text(key);
  writer.number(shape);
  writer.wideNumber(piece);
  writer.bytesOf(bytes);
}

const numbersOfPiece = 20; // bytes: two lengths, the shape and the piece number
const longestLetter = 3; // bytes in UTF-8 for a UTF-16 unit

// `room` returns where the message is written: at least this many bytes.
export function writePieces(
  pieces: readonly Piece[],
  room = (size: number): Uint8Array<ArrayBuffer> => new Uint8Array(size),
): Uint8Array<ArrayBuffer> {
  const most = pieces.reduce(
    (sum, { key, bytes }) => sum + numbersOfPiece + longestLetter * key.length + bytes.length,
    4,
  );
  const writer = new MessageWriter(room(most));
  writer.number(pieces.length);
  for (const piece of pieces) writePiece(writer, piece);
  return writer.message();
}

function readPiece(reader: MessageReader): Piece {
  const key = reader.text();
  const shape = reader.number();
  const piece = reader.wideNumber();
  return { key, shape, piece, bytes: reader.viewOfBytes() };
}

// The reverse of writePieces. The pieces are parts of the message.
function readPieces(message: Uint8Array): Piece[] {
  const reader = new MessageReader(message);
  return Array.from({ length: reader.number() }, () => readPiece(reader));
}

export function readChanges(message: Uint8Array): Change[] {
  const reader = new MessageReader(message);
  return Array.from({ length: reader.number() }, () => {
    const kind = changeKinds[reader.number()];
    if (!kind) throw new Error("The game sent a change of an unknown kind.");
    const stored = readPiece(reader);
    return { kind, stored: { ...stored, bytes: stored.bytes.slice() } };
  });
}

// The reverse of readChanges.
export function writeChanges(changes: readonly Change[]): Uint8Array<ArrayBuffer> {
  const writer = new MessageWriter();
  writer.number(changes.length);
  for (const { kind, stored } of changes) {
    writer.number(changeKinds.indexOf(kind));
    writePiece(writer, stored);
  }
  return writer.message();
}

// In the database a change of a piece is a row with the piece's key. A row without bytes drops the piece. A
// row with this number, which comes before all others of its key, drops the key.
const wholeKey = -Infinity;

// The row of a put, a drop or a dropKey.
export function rowOf({ kind, stored }: Change): Piece {
  return kind === "dropKey" ? { ...stored, piece: wholeKey } : stored;
}

function changeOf(row: Piece): Change {
  if (row.piece === wholeKey) return { kind: "dropKey", stored: row };
  return { kind: row.bytes.length === 0 ? "drop" : "put", stored: row };
}

// Merges two lists of changes and drops those that later ones override, so that pending changes never exceed
// the size of the save.
export function joined(earlier: readonly Change[], later: readonly Change[]): Change[] {
  const kept: Change[] = [];
  const written = new Map<string, Set<number>>(); // pieces by key
  const dropped = new Set<string>(); // keys
  let isAllDropped = false;
  for (const change of [...earlier, ...later].reverse()) {
    const { key, piece } = change.stored;
    if (change.kind === "keepAside") {
      kept.push(change);
      continue;
    }
    if (isAllDropped) continue;
    if (change.kind !== "dropAll" && dropped.has(key)) continue;
    if (change.kind === "dropAll") {
      isAllDropped = true;
    } else if (change.kind === "dropKey") {
      dropped.add(key);
    } else {
      const pieces = written.get(key) ?? new Set();
      if (pieces.has(piece)) continue;
      written.set(key, pieces.add(piece));
    }
    kept.push(change);
  }
  return kept.reverse();
}

const packSize = 1 << 19; // bytes

// The pieces in groups of about `packSize`.
export function* packs(pieces: readonly Piece[]): Iterable<readonly Piece[]> {
  let pack: Piece[] = [];
  let size = 0;
  for (const piece of pieces) {
    pack.push(piece);
    size += piece.bytes.length;
    if (size < packSize) continue;
    yield pack;
    pack = [];
    size = 0;
  }
  if (pack.length > 0) yield pack;
}

// All pieces of the save, in memory.
export class Pieces {
  private readonly byKey = new Map<string, Map<number, Piece>>();

  isDamaged = false; // something was left out because it can't be read

  // `packs`: see packs(). `rows`: the changes since the packs were written, in the order of their keys.
  constructor(packs: readonly Uint8Array[] = [], rows: readonly Piece[] = []) {
    for (const pack of packs) this.attempt(() => readPieces(pack).forEach((stored) => this.put(stored)));
    for (const row of rows) this.attempt(() => this.change([changeOf(row)]));
  }

  private attempt(read: () => void): void {
    try {
      read();
    } catch {
      this.isDamaged = true;
    }
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

  // All pieces as messages of about `packSize`.
  packs(): Uint8Array[] {
    return [...packs(this.all())].map((pack) => writePieces(pack).slice());
  }

  private put(stored: Piece): void {
    const pieces = this.byKey.get(stored.key);
    if (pieces) pieces.set(stored.piece, stored);
    else this.byKey.set(stored.key, new Map([[stored.piece, stored]]));
  }
}
