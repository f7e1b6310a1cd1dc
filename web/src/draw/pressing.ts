// Pressing and typing, and the order of the two.
//
// A text that is still being typed is handed over before anything is pressed. On a touch screen a button does
// not take the focus from a field, so the field would otherwise never hear that the player is done. Handing
// it over draws the page again and numbers its controls anew: the press waits for that and then reads the
// control's handle.

import { useScreen } from "./screen_context";

let unfinished: (() => void) | null = null;
let waiting: (() => void) | null = null;

// A field says that its text is not handed over yet, and how to do so; null when it is.
export function setUnfinished(finish: (() => void) | null): void {
  unfinished = finish;
}

export function finishTyping(): void {
  const finish = unfinished;
  unfinished = null;
  finish?.();
}

// The page was drawn again: a press that waited for it is done.
export function pressAfterTyping(): void {
  const press = waiting;
  waiting = null;
  press?.();
}

// The handle that a control stands for now; 0 when it cannot be used or is no longer on the page.
export function handleOf(control: HTMLElement): number {
  return control.isConnected ? Number(control.dataset["handle"] ?? 0) : 0;
}

// A second press that comes right after the first was meant for what stood there then. On what the first one
// brought up, another screen or a message, it does nothing.
const tooSoon = 333; // milliseconds
const oneSpot = 48; // pixels that two presses of one finger lie apart at most

let last: MouseEvent | null = null;
let broughtUp: MouseEvent | null = null; // the press that brought up what is on show

// Another screen or a message is on show.
export function cameUp(): void {
  broughtUp = last;
}

// A key that is held down presses whatever has the focus.
function isSameSpot(first: MouseEvent, second: MouseEvent): boolean {
  if (second.detail === 0) return first.detail === 0;
  return Math.hypot(second.clientX - first.clientX, second.clientY - first.clientY) < oneSpot;
}

function fallsThrough(press: MouseEvent): boolean {
  return broughtUp !== null && press.timeStamp - broughtUp.timeStamp < tooSoon && isSameSpot(broughtUp, press);
}

// The answer to a click on any control that has a data-handle.
export function usePress(): (event: Event) => void {
  const { actions } = useScreen();
  return (event) => {
    if (event instanceof MouseEvent) {
      if (fallsThrough(event)) return;
      last = event;
    }
    const control = event.currentTarget as HTMLElement;
    const press = () => {
      const handle = handleOf(control);
      if (handle > 0) actions.press(handle);
    };
    if (unfinished === null) return press();
    waiting = press;
    finishTyping();
  };
}
