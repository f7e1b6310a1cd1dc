// Shared by the runtime's tests: a server with the built site, a browser, and the start of a career. A test
// fails on any console error and on violations of the content security policy.

import assert from "node:assert/strict";
import { cpSync, mkdtempSync, readdirSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, afterEach, before } from "node:test";
import type { Browser, BrowserContext, Page } from "playwright-core";

import { launchChromium } from "../browser.mjs";
import { serve, type Served } from "../server.mjs";
import { phone } from "./inspect";

// A copy of the built site that a test can change or stop.
export class Site {
  readonly folder = mkdtempSync(join(tmpdir(), "top-billing-"));
  private served: Served | undefined;
  bytesSent = 0; // response bodies as transferred

  // `below` is the site's path on the server.
  constructor(private readonly below = "") {
    cpSync(join(process.cwd(), "dist"), join(this.folder, below), { recursive: true });
  }

  get address(): string {
    assert(this.served, "the site is not served");
    return new URL(this.below === "" ? "./" : `${this.below}/`, this.served.address).href;
  }

  get origin(): string {
    return new URL(this.address).origin;
  }

  async start(): Promise<this> {
    this.served = await serve(this.folder, 0, (bytes) => (this.bytesSent += bytes));
    return this;
  }

  async stop(): Promise<void> {
    await this.served?.stop();
    this.served = undefined;
  }

  // Publishes a new version with another title, and so another service worker.
  publish(mark: string): void {
    const change = (name: string, from: RegExp, to: string) => {
      const file = join(this.folder, this.below, name);
      const text = readFileSync(file, "utf8");
      assert.match(text, from);
      writeFileSync(file, text.replace(from, to));
    };
    change("index.html", /<title>/, `<meta name="version" content="${mark}"><title>`);
    change("service-worker.js", /"[0-9a-f]{10}"/, `"${mark}"`);
  }

  // Removes the files that match.
  lose(names: RegExp): void {
    const folder = join(this.folder, this.below);
    for (const name of readdirSync(folder)) if (names.test(name)) rmSync(join(folder, name));
  }

  remove(): void {
    rmSync(this.folder, { recursive: true, force: true, maxRetries: 20, retryDelay: 100 });
  }
}

export interface Stage {
  readonly site: Site;
  readonly browser: Browser;
}

const visits = new Set<Visit>();

// A site and a browser for the tests of a file. Each test must end its visits.
export function stage(): Stage {
  const made: { site?: Site; browser?: Browser } = {};
  before(async () => {
    made.site = await new Site().start();
    made.browser = await launchChromium();
  });
  afterEach(async () => {
    for (const player of visits) await player.end();
  });
  after(async () => {
    await made.browser?.close();
    await made.site?.stop();
    made.site?.remove();
  });
  return made as Stage;
}

export interface Visit {
  readonly context: BrowserContext;
  open(): Promise<Page>;
  expect(complaint: RegExp, least?: number): void; // expects `least` or more console errors that match, and no others so far
  end(): Promise<void>; // fails on other console errors
}

// Opens a new browser profile. The scripts run in each page before its own.
export async function visit(stage: Stage, ...scripts: (() => void)[]): Promise<Visit> {
  const context = await stage.browser.newContext({ viewport: phone, acceptDownloads: true });
  const complaints: string[] = [];
  for (const script of scripts) await context.addInitScript(script);
  await context.addInitScript(() => {
    addEventListener("securitypolicyviolation", (event) => {
      console.error(`policy: ${event.violatedDirective} ${event.blockedURI}`);
    });
  });
  context.on("console", (message) => {
    if (message.type() === "error" || message.type() === "warning") complaints.push(message.text());
  });
  context.on("weberror", (error) => complaints.push(String(error.error())));
  const player: Visit = {
    context,
    open: async () => {
      const page = await context.newPage();
      await page.goto(stage.site.address);
      return page;
    },
    expect: (wanted, least = 1) => {
      assert(complaints.length >= least, "nothing was complained of");
      assert(complaints.every((complaint) => wanted.test(complaint)), complaints.join("\n"));
      complaints.length = 0;
    },
    end: async () => {
      visits.delete(player);
      await context.close();
      assert.deepEqual(complaints, []);
    },
  };
  visits.add(player);
  return player;
}

// A visit with a new career.
export async function play(
  stage: Stage,
  name: string,
  ...scripts: (() => void)[]
): Promise<{ readonly player: Visit; readonly page: Page }> {
  const player = await visit(stage, ...scripts);
  const page = await player.open();
  await startCareer(page, name);
  return { player, page };
}

// Waits until the career with this name is shown.
export const finds = (page: Page, name: string) => page.getByText(name).first().waitFor();

// Waits for the hub or the new-career form.
export async function waitForGame(page: Page): Promise<void> {
  await page.getByRole("button", { name: /^(End Week|Start my career)$/ }).waitFor();
}

export const nameField = (page: Page) => page.getByLabel("Stage name");

// Starts a career under the name.
export async function startCareer(page: Page, name: string): Promise<void> {
  await nameField(page).fill(name);
  await nameField(page).blur();
  await page.getByRole("button", { name: "Start my career" }).click();
  await finds(page, name);
}

// Waits until the service worker has cached everything.
export async function waitForCopy(page: Page): Promise<void> {
  await page.evaluate(async () => {
    await navigator.serviceWorker.ready;
    const controlled = () => navigator.serviceWorker.controller?.state === "activated";
    while (!controlled()) await new Promise((later) => setTimeout(later, 20));
  });
}

