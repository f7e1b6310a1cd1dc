// Parts of the game that are fetched once. After a failure the next request tries again.

declare const WASM_FILE: string;
declare const TEXTS_FILE: string;

class Part<T> {
  private fetched: Promise<T> | undefined;

  constructor(private readonly load: (answer: Response) => Promise<T>, private readonly file: string) {}

  get(): Promise<T> {
    if (!this.fetched) {
      this.fetched = this.fetch();
      this.fetched.catch(() => {
        this.fetched = undefined;
      });
    }
    return this.fetched;
  }

  private async fetch(): Promise<T> {
    const answer = await fetch(this.file);
    if (!answer.ok) throw new Error(`${this.file}: ${answer.status} ${answer.statusText}`);
    return this.load(answer);
  }
}

// Needed before the first page.
export const program = new Part(compile, WASM_FILE);

// The rows of all banks, which are fetched after the first paint.
export const texts = new Part(async (answer) => new Uint8Array(await answer.arrayBuffer()), TEXTS_FILE);

async function compile(answer: Response): Promise<WebAssembly.Module> {
  // Streaming compilation is faster but needs a MIME type that not every host sends.
  const streams = answer.headers.get("Content-Type")?.startsWith("application/wasm") ?? false;
  return streams ? WebAssembly.compileStreaming(answer) : WebAssembly.compile(await answer.arrayBuffer());
}
