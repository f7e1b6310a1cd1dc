// Pressing and typing, and the order of the two.
//
// Typed text is submitted before a press, because on touch screens a button does not take the focus from a
// field. Submitting redraws the page with new handles, so the press waits for that and then reads the
// control's handle.

import { useScreen } from "./screen_context";

let unfinished: (() => void) | null = null;
let waiting: (() => void) | null = null;

// Called by a field with a function to submit its pending text; null when there is none.
export function setUnfinished(finish: (() => void) | null): void {
  unfinished = finish;
}

export function finishTyping(): void {
  const finish = unfinished;
  unfinished = null;
  finish?.();
}

// Called after a redraw: performs the waiting press.
export function pressAfterTyping(): void {
  const press = waiting;
  waiting = null;
  press?.();
}

// The control's current handle; 0 when it is disabled or no longer on the page.
export function handleOf(control: HTMLElement): number {
  return control.isConnected ? Number(control.dataset["handle"] ?? 0) : 0;
}

// A second press right after the first was meant for the old page, so it is ignored on a new screen or
// message.
const tooSoon = 333; // milliseconds
const oneSpot = 48; // pixels; maximum distance of a double tap

let last: MouseEvent | null = null;
let broughtUp: MouseEvent | null = null; // the press that opened the current screen or message

// Called when another screen or a message is shown.
export function cameUp(): void {
  broughtUp = last;
}

// Keyboard clicks have no position and count as the same spot.
function isSameSpot(first: MouseEvent, second: MouseEvent): boolean {
  if (second.detail === 0) return first.detail === 0;
  return Math.hypot(second.clientX - first.clientX, second.clientY - first.clientY) < oneSpot;
}

function fallsThrough(press: MouseEvent): boolean {
  return broughtUp !== null && press.timeStamp - broughtUp.timeStamp < tooSoon && isSameSpot(broughtUp, press);
}

// The click handler for controls with a data-handle.
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
