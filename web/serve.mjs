// Serves the built site on this machine, to be played at the address that it prints.
//
//   node serve.mjs [--dir <directory>] [--port <number>]     the next free port where that one is taken

import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";
import { parseArgs } from "node:util";
import { serve } from "./server.mjs";

const here = dirname(fileURLToPath(import.meta.url));
const { values: options } = parseArgs({
  options: {
    dir: { type: "string", default: join(here, "dist") },
    port: { type: "string", default: "8080" },
  },
});
const { address } = await serve(options.dir, Number(options.port));
console.log(`Top Billing is served at ${address}`);
