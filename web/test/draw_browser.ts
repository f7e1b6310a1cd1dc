// A browser with the gallery in it, for the tests of the drawing. It stands in the page's own index.html, so
// under its policy: a picture or a style that would break it shows here.

import { mkdirSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { join } from "node:path";
import { build } from "esbuild";
import type { Browser, Page } from "playwright-core";

import { launchChromium } from "../browser.mjs";
import { serve, type Served } from "../server.mjs";

// The page's index.html with the gallery in place of the game, and without what installs it.
function index(): string {
  const names: Record<string, string> = { "{script}": "gallery.js", "{style}": "gallery.css" };
  return readFileSync("static/index.html", "utf8")
    .replace(/^.*<link rel="(?!stylesheet).*\n/gmu, "")
    .replace("</head>", '<link rel="icon" href="data:,"></head>')
    .replace(/\{\w+\}/gu, (name) => names[name] ?? name);
}

export interface Built {
  readonly folder: string;
  readonly script: Buffer;
  readonly style: Buffer;
}

export async function buildGallery(): Promise<Built> {
  const folder = join(process.cwd(), "node_modules/.cache/gallery");
  rmSync(folder, { recursive: true, force: true });
  mkdirSync(folder, { recursive: true });
  writeFileSync(join(folder, "index.html"), index());
  await build({
    entryPoints: ["test/gallery.tsx"],
    outdir: folder,
    bundle: true,
    minify: true,
    format: "esm",
    jsx: "automatic",
    jsxImportSource: "preact",
    logLevel: "warning",
  });
  return {
    folder,
    script: readFileSync(join(folder, "gallery.js")),
    style: readFileSync(join(folder, "gallery.css")),
  };
}

export interface Looks {
  readonly width?: number;
  readonly height?: number;
  readonly dark?: boolean;
  readonly still?: boolean; // no motion asked for
}

export class Gallery {
  readonly problems: string[] = []; // all that the browser's console complained of

  private constructor(
    readonly built: Built,
    private readonly served: Served,
    private readonly browser: Browser,
  ) {}

  static async start(): Promise<Gallery> {
    const built = await buildGallery();
    return new Gallery(built, await serve(built.folder, 0), await launchChromium());
  }

  // A window with that page of gallery_pages.ts.
  async open(
    name: string,
    { width = 390, height = 844, dark = false, still = true }: Looks = {},
  ): Promise<Page> {
    const page = await this.browser.newPage({
      viewport: { width, height },
      colorScheme: dark ? "dark" : "light",
      reducedMotion: still ? "reduce" : "no-preference",
    });
    page.on(
      "console",
      (message) => message.type() !== "log" && this.problems.push(`${name}: ${message.text()}`),
    );
    page.on("pageerror", (error) => this.problems.push(`${name}: ${error.message}`));
    await page.goto(`${this.served.address}#${name}`);
    return page;
  }

  async stop(): Promise<void> {
    await this.browser.close();
    await this.served.stop();
  }
}
