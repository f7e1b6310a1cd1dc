// The button "Saves" with its dialog: export and import of careers.

import { type JSX } from "preact";
import { useRef, useState } from "preact/hooks";

import { type DocumentSummary, slotFolder } from "./documents";
import type { Career, ReadSave } from "./saves";
import { PlayedElsewhere, type Shell } from "./shell";

const named = ({ name, date }: Career): string => (date === "" ? name : `${name}, ${date}`);

// Such as "slot 2", or "the backup of Nov 22, 2026, 9:30 AM". Slots have numbers from 0 in their names.
function labelOf({ folder, name, changed }: DocumentSummary): string {
  if (folder === slotFolder) return `slot ${Number(/\d+/.exec(name)?.[0] ?? 0) + 1}`;
  return `the backup of ${new Date(changed).toLocaleString(undefined, { dateStyle: "medium", timeStyle: "medium" })}`;
}

// The question names both careers.
interface Question {
  readonly save: ReadSave;
  readonly inPlay: Career | undefined;
}

export function SavesDialog({ shell }: { shell: Shell }): JSX.Element {
  const dialog = useRef<HTMLDialogElement>(null);
  const [message, setMessage] = useState("");
  const [question, setQuestion] = useState<Question>();

  const [documents, setDocuments] = useState<readonly DocumentSummary[]>([]);

  const open = () => {
    setMessage("");
    setQuestion(undefined);
    void shell.documents().then(setDocuments);
    dialog.current?.showModal();
  };

  const download = async (save: () => Promise<number | void>) => {
    setMessage("");
    try {
      const lost = await save();
      const without = lost ? ` ${lost} of the saves can't be read and are not in it.` : "";
      setMessage(`Your save was handed to the browser as a file.${without}`);
    } catch {
      setMessage("The save can't be made into a file right now.");
    }
  };

  const choose = async (input: HTMLInputElement) => {
    const file = input.files?.[0];
    input.value = ""; // so that the same file can be chosen again
    if (!file) return;
    setQuestion(undefined);
    setMessage("Reading the file…");
    const answer = await shell.read(file).catch(() => "The game's program did not load. Try again with a network.");
    if (typeof answer === "string") {
      setMessage(`${answer} Your career is as it was.`);
    } else {
      setQuestion({ save: answer, inPlay: await shell.careerInPlay().catch(() => undefined) });
      setMessage("");
    }
  };

  const bringIn = async (save: ReadSave) => {
    setQuestion(undefined);
    try {
      await shell.bringIn(save);
      dialog.current?.close();
    } catch (error) {
      setMessage(
        error instanceof PlayedElsewhere
          ? "The game is open in another tab. Play here first, then bring the save in."
          : "There is no room to store this save. Your career is as it was.",
      );
    }
  };

  return (
    <>
      <button type="button" class="shell-button" onClick={open}>
        Saves
      </button>
      <dialog ref={dialog} class="shell-dialog" aria-labelledby="saves-title">
        <h2 id="saves-title">Saves</h2>
        <p>The game saves by itself after each thing you do, in this browser. Keep a copy as a file, or bring one in.</p>
        <div class="shell-buttons">
          <button type="button" class="shell-button" onClick={() => void download(() => shell.download())}>
            Download a copy
          </button>
          <label class="shell-button">
            Bring in a copy
            <input
              type="file"
              class="shell-file"
              accept=".plist,.zip,application/x-plist,application/zip"
              onChange={(event) => void choose(event.currentTarget)}
            />
          </label>
        </div>
        {question && (
          <div class="shell-question" role="group" aria-label="Bring in this save?">
            <p>
              <strong>{named(question.save.career)}</strong> takes the place of{" "}
              <strong>{question.inPlay ? named(question.inPlay) : "the career in this browser"}</strong>
              {question.inPlay && question.inPlay.date !== "" ? ", which stays among the backups." : "."}
              {question.save.others}
            </p>
            {question.save.findings.map((finding) => (
              <p key={finding} class="shell-finding">
                {finding}
              </p>
            ))}
            <div class="shell-buttons">
              <button type="button" class="shell-button shell-destructive" onClick={() => void bringIn(question.save)}>
                Replace my career
              </button>
              <button type="button" class="shell-button" onClick={() => setQuestion(undefined)}>
                Keep what I have
              </button>
            </div>
          </div>
        )}
        {documents.length > 0 && (
          <details>
            <summary class="shell-button">Slots and backups</summary>
            <div class="shell-documents">
              <button type="button" class="shell-button" onClick={() => void download(() => shell.downloadAll())}>
                Download everything
              </button>
              {documents.map((document) => (
                <button
                  key={`${document.folder}/${document.name}`}
                  type="button"
                  class="shell-button"
                  onClick={() => void download(() => shell.downloadDocument(document))}
                >
                  {`Download ${labelOf(document)}`}
                </button>
              ))}
            </div>
          </details>
        )}
        <p class="shell-message" role="status">
          {message}
        </p>
        <button type="button" class="shell-button" onClick={() => dialog.current?.close()}>
          Close
        </button>
      </dialog>
    </>
  );
}
