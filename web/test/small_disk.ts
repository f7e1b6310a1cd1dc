// A browser whose profile is on a small disk of its own that a test can fill. The disk is a file system in memory,
// mounted in a namespace that ends with the test's process.

import { spawn, spawnSync } from "node:child_process";
import { once } from "node:events";
import {
  chmodSync, closeSync, mkdirSync, mkdtempSync, openSync, rmSync, unlinkSync, writeFileSync, writeSync,
} from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { type BrowserContext, chromium } from "playwright-core";

import { executable, flags } from "../browser.mjs";
import { phone } from "./inspect";

// For a browser that has granted the site persistent storage, as it does for an installed game. Without it Chromium
// deletes all that a site has stored when it starts on a full disk.
const preferencesFor = (origin: string) => {
  const granted = { last_modified: "13400000000000000", setting: 1 };
  return { profile: { content_settings: { exceptions: { durable_storage: { [`${origin},*`]: granted } } } } };
};

// Without root the user namespace makes the test its own root, where the system allows that.
const namespace = process.getuid?.() === 0 ? ["--mount"] : ["--mount", "--user", "--map-root-user"];

export const canMount =
  spawnSync("unshare", [...namespace, "mount", "-t", "tmpfs", "none", tmpdir()]).status === 0;

// A browser that keeps its profile in the folder.
export function openProfile(folder: string, executablePath = executable): Promise<BrowserContext> {
  const shape = { viewport: phone, acceptDownloads: true };
  return chromium.launchPersistentContext(folder, { executablePath, args: flags, ...shape });
}

export class SmallDisk {
  private readonly browsers: BrowserContext[] = [];

  private constructor(
    private readonly folder: string,
    private readonly holder: ReturnType<typeof spawn>,
  ) {}

  // `size`: in megabytes. `origin`: of the site that its browser keeps.
  static async make(size: number, origin: string): Promise<SmallDisk> {
    const folder = mkdtempSync(join(tmpdir(), "small-disk-"));
    const mounts = `mount -t tmpfs -o size=${size}m none ${folder}/disk && echo mounted && cat`;
    mkdirSync(join(folder, "disk"));
    const holder = spawn("unshare", [...namespace, "sh", "-c", mounts], { stdio: ["pipe", "pipe", "inherit"] });
    await once(holder.stdout!, "data");
    const enters = process.getuid?.() === 0 ? "" : "--user --preserve-credentials";
    const script = join(folder, "browser");
    writeFileSync(script, `#!/bin/sh\nexec nsenter --target ${holder.pid} --mount ${enters} ${executable} "$@"\n`);
    chmodSync(script, 0o755);
    const disk = new SmallDisk(folder, holder);
    mkdirSync(disk.path("profile/Default"), { recursive: true });
    writeFileSync(disk.path("profile/Default/Preferences"), JSON.stringify(preferencesFor(origin)));
    return disk;
  }

  async openBrowser(): Promise<BrowserContext> {
    const browser = await openProfile(join(this.folder, "disk/profile"), join(this.folder, "browser"));
    this.browsers.push(browser);
    return browser;
  }

  // The profile as seen from outside.
  get profile(): string {
    return this.path("profile");
  }

  fill(): void {
    const file = openSync(this.path("filler"), "a");
    for (let block = 1 << 20; block > 0; block >>= 1) {
      try {
        for (;;) writeSync(file, Buffer.alloc(block));
      } catch {
        // No room for a block of this size.
      }
    }
    closeSync(file);
  }

  free(): void {
    unlinkSync(this.path("filler"));
  }

  private path(name: string): string {
    return `/proc/${this.holder.pid}/root${this.folder}/disk/${name}`;
  }

  // Closes its browsers too: an open one keeps the test run from ending.
  async end(): Promise<void> {
    for (const browser of this.browsers) await browser.close();
    this.holder.stdin!.end();
    rmSync(this.folder, { recursive: true, force: true, maxRetries: 20, retryDelay: 100 });
  }
}
