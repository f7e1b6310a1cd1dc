// Runs the game in the page: loads it, saves its changes, restarts it after a trap, and yields to another
// tab. shell_view.tsx draws its `state`.

import { loadArt } from "../draw/drawn_pictures";
import type { Page } from "../view_types";
import type { Actions } from "./actions";
import { BackGesture } from "./back_gesture";
import { type DocumentPlace, type DocumentSummary } from "./documents";
import { isKeptForOffline, loadFace } from "./face";
import { Game, type GameHost, GameStopped, RestMissing } from "./game";
import { InstallOffer } from "./install_offer";
import { localeMessage } from "./locale";
import { formPart, restOfProgram, wholeProgram } from "./parts";
import {
  backUpCareer, type Career, downloadAll, downloadDocument, downloadSave, newestBackup, type ReadSave, readSave, storedCareer,
} from "./saves";
import { type Refusal, type SavingFailure, Storage } from "./storage";
import { storedGameHost } from "./stored_game_host";
import { TabLock } from "./tab_lock";
import { Ticker } from "./ticker";
import { Updates } from "./updates";

export type Showing =
  | { readonly kind: "loading" }
  | { readonly kind: "elsewhere" } // the game is open in another tab
  | { readonly kind: "playing"; readonly page: Page }
  // The game trapped. When it was not the first time, the week before and the newest backup are offered: `lastWeek` is
  // its name, empty for none.
  | { readonly kind: "stopped"; readonly lastWeek: string; readonly backup: ReadSave | undefined }
  | { readonly kind: "unavailable" }; // the program could not be loaded

export interface ShellState {
  readonly showing: Showing;
  readonly refusal: Refusal | undefined; // why nothing can be saved here
  readonly failing: SavingFailure | undefined; // stays until the player has downloaded a copy
  readonly isRestored: boolean; // the browser had lost the save
  readonly restMissing: boolean; // a press is waiting for the rest of the program, which could not be fetched
  readonly updateReady: boolean;
  readonly installOffered: boolean;
}

// Another tab has the career.
export class PlayedElsewhere extends Error {}

export class Shell {
  private current: ShellState = {
    showing: { kind: "loading" },
    refusal: undefined,
    failing: undefined,
    isRestored: false,
    restMissing: false,
    updateReady: false,
    installOffered: false,
  };
  private listener: ((state: ShellState) => void) | undefined;

