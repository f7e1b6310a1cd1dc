// Slots and backups. Uses the terms of src/core/documents.h; src/shells/web/message.h has the messages.

import { MessageReader, MessageWriter } from "./message";

export const backupFolder = "SaveBackups"; // as in src/core/save_backups.h

export const slotFolder = "SaveSlots"; // as in src/core/save_slots.h

export interface DocumentPlace {
  readonly folder: string;
  readonly name: string;
}

export interface DocumentSummary extends DocumentPlace {
  readonly size: number; // bytes
  readonly changed: number; // milliseconds since 1970
  readonly head: Uint8Array<ArrayBuffer>; // the few values that lists show; empty for a damaged document
}

export interface StoredDocument extends DocumentSummary {
  readonly content: Uint8Array<ArrayBuffer>;
}

export type DocumentChange =
  | { readonly kind: "put"; readonly document: StoredDocument }
  | { readonly kind: "remove"; readonly document: DocumentPlace };

export function summaryOf({ content: _, ...summary }: StoredDocument): DocumentSummary {
  return summary;
}

export const isSamePlace = (one: DocumentPlace, other: DocumentPlace) =>
  one.folder === other.folder && one.name === other.name;

export function readPlace(message: Uint8Array): DocumentPlace {
  const reader = new MessageReader(message);
  return { folder: reader.text(), name: reader.text() };
}

export function readDocument(message: Uint8Array): StoredDocument {
  const reader = new MessageReader(message);
  return {
    folder: reader.text(),
    name: reader.text(),
    size: reader.wideNumber(),
    changed: reader.wideNumber(),
    head: reader.bytesOf(),
    content: reader.bytesOf(),
  };
}

// The reverse of readDocument.
export function writeDocument({ folder, name, size, changed, head, content }: StoredDocument): Uint8Array<ArrayBuffer> {
  const writer = new MessageWriter(new Uint8Array(content.length + head.length + 1024));
  writer.text(folder);
  writer.text(name);
  writer.wideNumber(size);
  writer.wideNumber(changed);
  writer.bytesOf(head);
  writer.bytesOf(content);
  return writer.message();
}

export function writePlace({ folder, name }: DocumentPlace): Uint8Array {
  const writer = new MessageWriter();
  writer.text(folder);
  writer.text(name);
  return writer.message();
}

export function writeSummaries(summaries: readonly DocumentSummary[]): Uint8Array {
  const writer = new MessageWriter();
  writer.number(summaries.length);
  for (const { folder, name, size, changed, head } of summaries) {
    writer.text(folder);
    writer.text(name);
    writer.wideNumber(size);
    writer.wideNumber(changed);
    writer.bytesOf(head);
  }
  return writer.message();
}
