// A random generator seeded by a name, used by all art.

export class Chance {
  private state: number;

  constructor(name: string) {
    // FNV-1a over the UTF-16 units; the first few results are skipped because they are similar for similar
    // names.
    let hash = 0x811c9dc5;
    for (let index = 0; index < name.length; ++index)
      hash = Math.imul(hash ^ name.charCodeAt(index), 0x01000193);
    this.state = hash;
    for (let step = 0; step < 4; ++step) this.unit();
  }

  // From 0 to below 1 (mulberry32).
  unit(): number {
    this.state = (this.state + 0x6d2b79f5) | 0;
    let mixed = Math.imul(this.state ^ (this.state >>> 15), 1 | this.state);
    mixed = (mixed + Math.imul(mixed ^ (mixed >>> 7), 61 | mixed)) ^ mixed;
    return ((mixed ^ (mixed >>> 14)) >>> 0) / 4294967296;
  }

  between(least: number, most: number): number {
    return least + this.unit() * (most - least);
  }

  // Integers, inclusive.
  whole(least: number, most: number): number {
    return least + Math.floor(this.unit() * (most - least + 1));
  }

  pick<T>(choices: readonly T[]): T {
    return choices[Math.floor(this.unit() * choices.length)]!;
  }

  // True with probability `share`.
  likely(share: number): boolean {
    return this.unit() < share;
  }
}