  private storage: Promise<Storage> | undefined;
  private game: Game | undefined;
  private stops = 0; // since the page was opened
  private runs = 0; // number of the current run; an older run ends silently
  private waitingPress: number | undefined; // handle of a press that waits for the rest of the program
  private startsWhole = false; // the form turned out to need the rest
  private askedToKeep = false;
  private toldOfFailure = false;
  private fetchesRest = false;
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
    press: (handle) => this.press(handle),
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
    // The program is loaded even while another tab plays, because this version may be gone from the server
    // later.
    formPart.get().catch(() => undefined);
    if (isKeptForOffline()) {
      // Both are here already, and the first page of a career needs them.
      restOfProgram().catch(() => undefined);
      loadFace().catch(() => undefined);
    }
    await this.lock.acquire();
  }

  // Restarts after a trap or a failed load.
  startAgain(): void {
    void this.run();
  }

  // Fetches the rest of the program, and the art, again for a waiting press.
  fetchRestAgain(): void {
    this.complete()
      .then(loadArt)
      .catch(() => this.change({ restMissing: !this.game?.isComplete }));
  }

  playHere(): void {
    this.lock.takeOver();
  }

  async update(): Promise<void> {
    await (await this.storage)?.settled();
    this.updates.takeOver();
  }

  async download(): Promise<void> {
    await downloadSave(await wholeProgram(), await this.openStorage());
    if (this.current.failing?.isSaved) this.change({ failing: undefined });
  }

  async documents(): Promise<readonly DocumentSummary[]> {
    return (await this.openStorage()).documents();
  }

  async downloadDocument(place: DocumentPlace): Promise<void> {
    await downloadDocument(await this.openStorage(), place);
  }

  async downloadAll(): Promise<number> {
    return downloadAll(await wholeProgram(), await this.openStorage());
  }

  async read(file: Blob): Promise<ReadSave | string> {
    const known = (await this.openStorage()).documents();
    return readSave(await wholeProgram(), this.locale, file, known);
  }

  async careerInPlay(): Promise<Career | undefined> {
    return storedCareer(await wholeProgram(), this.locale, await this.openStorage());
  }

  // Replaces the current save and starts it. Rejects without changes when it can't be stored, and with
  // PlayedElsewhere while another tab plays. The replaced career stays as a backup.
  async bringIn(save: ReadSave): Promise<void> {
    if (!this.lock.isHeld) throw new PlayedElsewhere();
    const storage = await this.openStorage();
    await backUpCareer(await wholeProgram(), this.host(storage), storage);
    await storage.replace(save.changes);
    for (const document of save.documents) storage.changeDocument({ kind: "put", document });
    await this.run();
  }

  // Takes the newest week back and starts the career. Rejects without changes when that is not possible, and with
  // PlayedElsewhere while another tab plays.
  async backToLastWeek(): Promise<void> {
    if (!this.lock.isHeld) throw new PlayedElsewhere();
    const storage = await this.openStorage();
    const game = await Game.open(await wholeProgram(), this.host(storage), storage.all());
    const refusal = game.backToLastWeek();
    if (refusal !== "") throw new Error(refusal);
    await this.run();
  }

  private host(storage: Storage): GameHost {
    const { runs } = this;
    return storedGameHost(storage, (number, content) => {
      if (runs === this.runs) this.act((game) => game.documentRead(number, content));
    });
  }

  // Starts the game from the saved data.
  private async run(): Promise<void> {
    this.runs += 1;
    const thisRun = this.runs;
    this.game = undefined;
    this.waitingPress = undefined;
    this.show({ kind: "loading" });
    try {
      const storage = await this.openStorage();
      const isNew = storage.all().length === 0 && !this.startsWhole;
      const program = isNew ? { form: await formPart.get() } : await wholeProgram();
      if (thisRun !== this.runs) return;
      this.change({ refusal: storage.refusal, isRestored: storage.isRestored });
      const game = await Game.open(program, this.host(storage), storage.all());
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

  // A press before the program is complete is delayed until it is.
  private press(handle: number): void {
    if (!this.game || this.game.isComplete || isChoice(this.current.showing, handle)) {
      this.act((game) => game.press(handle));
    } else if (this.waitingPress === undefined) {
      this.waitingPress = handle;
      this.complete().catch(() => {
        this.waitingPress = undefined;
        this.change({ restMissing: true });
      });
    }
  }

  // Completes the program of the game, then does the press that waited. Rejects when the rest could not be fetched.
  private async complete(): Promise<void> {
    const { runs } = this;
    const rest = await restOfProgram();
    this.change({ restMissing: false });
    const { game } = this;
    if (runs !== this.runs || !game) return;
    try {
      await game.complete(rest);
    } catch (error) {
      if (game === this.game) this.stop(error);
      return;
    }
    const handle = this.waitingPress;
    this.waitingPress = undefined;
    if (game === this.game && handle !== undefined) this.act(() => game.press(handle));
  }

  // Fetches the parts that the first page does not need, then prepares offline play.
  private async fetchRest(): Promise<void> {
    if (this.fetchesRest) return;
    this.fetchesRest = true;
    await new Promise((painted) => requestAnimationFrame(() => setTimeout(painted)));
    await Promise.allSettled([this.complete(), loadArt(), loadFace()]);
    await this.updates.start();
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
    if (error instanceof GameStopped && error.cause instanceof RestMissing) {
      this.startsWhole = true;
      return this.startAgain();
    }
    console.error(error, error instanceof GameStopped ? error.cause : "");
    this.game = undefined;
    this.stops += 1;
    this.show({ kind: "stopped", lastWeek: "", backup: undefined });
    if (this.stops > 1) void this.offerWaysBack(this.runs);
  }

  private async offerWaysBack(run: number): Promise<void> {
    const storage = await this.openStorage();
    const stored = Game.open(await wholeProgram(), { commit: () => undefined }, storage.all());
    const lastWeek = await stored.then((game) => game.lastWeek()).catch(() => "");
    if (run === this.runs) this.show({ kind: "stopped", lastWeek, backup: undefined });
    const backup = await newestBackup(await wholeProgram(), this.locale, storage);
    if (run === this.runs) this.show({ kind: "stopped", lastWeek, backup });
  }

  private async stepAside(): Promise<void> {
    this.runs += 1;
    this.game = undefined;
    const storage = await this.storage;
    this.storage = undefined; // outdated by the other tab's writes
    await storage?.settled();
    storage?.close();
  }

  private openStorage(): Promise<Storage> {
    this.storage ??= Storage.open({
      failing: (failure) => this.savingFailed(failure),
      backupLost: (place) => this.act((game) => game.documentLost(place)),
    });
    return this.storage;
  }

  // `failure` repeats an earlier one when a later save succeeds.
  private savingFailed(failure: SavingFailure): void {
    if (failure.isSaved && !failure.isNew && !this.current.failing) return;
    this.change({ failing: failure });
    if (failure.isSaved || this.toldOfFailure) return;
    this.toldOfFailure = true;
    this.act((game) => game.savingFailed(failure.why));
  }

  private show(showing: Showing): void {
    this.change({ showing });
    if (showing.kind !== "loading") void this.fetchRest();
    const page = showing.kind === "playing" ? showing.page : undefined;
    this.ticker.watch(page);
    this.backGesture.watch(page);
  }

  private change(changes: Partial<ShellState>): void {
    this.current = { ...this.current, ...changes };
    this.listener?.(this.current);
  }
}

// Whether the handle is an option of a choice, which the form of a new career handles by itself.
function isChoice(showing: Showing, handle: number): boolean {
  if (showing.kind !== "playing") return false;
  return showing.page.nodes.some(
    (node) => node.kind === "choice" && node.content.options.some((option) => option.handle === handle),
  );
}
