// A place that stores the save, and what waits to be stored there.

import { type DocumentChange, isSamePlace } from "./documents";
import { type Change, joined, type Pieces } from "./pieces";

export interface Save {
  readonly generation: number; // rises with each save
  readonly since: number; // generation of the last save that is known to be stored
  readonly changes: readonly Change[]; // since then
  readonly documents: readonly DocumentChange[]; // stored before the changes
  readonly all: Pieces; // the save with the changes
}

export interface SavePlace {
  // Stores everything or nothing. Begins in the same turn of the event loop.
  save(save: Save): Promise<void>;
}

// The result of a save comes later. Until then its changes stay pending and are repeated in the next save, so that
// the stored state is always the state after some action.
export class Outbox {
  private changes: Change[] = [];
  private documents: readonly DocumentChange[] = [];
  private latest = 0; // generation of the last save that began
  private since = 0; // generation of the last stored save

  add(changes: readonly Change[]): void {
    this.changes = this.changes.length > 0 ? joined(this.changes, changes) : [...changes];
  }

  addDocument(change: DocumentChange): void {
    this.documents = [...this.documents.filter((old) => !isSamePlace(old.document, change.document)), change];
  }

  waitingDocuments(): readonly DocumentChange[] {
    return this.documents;
  }

  get isEmpty(): boolean {
    return this.changes.length + this.documents.length === 0;
  }

  async send(place: SavePlace, generation: number, all: Pieces): Promise<void> {
    this.latest = generation;
    const { changes, documents } = this;
    await place.save({ generation, since: this.since, changes, documents, all });
    if (this.latest === generation) this.begin(generation);
    this.forget(documents);
  }

  // These are stored, or given up.
  forget(documents: readonly DocumentChange[]): void {
    this.documents = this.documents.filter((change) => !documents.includes(change));
  }

  // The save of this generation is stored otherwise.
  begin(generation: number): void {
    this.changes = [];
    this.since = generation;
  }
}
