// A modal message in a frame of bulbs. The browser's modal dialog manages the focus; this component only
// prevents closing it without an answer.

import { useLayoutEffect, useRef } from "preact/hooks";

import type * as View from "../view_types";
import { PressButton } from "./button";
import { numbered } from "./keys";
import { Words } from "./words";

export function Dialog({ title, message, answers }: View.Dialog) {
  const frame = useRef<HTMLDialogElement>(null);
  const heading = useRef<HTMLHeadingElement>(null);
  const onlyAnswer = answers.length === 1;

  useLayoutEffect(() => {
    const dialog = frame.current!;
    dialog.showModal();
    // Focuses the heading of a question, or the only answer of a notice.
    (onlyAnswer ? dialog.querySelector<HTMLElement>(".button") : heading.current)?.focus();
    return () => dialog.close();
  }, []);

  const refuse = (event: Event) => {
    event.preventDefault();
    if (onlyAnswer) frame.current?.querySelector<HTMLButtonElement>(".button")?.click();
  };
  // Browsers close a dialog at the second Escape unless the key event is prevented.
  const onKeyDown = (event: KeyboardEvent) => {
    if (event.key === "Escape") refuse(event);
  };
  // The back gesture of a phone also closes it, so it is opened again until it is answered.
  const onClose = () => {
    if (frame.current?.isConnected) frame.current.showModal();
  };

  const keys = numbered(answers.map((answer) => answer.label));
  return (
    <dialog
      class="dialog"
      ref={frame}
      aria-labelledby="dialog-title"
      aria-describedby="dialog-message"
      onCancel={refuse}
      onKeyDown={onKeyDown}
      onClose={onClose}
    >
      <div class="dialog-in">
        <h2 class="dialog-title" id="dialog-title" tabIndex={-1} ref={heading}>
          <Words text={title} />
        </h2>
        <p class="dialog-message" id="dialog-message">
          <Words text={message} />
        </p>
        <div class="dialog-answers">
          {answers.map((answer, index) => (
            <PressButton key={keys[index]!} {...answer} />
          ))}
        </div>
      </div>
    </dialog>
  );
}
