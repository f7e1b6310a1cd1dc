// Messages between the page and the game. A message is a sequence of unnamed values: little-endian numbers,
// and texts or bytes as a 32-bit length followed by the bytes. The game's implementation is
// src/shells/web/message.h.

const encoder = new TextEncoder();
const decoder = new TextDecoder();

export class MessageWriter {
  private view: DataView;
  private size = 0;

  // `bytes`: where the message is written as long as it fits, which saves copying a large one.
  constructor(private bytes: Uint8Array<ArrayBuffer> = new Uint8Array(1024)) {
    this.view = new DataView(bytes.buffer, bytes.byteOffset);
  }

  number(value: number): void {
    this.makeRoom(4);
    this.view.setUint32(this.size, value, true);
    this.size += 4;
  }

  wideNumber(value: number): void {
    this.makeRoom(8);
    this.view.setBigInt64(this.size, BigInt(value), true);
    this.size += 8;
  }

  bytesOf(value: Uint8Array): void {
    this.number(value.length);
    this.makeRoom(value.length);
    this.bytes.set(value, this.size);
    this.size += value.length;
  }

  text(value: string): void {
    this.bytesOf(encoder.encode(value));
  }

  message(): Uint8Array<ArrayBuffer> {
    return this.bytes.subarray(0, this.size);
  }

  private makeRoom(more: number): void {
    if (this.size + more <= this.bytes.length) return;
    const grown = new Uint8Array(Math.max(2 * this.bytes.length, this.size + more));
    grown.set(this.bytes);
    this.bytes = grown;
    this.view = new DataView(grown.buffer);
  }
}

export class MessageReader {
  private readonly view: DataView;
  private at = 0;

  constructor(private readonly message: Uint8Array) {
    this.view = new DataView(message.buffer, message.byteOffset, message.byteLength);
  }

  number(): number {
    this.at += 4;
    return this.view.getUint32(this.at - 4, true);
  }

  wideNumber(): number {
    this.at += 8;
    return Number(this.view.getBigInt64(this.at - 8, true));
  }

  // A part of the message.
  viewOfBytes(): Uint8Array<ArrayBuffer> {
    const size = this.number();
    this.at += size;
    return this.message.subarray(this.at - size, this.at) as Uint8Array<ArrayBuffer>;
  }

  // Returns a copy, because the message can be in the game's memory, which moves when it grows.
  bytesOf(): Uint8Array<ArrayBuffer> {
    return this.viewOfBytes().slice();
  }

  text(): string {
    return decoder.decode(this.viewOfBytes());
  }
}
