// Draws the shell's state: the game's page with notices, or why there is none.

import { type JSX } from "preact";
import { useEffect, useState } from "preact/hooks";

import { Bar, Masthead } from "../draw/page_parts";
import { PageView } from "../draw/page_view";
import type { Page } from "../view_types";
import { CreditsDialog } from "./credits_dialog";
import type { ReadSave } from "./saves";
import { SavesDialog } from "./saves_dialog";
import type { Shell, ShellState } from "./shell";
import type { Refusal, SavingFailure } from "./storage";

export function ShellView({ shell }: { shell: Shell }): JSX.Element {
  const [state, setState] = useState(shell.state);
  useEffect(() => shell.onChange(setState), [shell]);

  const { showing } = state;
  const banner = <Notices shell={shell} state={state} />;
  const corner = (
    <div class="shell-corner">
      <SavesDialog shell={shell} />
      <CreditsDialog />
    </div>
  );
  switch (showing.kind) {
    case "playing":
      return <PageView page={showing.page} actions={shell.actions} banner={banner} corner={corner} />;
    case "loading":
      return (
        <Standing title="Places, please">
          <p role="status">The house lights go down…</p>
        </Standing>
      );
    case "elsewhere":
      return (
        <Standing title="Your career is open in another tab">
          <p>Close it there, and it goes on here. Only one tab plays at a time, so that no week is lost.</p>
          <p>
            <button type="button" class="shell-button shell-primary" onClick={() => shell.playHere()}>
              Play here
            </button>
          </p>
        </Standing>
      );
    case "stopped":
      return (
        <Standing title="Cut!" banner={banner} corner={corner}>
          <p role="alert">
            Something in the game broke, and it stopped before any harm was done. Your career is safe as of its last
            save.
          </p>
          <div class="shell-buttons">
            <button type="button" class="shell-button shell-primary" onClick={() => shell.startAgain()}>
              Go on from the last save
            </button>
            <DownloadNow shell={shell} />
          </div>
          <WaysBack shell={shell} lastWeek={showing.lastWeek} backup={showing.backup} />
        </Standing>
      );
    case "unavailable":
      return (
        <Standing title="The game did not load" banner={banner} corner={corner}>
          <p role="alert">A part of it could not be fetched. Are you online? Your saves are safe in this browser.</p>
          <p>
            <button type="button" class="shell-button shell-primary" onClick={() => shell.startAgain()}>
              Try again
            </button>
          </p>
        </Standing>
      );
  }
}

// A page of the shell itself.
function Standing({ title, banner, corner, children }: {
  title: string;
  banner?: JSX.Element;
  corner?: JSX.Element;
  children: JSX.Element | JSX.Element[];
}): JSX.Element {
  const page: Page = {
    title, subtitle: "", heading: "", head: "full", icons: [], figures: [], nodes: [], main: [], tabs: [], close: [],
    dialog: [], moment: [], passing: [], offersSaves: false, screen: 0,
  };
  return (
    <div class="screen">
      <Bar page={page} />
      <main class="main">
        <Masthead page={page} />
        <div class="content shell-content">
          {banner}
          {children}
          {corner}
        </div>
      </main>
    </div>
  );
}

const refusals: Record<Refusal, string> = {
  refused:
    "This browser does not let the game save, as in a private window. Your career lives until this page is " +
    "closed: download it from Saves, in Settings, to keep it.",
  unreadable:
    "The save in this browser could not be read, so this is a new career, and nothing of it is saved. Loading the " +
    "page again may help.",
  newer:
    "The career in this browser was saved by a newer version of the game. Load the page again to get that version: " +
    "until then this is a new career, and nothing of it is saved.",
};

// The update restarts the game at the hub, so it is offered on the hub only, and only if the career is saved.
function mayUpdate({ showing, updateReady, refusal }: ShellState): boolean {
  return updateReady && !refusal && showing.kind === "playing" && showing.page.close.length === 0;
}

// Not on the new-career form.
function mayInstall({ showing, installOffered }: ShellState): boolean {
  return installOffered && showing.kind === "playing" && showing.page.close.length === 0 && showing.page.tabs.length > 0;
}

// Offered when the game stopped more than once.
function WaysBack({ shell, lastWeek, backup }: {
  shell: Shell;
  lastWeek: string;
  backup: ReadSave | undefined;
}): JSX.Element {
  const [message, setMessage] = useState("");
  if (lastWeek === "" && !backup) return <></>;
  return (
    <div class="shell-question">
      <p>It stopped more than once. You can go back.</p>
      {lastWeek !== "" && (
        <button
          type="button"
          class="shell-button"
          onClick={() => shell.backToLastWeek().catch(() => setMessage("The week can't be taken back."))}
        >
          {`Back to ${lastWeek}, before it ended`}
        </button>
      )}
      {backup && (
        <>
          <p>
            Your newest backup is <strong>{`${backup.career.name}, ${backup.career.date}`}</strong>. What you have now
            stays among the backups.
          </p>
          <button
            type="button"
            class="shell-button"
            onClick={() => shell.bringIn(backup).catch(() => setMessage("There is no room to store it."))}
          >
            Go back to the backup
          </button>
        </>
      )}
      {message !== "" && <p role="status">{message}</p>}
    </div>
  );
}

const failureInWords = ({ why, isSaved }: SavingFailure): string =>
  isSaved
    ? `Saving failed: ${why} Your career was saved all the same, but this browser can lose it. Keep a copy of your own.`
    : `Not saved: ${why} You can play on; it tries again after each thing you do.`;

function DownloadNow({ shell }: { shell: Shell }): JSX.Element {
  const [message, setMessage] = useState("");
  const download = () =>
    shell.download().then(
      () => setMessage("The copy was handed to the browser as a file."),
      () => setMessage("The copy can't be made right now."),
    );
  return (
    <>
      <button type="button" class="shell-button" onClick={() => void download()}>
        Download a copy now
      </button>
      {message !== "" && <p>{message}</p>}
    </>
  );
}

function Notices({ shell, state }: { shell: Shell; state: ShellState }): JSX.Element {
  return (
    <div class="shell-notices" role="status">
      {state.refusal && <p class="shell-warning">{refusals[state.refusal]}</p>}
      {state.isRestored && (
        <p class="shell-warning">
          This browser had lost your career. It was opened from its second copy, as you left it.
        </p>
      )}
      {state.failing && (
        <div class="shell-offer shell-warning">
          <p>{failureInWords(state.failing)}</p>
          <DownloadNow shell={shell} />
        </div>
      )}
      {state.restMissing && (
        <p class="shell-warning shell-at-foot">
          The rest of the game could not be fetched. Are you online?{" "}
          <button type="button" class="shell-button" onClick={() => shell.fetchRestAgain()}>
            Try again
          </button>
        </p>
      )}
      {mayUpdate(state) && (
        <p>
          A new version is ready.{" "}
          <button type="button" class="shell-button" onClick={() => void shell.update()}>
            Use it now
          </button>
        </p>
      )}
      {mayInstall(state) && (
        <div class="shell-offer">
          <p>Keep Top Billing on your home screen. It plays without a network, too.</p>
          <div class="shell-buttons">
            <button type="button" class="shell-button shell-primary" onClick={() => void shell.installOffer.install()}>
              Install
            </button>
            <button type="button" class="shell-button" onClick={() => shell.installOffer.answer()}>
              Not now
            </button>
          </div>
        </div>
      )}
    </div>
  );
}
