// A browser with the gallery, for tests of drawing. It uses the page's index.html and so its content security
// policy.

import assert from "node:assert/strict";
import { copyFileSync, mkdirSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { join } from "node:path";
import { after, afterEach, before } from "node:test";
import { build } from "esbuild";
import type { Browser, Page } from "playwright-core";

import { launchChromium } from "../browser.mjs";
import { serve, type Served } from "../server.mjs";
import { phone } from "./inspect";

const galleryFolder = join(process.cwd(), "node_modules/.cache/gallery");

// The page's index.html with the gallery instead of the game, and without the manifest.
function index(): string {
  const names: Record<string, string> = { "{script}": "gallery.js", "{style}": "gallery.css" };
  return readFileSync("static/index.html", "utf8")
    .replace(/^.*<link rel="(?!stylesheet).*\n/gmu, "")
    .replace("</head>", '<link rel="icon" href="data:,"></head>')
    .replace(/\{\w+\}/gu, (name) => names[name] ?? name);
}

async function buildGallery(): Promise<void> {
  rmSync(galleryFolder, { recursive: true, force: true });
  mkdirSync(galleryFolder, { recursive: true });
  writeFileSync(join(galleryFolder, "index.html"), index());
  await build({
    entryPoints: ["test/gallery.tsx"],
    outdir: galleryFolder,
    bundle: true,
    minify: true,
    format: "esm",
    jsx: "automatic",
    jsxImportSource: "preact",
    logLevel: "warning",
    define: { FACES: JSON.stringify([{ file: "latin.woff2", range: "U+0-2FF, U+2000-2FFF" }]) },
  });
  copyFileSync("src/face/latin.woff2", join(galleryFolder, "latin.woff2"));
}

export interface Looks {
  readonly width?: number;
  readonly height?: number;
  readonly still?: boolean; // reduced motion
}

export interface Gallery {
  // Opens a page of gallery_pages.ts.
  open(name: string, looks?: Looks): Promise<Page>;
}

// The gallery for the tests of a file. A test fails on any console error.
export function setGallery(): Gallery {
  let served: Served;
  let browser: Browser;
  const problems: string[] = [];
  before(async () => {
    await buildGallery();
    served = await serve(galleryFolder, 0);
    browser = await launchChromium();
  });
  afterEach(() => assert.deepEqual(problems.splice(0), []));
  after(async () => {
    await browser.close();
    await served.stop();
  });
  return {
    open: async (name, { width = phone.width, height = phone.height, still = true } = {}) => {
      const page = await browser.newPage({
        viewport: { width, height },
        reducedMotion: still ? "reduce" : "no-preference",
      });
      page.on("console", (message) => message.type() !== "log" && problems.push(`${name}: ${message.text()}`));
      page.on("pageerror", (error) => problems.push(`${name}: ${error.message}`));
      await page.goto(`${served.address}#${name}`);
      return page;
    },
  };
}

// Measures processor time, which does not depend on the machine's load.
export async function processorTime(page: Page): Promise<() => Promise<number>> {
  const session = await page.context().newCDPSession(page);
  await session.send("Performance.enable", { timeDomain: "threadTicks" });
  return async () => {
    const { metrics } = await session.send("Performance.getMetrics");
    return metrics.find(({ name }) => name === "ThreadTime")!.value * 1000;
  };
}
