// Keeps a game running in the page: loads it, saves what it writes, starts it anew when it stopped, and steps
// aside for another tab. What the player sees of that is `state`; shell_view.tsx draws it.

import type { Page } from "../view_types";
import type { Actions } from "./actions";
import { BackGesture } from "./back_gesture";
import { Game, GameStopped } from "./game";
import { InstallOffer } from "./install_offer";
import { localeMessage } from "./locale";
import { type Career, downloadSave, type ReadSave, readSave, storedCareer } from "./saves";
import { type Refusal, Storage } from "./storage";
import { TabLock } from "./tab_lock";
import { Ticker } from "./ticker";
import { Updates } from "./updates";

declare const WASM_FILE: string;

export type Showing =
  | { readonly kind: "loading" }
  | { readonly kind: "elsewhere" } // the game is open in another tab
  | { readonly kind: "playing"; readonly page: Page }
  | { readonly kind: "stopped" } // the game stopped in the middle of something
  | { readonly kind: "unavailable" }; // its program did not load

export interface ShellState {
  readonly showing: Showing;
  readonly refusal: Refusal | undefined; // nothing is saved here, and why
  readonly failing: string | undefined; // the last save did not get through, and why
  readonly updateReady: boolean;
  readonly installOffered: boolean;
}

export class Shell {
  private current: ShellState = {
    showing: { kind: "loading" },
    refusal: undefined,
    failing: undefined,
    updateReady: false,
    installOffered: false,
  };
  private listener: ((state: ShellState) => void) | undefined;

  private module: Promise<WebAssembly.Module> | undefined;
  private storage: Promise<Storage> | undefined;
  private game: Game | undefined;
  private runs = 0; // a run that was overtaken by a later one, or by another tab, leaves without a word
  private askedToKeep = false;
  private readonly locale = localeMessage(navigator.language || "en-US");

  private readonly lock = new TabLock({
    elsewhere: () => this.show({ kind: "elsewhere" }),
    granted: () => void this.run(),
    lost: () => this.stepAside(),
  });
  private readonly updates = new Updates(() => this.change({ updateReady: true }));
  readonly installOffer = new InstallOffer((installOffered) => this.change({ installOffered }));
  private readonly ticker = new Ticker((seconds) => this.act((game) => game.tick(seconds)));

  private readonly backGesture = new BackGesture(() => this.actions.back());

  readonly actions: Actions = {
    press: (handle) => this.act((game) => game.press(handle)),
    type: (handle, text) => this.act((game) => game.type(handle, text)),
    slide: (handle, value) => this.act((game) => game.slide(handle, value)),
    back: () => this.act((game) => game.back()),
  };

  get state(): ShellState {
    return this.current;
  }

  onChange(listener: (state: ShellState) => void): void {
    this.listener = listener;
  }

  async start(): Promise<void> {
    // The program is loaded even while another tab plays: this page's own version of it may be gone from the
    // server by the time that tab is closed.
    this.loadModule().catch(() => undefined);
    await this.lock.acquire();
    await this.updates.start();
  }

  // After a stop, or when the program did not load.
  startAgain(): void {
    void this.run();
  }

  playHere(): void {
    this.lock.takeOver();
  }

  async update(): Promise<void> {
    await (await this.storage)?.settled();
    this.updates.takeOver();
  }

  async download(): Promise<void> {
    await downloadSave(await this.loadModule(), await this.openStorage());
  }

  async read(file: Blob): Promise<ReadSave | string> {
    return readSave(await this.loadModule(), this.locale, file);
  }

  async careerInPlay(): Promise<Career | undefined> {
    return storedCareer(await this.loadModule(), this.locale, await this.openStorage());
  }

  // Puts the save in the place of the one in play, and plays it. Rejects when it can't be stored; everything is
  // then as it was.
  async bringIn(save: ReadSave): Promise<void> {
    await (await this.openStorage()).replace(save.changes);
    await this.run();
  }

  // Starts the game from what was saved.
  private async run(): Promise<void> {
    this.runs += 1;
    const thisRun = this.runs;
    this.game = undefined;
    this.show({ kind: "loading" });
    try {
      const [module, storage] = await Promise.all([this.loadModule(), this.openStorage()]);
      if (thisRun !== this.runs) return;
      this.change({ refusal: storage.refusal });
      const game = await Game.open(module, { commit: (changes) => storage.save(changes) }, storage.all());
      if (thisRun !== this.runs) return;
      game.start(this.locale);
      this.game = game;
      this.show({ kind: "playing", page: game.page() });
    } catch (error) {
      if (thisRun !== this.runs) return;
      if (error instanceof GameStopped) this.stop(error);
      else this.show({ kind: "unavailable" });
    }
  }

  private act(action: (game: Game) => void): void {
    if (!this.game) return;
    try {
      action(this.game);
      this.show({ kind: "playing", page: this.game.page() });
      this.askToKeep();
    } catch (error) {
      this.stop(error);
    }
  }

  private askToKeep(): void {
    if (this.askedToKeep) return;
    this.askedToKeep = true;
    void this.storage?.then((storage) => storage.askToKeep());
  }

  private stop(error: unknown): void {
    console.error(error, error instanceof GameStopped ? error.cause : "");
    this.game = undefined;
    this.show({ kind: "stopped" });
  }

  private async stepAside(): Promise<void> {
    this.runs += 1;
    this.game = undefined;
    const storage = await this.storage;
    this.storage = undefined; // the other tab's writes make this one's copy old
    await storage?.settled();
    storage?.close();
  }

  private loadModule(): Promise<WebAssembly.Module> {
    if (!this.module) {
      this.module = fetchProgram();
      // A failure is tried again the next time it is wanted.
      this.module.catch(() => {
        this.module = undefined;
      });
    }
    return this.module;
  }

  private openStorage(): Promise<Storage> {
    this.storage ??= Storage.open({
      failed: (why) => {
        this.change({ failing: why });
        this.act((game) => game.savingFailed(why));
      },
      recovered: () => this.change({ failing: undefined }),
    });
    return this.storage;
  }

  private show(showing: Showing): void {
    this.change({ showing });
    const page = showing.kind === "playing" ? showing.page : undefined;
    this.ticker.watch(page);
    this.backGesture.watch(page);
  }

  private change(changes: Partial<ShellState>): void {
    this.current = { ...this.current, ...changes };
    this.listener?.(this.current);
  }
}

async function fetchProgram(): Promise<WebAssembly.Module> {
  const answer = await fetch(WASM_FILE);
  if (!answer.ok) throw new Error(`The game's program: ${answer.status} ${answer.statusText}`);
  // Compiling while it arrives is faster, but insists on a type that not every host knows.
  const streams = answer.headers.get("Content-Type")?.startsWith("application/wasm") ?? false;
  return streams ? WebAssembly.compileStreaming(answer) : WebAssembly.compile(await answer.arrayBuffer());
}
