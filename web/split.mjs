// Splits the program in two: what the form of a new career needs, and the rest, which the page fetches after its
// first paint. A profile says which functions the form needs, so nothing has to be listed by hand. A function that
// the profile misses costs a new player a wait, see RestMissing in src/runtime/game.ts.

import { execFileSync } from "node:child_process";
import { webcrypto } from "node:crypto";
import { mkdirSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { dirname, join } from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";
import { build } from "esbuild";

const here = dirname(fileURLToPath(import.meta.url));
const profileExport = "__write_profile";

// As src/shells/web/CMakeLists.txt enables them.
const features = ["--enable-bulk-memory", "--enable-mutable-globals", "--enable-nontrapping-float-to-int", "--enable-sign-ext"];

function run(tool, ...parts) {
  execFileSync(tool, [...features, ...parts], { stdio: "inherit" });
}

// Returns the two modules of the program.
export async function split(wasm) {
  const folder = mkdtempSync(join(tmpdir(), "top-billing-split-"));
  const file = (name) => join(folder, name);
  try {
    run("wasm-split", "--instrument", wasm, "-o", file("instrumented.wasm"), "--profile-export", profileExport);
    writeFileSync(file("profile"), await profileOf(readFileSync(file("instrumented.wasm"))));
    run(
      "wasm-split", wasm, "--profile", file("profile"), "--import-namespace", "form", "--placeholder-namespace", "rest",
      "-o1", file("form.wasm"), "-o2", file("rest.wasm"),
    );
    run("wasm-opt", "-Oz", "--strip-producers", file("form.wasm"), "-o", file("form.wasm")); // 2 % of it
    return { form: readFileSync(file("form.wasm")), rest: readFileSync(file("rest.wasm")) };
  } finally {
    rmSync(folder, { recursive: true });
  }
}

// The profile of a new player's first minute.
async function profileOf(instrumented) {
  globalThis.crypto ??= webcrypto; // Node 18
  let instance;
  const instantiate = WebAssembly.instantiate;
  WebAssembly.instantiate = async (...parts) => (instance = await instantiate(...parts));
  try {
    await (await formProfile()).useForm(new WebAssembly.Module(instrumented));
  } finally {
    WebAssembly.instantiate = instantiate;
  }
  const { memory, incoming, [profileExport]: writeProfile } = instance.exports;
  const room = 1 << 20;
  const at = incoming(room);
  const size = writeProfile(at, room);
  if (size > room) throw new Error(`The profile has ${size} bytes.`);
  return new Uint8Array(memory.buffer, at, size);
}

async function formProfile() {
  const script = join(here, "node_modules/.cache/form_profile.mjs");
  mkdirSync(dirname(script), { recursive: true });
  await build({
    entryPoints: [join(here, "form_profile.ts")], outfile: script, bundle: true, platform: "node", format: "esm",
    logLevel: "warning",
  });
  return import(`${pathToFileURL(script)}?${Date.now()}`);
}
