// Parts of the game that are fetched once. After a failure the next request tries again.

import type { Program, RestOfProgram } from "./game";

declare const FORM_FILE: string;
declare const REST_FILE: string;
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

// All that a new player's first page needs.
export const formPart = new Part(compile, FORM_FILE);

const codePart = new Part(compile, REST_FILE);
const textsPart = new Part(async (answer) => new Uint8Array(await answer.arrayBuffer()), TEXTS_FILE);

// Fetched after a new player's first paint, and before the first page of a career.
export async function restOfProgram(): Promise<RestOfProgram> {
  const [code, texts] = await Promise.all([codePart.get(), textsPart.get()]);
  return { code, texts };
}

export async function wholeProgram(): Promise<Required<Program>> {
  const [form, rest] = await Promise.all([formPart.get(), restOfProgram()]);
  return { form, rest };
}

async function compile(answer: Response): Promise<WebAssembly.Module> {
  // Streaming compilation is faster but needs a MIME type that not every host sends.
  const streams = answer.headers.get("Content-Type")?.startsWith("application/wasm") ?? false;
  return streams ? WebAssembly.compileStreaming(answer) : WebAssembly.compile(await answer.arrayBuffer());
}
