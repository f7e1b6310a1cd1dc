// Builds the static site into dist/: script, styles, WebAssembly, and the service worker for offline play.
// All files except the entry points have a content hash in their name, so that an old page never loads a new
// file.
//
//   node build.mjs [--wasm <file>] [--out <directory>]

import { createHash } from "node:crypto";
import { cpSync, mkdirSync, readdirSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";
import { parseArgs } from "node:util";
import { brotliCompressSync, constants } from "node:zlib";
import { build } from "esbuild";

import { split } from "./split.mjs";

const here = dirname(fileURLToPath(import.meta.url));
const { values: options } = parseArgs({
  options: {
    wasm: { type: "string", default: join(here, "../build/wasm/top_billing.wasm") },
    out: { type: "string", default: join(here, "dist") },
  },
});

// The oldest browsers with WebAssembly bulk memory, Web Locks and IndexedDB's commit().
const browsers = ["es2022", "chrome100", "firefox100", "safari16"];

const bundling = {
  bundle: true,
  minify: true,
  write: false,
  target: browsers,
  legalComments: "none",
  logLevel: "warning",
};

const hashOf = (content) => createHash("sha256").update(content).digest("hex").slice(0, 10);

function put(name, content) {
  mkdirSync(dirname(join(options.out, name)), { recursive: true });
  writeFileSync(join(options.out, name), content);
  return name;
}

function putHashed(stem, ending, content) {
  return put(`${stem}-${hashOf(content)}.${ending}`, content);
}

rmSync(options.out, { recursive: true, force: true });
cpSync(join(here, "static"), options.out, { recursive: true });
const staticFiles = readdirSync(join(here, "static"), { recursive: true, withFileTypes: true })
  .filter((entry) => entry.isFile() && entry.name !== "index.html")
  .map((entry) => join(entry.parentPath ?? entry.path, entry.name).slice(join(here, "static").length + 1));

const program = await split(options.wasm);
const form = putHashed("form", "wasm", program.form);
const rest = putHashed("rest", "wasm", program.rest);

// The rows of all banks, without comments and empty lines (src/banks/texts.h).
const banks = join(here, "../src/banks");
const rows = readdirSync(banks)
  .filter((name) => name.endsWith(".txt"))
  .sort()
  .flatMap((name) => readFileSync(join(banks, name), "utf8").split("\n"))
  .filter((line) => line !== "" && !line.startsWith("#"));
const texts = putHashed("texts", "txt", rows.map((row) => `${row}\n`).join(""));

// The art is a separate script, which the page imports after its first paint.
const art = await build({ ...bundling, entryPoints: [join(here, "src/art/picture_art.ts")], format: "esm" });
const artScript = putHashed("art", "js", art.outputFiles[0].contents);

// So is what makes archives of saves, which few players need.
const archive = await build({ ...bundling, entryPoints: [join(here, "src/archive/zip.ts")], format: "esm" });
const archiveScript = putHashed("archive", "js", archive.outputFiles[0].contents);

const apart = {
  name: "scripts apart",
  setup: ({ onResolve }) => {
    onResolve({ filter: /\/art\/picture_art$/ }, () => ({ path: `./${artScript}`, external: true }));
    onResolve({ filter: /\/archive\/zip$/ }, () => ({ path: `./${archiveScript}`, external: true }));
  },
};

// The display face, in the parts that face.mjs cut it into.
const faceFolder = join(here, "src/face");
const faces = JSON.parse(readFileSync(join(faceFolder, "parts.json"), "utf8")).map(({ name, range }) => ({
  file: putHashed(`face-${name}`, "woff2", readFileSync(join(faceFolder, `${name}.woff2`))),
  range,
}));

const page = await build({
  ...bundling,
  entryPoints: [join(here, "src/main.tsx")],
  outdir: options.out,
  format: "esm",
  jsx: "automatic",
  jsxImportSource: "preact",
  define: {
    FORM_FILE: JSON.stringify(form), REST_FILE: JSON.stringify(rest), TEXTS_FILE: JSON.stringify(texts),
    FACES: JSON.stringify(faces),
  },
  plugins: [apart],
});
const bundled = (ending) => page.outputFiles.find((file) => file.path.endsWith(ending)).contents;
const script = putHashed("page", "js", bundled(".js"));
const style = putHashed("page", "css", bundled(".css"));

const names = { "{script}": script, "{style}": style, "{form}": form };
const index = readFileSync(join(here, "static/index.html"), "utf8").replace(/\{\w+\}/g, (name) => names[name] ?? name);
put("index.html", index);

// The licenses of the libraries in the page, which ask to be passed on with it.
const { dependencies } = JSON.parse(readFileSync(join(here, "package.json"), "utf8"));
const licenses = put(
  "licenses.txt",
  Object.keys(dependencies)
    .map((name) => `${name}\n\n${readFileSync(join(here, "node_modules", name, "LICENSE"), "utf8").trim()}\n`)
    .join("\n\n"),
);

// The files for offline play. Home screens keep their own copies of the PNG icons.
const files = [
  script, style, form, rest, texts, artScript, archiveScript, ...faces.map(({ file }) => file), licenses,
  ...staticFiles.filter((name) => !name.endsWith(".png")),
];

// The version is a hash of all files.
const version = hashOf([index, ...files.map((name) => name + hashOf(readFileSync(join(options.out, name))))].join("\n"));
const worker = await build({
  ...bundling,
  entryPoints: [join(here, "src/service-worker.ts")],
  outdir: options.out,
  format: "iife",
  define: { VERSION: JSON.stringify(version), FILES: JSON.stringify(files) },
});
put("service-worker.js", worker.outputFiles[0].contents);

// Precompressed files at the highest level, which takes too long to do per request.
for (const name of [form, rest, script, style, texts, artScript]) {
  const content = readFileSync(join(options.out, name));
  put(`${name}.br`, brotliCompressSync(content, { params: { [constants.BROTLI_PARAM_QUALITY]: constants.BROTLI_MAX_QUALITY } }));
}
