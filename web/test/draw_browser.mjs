// A browser with the gallery in it, for the tests of the drawing. The gallery is built in memory and served under the
// policy of the real page, so that a picture or a style that would break it shows here.

import { readFileSync } from "node:fs";
import { createServer } from "node:http";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";

import { build } from "esbuild";
import { chromium } from "playwright-core";

const here = dirname(fileURLToPath(import.meta.url));

const policy = /Content-Security-Policy" content="([^"]+)"/u.exec(readFileSync(join(here, "../static/index.html"), "utf8"))[1];

export async function builtGallery() {
  const { outputFiles } = await build({
    entryPoints: [join(here, "gallery.tsx")],
    outdir: here,
    bundle: true,
    minify: true,
    write: false,
    format: "esm",
    jsx: "automatic",
    jsxImportSource: "preact",
    logLevel: "warning",
  });
  const ending = (name) => outputFiles.find((file) => file.path.endsWith(name)).text;
  return { script: ending(".js"), style: ending(".css") };
}

async function serve() {
  const { script, style } = await builtGallery();
  const files = {
    "/": ["text/html", readFileSync(join(here, "gallery.html"))],
    "/gallery.js": ["text/javascript", script],
    "/gallery.css": ["text/css", style],
  };
  const server = createServer((request, response) => {
    const file = files[request.url.split("#")[0]];
    if (!file) return void response.writeHead(404).end();
    response.writeHead(200, { "content-type": file[0], "content-security-policy": policy }).end(file[1]);
  });
  await new Promise((listening) => server.listen(0, "127.0.0.1", listening));
  return server;
}

const flags = ["--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking", "--disable-component-update", "--disable-sync"];

// open(name, options) answers a browser page with that page of the gallery; `problems` is all that its console
// complained of. close() ends everything.
export async function openGallery() {
  const server = await serve();
  const browser = await chromium.launch({ executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium", args: flags });
  const address = `http://127.0.0.1:${server.address().port}/`;
  const problems = [];
  return {
    problems,
    async open(name, { width = 390, height = 844, dark = false, still = true, ...rest } = {}) {
      const context = await browser.newContext({
        viewport: { width, height },
        colorScheme: dark ? "dark" : "light",
        reducedMotion: still ? "reduce" : "no-preference",
        ...rest,
      });
      const page = await context.newPage();
      page.on("console", (message) => message.type() !== "log" && problems.push(`${name}: ${message.text()}`));
      page.on("pageerror", (error) => problems.push(`${name}: ${error.message}`));
      await page.goto(`${address}#${name}`);
      return page;
    },
    async close() {
      await browser.close();
      server.close();
    },
  };
}
