// Messages between the page and the game. A message is a sequence of unnamed values: little-endian numbers,
// and texts or bytes as a 32-bit length followed by the bytes. The game's implementation is
// src/shells/web/message.h.

export class MessageWriter {
  private bytes = new Uint8Array(1024);
  private size = 0;

  number(value: number): void {
    this.room(4).setUint32(this.size, value, true);
    this.size += 4;
  }

  wideNumber(value: number): void {
    this.room(8).setBigInt64(this.size, BigInt(value), true);
    this.size += 8;
  }

  bytesOf(value: Uint8Array): void {
    this.number(value.length);
    this.room(value.length);
    this.bytes.set(value, this.size);
    this.size += value.length;
  }

  text(value: string): void {
    this.bytesOf(new TextEncoder().encode(value));
  }

  message(): Uint8Array {
    return this.bytes.subarray(0, this.size);
  }

  private room(more: number): DataView {
    if (this.size + more > this.bytes.length) {
      const grown = new Uint8Array(Math.max(2 * this.bytes.length, this.size + more));
      grown.set(this.bytes);
      this.bytes = grown;
    }
    return new DataView(this.bytes.buffer);
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

  // Returns a copy, because the message can be in the game's memory, which moves when it grows.
  bytesOf(): Uint8Array<ArrayBuffer> {
    const size = this.number();
    this.at += size;
    return this.message.slice(this.at - size, this.at) as Uint8Array<ArrayBuffer>;
  }

  text(): string {
    return new TextDecoder().decode(this.bytesOf());
  }
}