export const press = (page: Page, name: string) => page.getByRole("button", { name, exact: true }).first().click();
export const heading = (page: Page, name: string) => page.getByRole("heading", { name, exact: true }).waitFor();
export const says = (page: Page, words: string | RegExp) => page.getByRole("status").filter({ hasText: words }).waitFor();

// Waits before pressing, because a double tap at the same spot is ignored.
export async function pressAgain(page: Page, name: string): Promise<void> {
  await page.waitForTimeout(350);
  await press(page, name);
}

// The free option of a story about the performer.
export const storyOption = (page: Page) =>
  page.getByRole("main").locator("button", { hasText: "Do this" }).filter({ hasNotText: "COST" }).first();

// Waits for the review, and answers a story about the performer that opens over it.
export async function reachReview(page: Page): Promise<void> {
  const review = page.getByRole("heading", { name: "REVIEW", exact: true });
  await review.or(storyOption(page)).waitFor();
  if ((await review.count()) > 0) return;
  await page.waitForTimeout(350); // a press right after another does not count
  await storyOption(page).click();
  await pressAgain(page, "Carry on");
  await review.waitFor();
}

// Ends a week from the hub and returns to it.
export async function liveAWeek(page: Page): Promise<void> {
  await pressAgain(page, "End Week");
  await reachReview(page);
  await pressAgain(page, "Carry on");
  await page.getByRole("button", { name: "End Week" }).waitFor();
}

export async function openPicker(page: Page): Promise<void> {
  await pressAgain(page, "Settings");
  await page.getByRole("button", { name: /^Choose a save/ }).click();
  await page.getByRole("heading", { name: "CHOOSE A SAVE" }).waitFor();
  await page.waitForTimeout(350); // a press at the same spot would not count
}

export async function startAnother(page: Page, name: string): Promise<void> {
  await openPicker(page);
  await page.getByRole("button", { name: /^Empty — start a new career/ }).first().click();
  await nameField(page).waitFor();
  await startCareer(page, name);
}

export async function playOther(page: Page, name: string): Promise<void> {
  await openPicker(page);
  await page.getByRole("button", { name: `Play ${name}`, exact: true }).click();
  await page.getByRole("button", { name: "End Week" }).waitFor();
  await finds(page, name);
}

// Opens the saves on the current page.
export async function openSaves(page: Page): Promise<void> {
  const saves = page.getByRole("button", { name: "Saves", exact: true });
  const settings = page.getByRole("button", { name: "Settings", exact: true });
  await saves.or(settings).first().waitFor();
  if ((await saves.count()) === 0) await settings.click();
  await saves.click();
  await heading(page, "Saves");
}

// Downloads the career from the open saves.
export async function download(
  page: Page,
  button = "Download a copy",
  name = /^top-billing-\d{4}-\d\d-\d\d\.plist$/,
): Promise<Buffer> {
  const [file] = await Promise.all([page.waitForEvent("download"), press(page, button)]);
  assert.match(file.suggestedFilename(), name);
  return readFileSync(await file.path());
}

// Chooses a file to import, up to the confirmation.
export async function choose(page: Page, buffer: Buffer): Promise<void> {
  await page
    .getByLabel("Bring in a copy")
    .setInputFiles({ name: "career.plist", mimeType: "application/x-plist", buffer });
}

// The career of Ada Vale, in her fourth year with projects in every stage.
const savedCareer = (name: string) => readFileSync(join(process.cwd(), `test/saves/${name}.plist`));
export const workingActor = () => savedCareer("working_actor");
export const dater = () => savedCareer("dating"); // the golden walk's beginner, exported
export const actorWithOffers = () => savedCareer("offers"); // the golden walk's working performer, exported

// For visit(): disables storage.
export function withoutStorage(): void {
  Object.defineProperty(globalThis, "indexedDB", { value: undefined });
}

// For visit(): a browser without a place for a second copy.
export function withoutCopy(): void {
  if (!isSecureContext) return; // an empty page
  Object.defineProperty(caches, "open", { value: () => Promise.reject(new DOMException("", "SecurityError")) });
}

// For visit(): while `full` is set, transactions fail with a quota error.
export function fillable(): void {
  const commit = IDBTransaction.prototype.commit;
  IDBTransaction.prototype.commit = function refused(this: IDBTransaction): void {
    if (!(globalThis as { full?: boolean }).full) return commit.call(this);
    const error = new DOMException("Quota exceeded.", "QuotaExceededError");
    Object.defineProperty(this, "error", { value: error });
    this.abort();
  };
}

export async function fill(page: Page, full: boolean): Promise<void> {
  await page.evaluate((given) => Object.assign(globalThis, { full: given }), full);
}

// For visit(): while `breaks` is set, calls trap in WebAssembly because of truncated messages.
export function breakable(): void {
  const instantiate = WebAssembly.instantiate as (
    module: WebAssembly.Module,
    imports: WebAssembly.Imports,
  ) => Promise<WebAssembly.Instance>;
  const breaking = async (module: WebAssembly.Module, imports: WebAssembly.Imports) => {
    const instance = await instantiate(module, imports);
    const real = instance.exports as Record<string, (...values: unknown[]) => unknown>;
    const broken = (name: string) => (...values: unknown[]) => {
      if (!(globalThis as { breaks?: string }).breaks?.includes(name)) return real[name]?.(...values);
      real["incoming"]?.(1);
      return real["add_pieces"]?.();
    };
    return { exports: { ...real, press: broken("press"), start: broken("start") } };
  };
  Object.assign(WebAssembly, { instantiate: breaking });
}

// `names`: the functions that trap from now on; empty for none.
export async function breakFrom(page: Page, names: string): Promise<void> {
  await page.evaluate((given) => Object.assign(globalThis, { breaks: given }), names);
}
