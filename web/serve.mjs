// Serves the built site locally and prints its address.
//
//   node serve.mjs [--dir <directory>] [--port <number>] [--open]
//
// Uses the next free port if the given one is in use. --open opens the address in a browser.

import { spawn } from "node:child_process";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";
import { parseArgs } from "node:util";
import { serve } from "./server.mjs";

const here = dirname(fileURLToPath(import.meta.url));
const { values: options } = parseArgs({
  options: {
    dir: { type: "string", default: join(here, "dist") },
    port: { type: "string", default: "8080" },
    open: { type: "boolean", default: false },
  },
});
const { address } = await serve(options.dir, Number(options.port));
console.log(`Top Billing is served at ${address}`);
if (options.open && (process.env.DISPLAY || process.env.WAYLAND_DISPLAY)) {
  spawn("xdg-open", [address], { stdio: "ignore", detached: true })
    .on("error", () => undefined) // no such program; the address is printed anyway
    .unref();
}
