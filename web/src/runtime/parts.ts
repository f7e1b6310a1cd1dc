// The parts of the game that are fetched, each once. A failure is tried again the next time a part is wanted.

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

// What the page needs before it can draw anything.
export const program = new Part(compile, WASM_FILE);

// The rows of all banks, which the page does not need before a career begins: they are fetched after it has been
// painted.
export const texts = new Part(async (answer) => new Uint8Array(await answer.arrayBuffer()), TEXTS_FILE);

async function compile(answer: Response): Promise<WebAssembly.Module> {
  // Compiling while it arrives is faster, but insists on a type that not every host knows.
  const streams = answer.headers.get("Content-Type")?.startsWith("application/wasm") ?? false;
  return streams ? WebAssembly.compileStreaming(answer) : WebAssembly.compile(await answer.arrayBuffer());
}
