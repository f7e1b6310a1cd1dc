// Restores scroll position and focus when a page is redrawn or the player returns to a screen.

import type { Page } from "../view_types";

// A screen without a back button: the hub.
const isRoot = (page: Page): boolean => page.close.length === 0;

// Identifies the screen, and the hub's tab. Titles are not unique: a film's pages share one, and some change.
export function screenOf(page: Page): string {
  return isRoot(page) ? `${page.screen} ${page.heading}` : String(page.screen);
}

const controls = "button, input, textarea";

// The name of a control, to find it again when its element is replaced. Includes the title of its card or
// row, because these have buttons with the same name.
function nameOf(control: Element): string {
  const label = (control as HTMLInputElement).labels?.[0] ?? control;
  const around = control.closest(".row-place, .card")?.querySelector(".row-label, .card-title");
  const card = around?.textContent ?? "";
  return `${control.tagName} ${control.getAttribute("aria-label") ?? label.textContent} ${card}`;
}

function findByName(root: ParentNode, name: string): HTMLElement | undefined {
  return [...root.querySelectorAll<HTMLElement>(controls)].find((control) => nameOf(control) === name);
}

export interface Focus {
  readonly name: string;
  readonly around: readonly Element[]; // its ancestors, innermost first
}

// The focused control with fallbacks in case it is removed.
export function focusNow(root: Element): Focus | null {
  const control = document.activeElement;
  if (control === null || !root.contains(control) || control.closest("dialog") !== null) return null;
  const around: Element[] = [];
  for (let part = control.parentElement; part !== null && part !== root; part = part.parentElement)
    around.push(part);
  return { name: nameOf(control), around };
}

// Restores the focus after redrawing the same screen. If the control is gone, the heading of its section gets
// the focus, never another control, so that Enter does nothing unintended.
export function keepFocus(root: Element, before: Focus | null): void {
  const now = document.activeElement;
  if (now !== null && now !== document.body) return;
  const same = before === null ? undefined : findByName(root, before.name);
  if (same !== undefined) return same.focus({ preventScroll: true });
  const part = before?.around.find((candidate) => candidate.isConnected && candidate.matches(".section"));
  const heading =
    part?.querySelector<HTMLElement>(".section-heading") ?? root.querySelector<HTMLElement>("h1");
  heading?.setAttribute("tabindex", "-1");
  heading?.focus({ preventScroll: true });
}

interface Place {
  readonly scroll: number;
  readonly focus: string; // the control's name, empty for none
  readonly isRoot: boolean;
}

// Saved positions of the screens that the player can return to.
export class Places {
  private readonly places = new Map<string, Place>();

  // Saves the position when a screen is left.
  leave(page: Page, focus: Focus | null): void {
    this.places.set(screenOf(page), {
      scroll: window.scrollY,
      focus: focus?.name ?? "",
      isRoot: isRoot(page),
    });
  }

  // Restores the position when a screen opens, or starts at its top. Nothing under a dialog can get the
  // focus, so it goes to the heading when the dialog is answered.
  enter(root: Element, page: Page): void {
    const screen = screenOf(page);
    const place = this.places.get(screen);
    this.places.delete(screen);
    // Returning to a tab discards the positions of the screens above it.
    if (isRoot(page)) {
      for (const [other, { isRoot }] of this.places) if (!isRoot) this.places.delete(other);
    }
    window.scrollTo(0, place?.scroll ?? 0);
    if (root.querySelector("dialog[open]") !== null) return;
    const control = place === undefined || place.focus === "" ? undefined : findByName(root, place.focus);
    (control ?? root.querySelector<HTMLElement>("h1"))?.focus({ preventScroll: true });
  }
}
