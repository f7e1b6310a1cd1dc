// Builds the site and runs the page's tests with Node's test runner.
//
//   node test.mjs [--wasm <file>] [<part of a test file's name> ...]

import { spawnSync } from "node:child_process";
import { readdirSync, rmSync } from "node:fs";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";
import { parseArgs } from "node:util";
import { build } from "esbuild";

const here = dirname(fileURLToPath(import.meta.url));
const { values: options, positionals: wanted } = parseArgs({
  options: { wasm: { type: "string" } },
  allowPositionals: true,
});

const longestRun = 35 * 60_000; // milliseconds; a promise in a page that never settles would hold the run for ever

function run(command, ...parts) {
  const { status, error } = spawnSync(command, parts, { cwd: here, stdio: "inherit", timeout: longestRun });
  if (error) console.error(`${command} was stopped: ${error.message}`);
  if (status !== 0) process.exit(status ?? 1);
}

const isWanted = (name) => wanted.length === 0 || wanted.some((part) => name.includes(part));
const tests = readdirSync(join(here, "test")).filter((name) => /\.test\.(ts|tsx|mjs)$/.test(name) && isWanted(name));
if (tests.length === 0) {
  console.error("No test of that name.");
  process.exit(1);
}

run("node", "build.mjs", ...(options.wasm ? ["--wasm", options.wasm] : []));

// Inside node_modules, so that packages are resolved and no cleanup is needed.
const built = join(here, "node_modules/.cache/tests");
rmSync(built, { recursive: true, force: true });
await build({
  entryPoints: tests.map((name) => join(here, "test", name)),
  outdir: built,
  outExtension: { ".js": ".mjs" },
  bundle: true,
  platform: "node",
  format: "esm",
  packages: "external",
  jsx: "automatic",
  jsxImportSource: "preact",
  loader: { ".css": "empty" },
  logLevel: "warning",
});
// One file at a time: each starts browsers, and some measure performance.
run("node", "--test", "--test-concurrency=1", ...tests.map((name) => join(built, name.replace(/\.\w+$/, ".mjs"))));
