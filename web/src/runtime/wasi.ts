// The WASI functions that the game's C library needs: output, clock and random bytes. There are no files,
// arguments or environment variables.

const done = 0;
const badFile = 8;
const badArgument = 28;

const randomAtOnce = 65536; // bytes; the browser's limit per request

export interface WasiHost {
  memory(): WebAssembly.Memory;
  line(text: string): void; // receives a line of standard output or standard error
}

export function wasiImports(host: WasiHost): WebAssembly.ModuleImports {
  const memory = () => new DataView(host.memory().buffer);
  const decoder = new TextDecoder();
  let unfinished = "";

  return {
    fd_write(file: number, parts: number, count: number, writtenAt: number): number {
      if (file !== 1 && file !== 2) return badFile;
      const view = memory();
      let written = 0;
      for (let part = 0; part < count; part += 1) {
        const start = view.getUint32(parts + 8 * part, true);
        const size = view.getUint32(parts + 8 * part + 4, true);
        unfinished += decoder.decode(new Uint8Array(view.buffer, start, size), { stream: true });
        written += size;
      }
      const lines = unfinished.split("\n");
      unfinished = lines.pop() ?? "";
      for (const line of lines) host.line(line);
      view.setUint32(writtenAt, written, true);
      return done;
    },
    fd_close: () => badFile,
    fd_seek: () => badFile,
    fd_read: () => badFile,
    fd_fdstat_get(file: number, at: number): number {
      if (file > 2) return badFile;
      const view = memory();
      for (let offset = 0; offset < 24; offset += 8) view.setBigUint64(at + offset, 0n, true);
      view.setUint8(at, 2); // character device, for line buffering in the C library
      return done;
    },
    environ_sizes_get(countAt: number, sizeAt: number): number {
      memory().setUint32(countAt, 0, true);
      memory().setUint32(sizeAt, 0, true);
      return done;
    },
    environ_get: () => done,
    random_get(at: number, size: number): number {
      for (let from = 0; from < size; from += randomAtOnce) {
        crypto.getRandomValues(
          new Uint8Array(host.memory().buffer, at + from, Math.min(randomAtOnce, size - from)),
        );
      }
      return done;
    },
    clock_time_get(clock: number, _precision: bigint, at: number): number {
      if (clock !== 0 && clock !== 1) return badArgument;
      const milliseconds = clock === 0 ? Date.now() : performance.now();
      memory().setBigUint64(at, BigInt(Math.round(milliseconds * 1e6)), true);
      return done;
    },
    proc_exit(code: number): never {
      throw new Error(`The game ended itself (${code}).`);
    },
  };
}
