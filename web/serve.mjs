// Serves the built site locally and prints its address.
//
//   node serve.mjs [--dir <directory>] [--port <number>] [--open]
//
// If the port serves the game already, that one is used. --open opens the address in a browser.

import { spawn } from "node:child_process";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";
import { parseArgs } from "node:util";
import { serve, serverName } from "./server.mjs";

const here = dirname(fileURLToPath(import.meta.url));
const { values: options } = parseArgs({
  options: {
    dir: { type: "string", default: join(here, "dist") },
    port: { type: "string", default: "8080" },
    open: { type: "boolean", default: false },
  },
});
const port = Number(options.port);
const isPort = Number.isInteger(port) && port >= 0 && port < 65536;
if (!isPort) stop(`"${options.port}" is not a port: use a number up to 65535.`);
const address = await serveOrFind();

function stop(why) {
  console.error(why);
  process.exit(1);
}

async function serveOrFind() {
  try {
    const served = await serve(options.dir, port);
    console.log(`Top Billing is served at ${served.address}`);
    return served.address;
  } catch (error) {
    if (error.code !== "EADDRINUSE") throw error;
  }
  const taken = `http://localhost:${port}/`;
  const answer = await fetch(taken, { method: "HEAD", signal: AbortSignal.timeout(2000) }).catch(() => undefined);
  if (answer?.headers.get("Server") === serverName) {
    console.log(`Top Billing is already served at ${taken}`);
    return taken;
  }
  return stop(
    `Port ${port} is used by another program. Close it, or play with --port on another port, where the ` +
      "browser keeps another career.",
  );
}

if (options.open && (process.env.DISPLAY || process.env.WAYLAND_DISPLAY)) {
  spawn("xdg-open", [address], { stdio: "ignore", detached: true })
    .on("error", () => undefined) // no such program; the address is printed anyway
    .unref();
}
