// Where the player was: how far a page was scrolled and which control had the focus, kept when the page is
// drawn again, and found again when a screen is come back to.

import type { Page } from "../view_types";

// A screen that nothing leads back from: the hub behind its tabs.
const isRoot = (page: Page): boolean => page.close.length === 0;

// What tells one place from another: the screen, and on the hub the tab. The title says nothing of it: a film's
// page, its box office and its reviews share theirs, and a list may change its own as it is switched over.
export function screenOf(page: Page): string {
  return isRoot(page) ? `${page.screen} ${page.heading}` : String(page.screen);
}

const controls = "button, input, textarea";

// What a control is called, so that it is found when its element is gone. Cards and rows of one list have
// buttons of the same name; the title of the card or row tells them apart.
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
  readonly around: readonly Element[]; // the parts of the page that held it, innermost first
}

// The control on the page that has the focus now, and what to fall back on when it goes.
export function focusNow(root: Element): Focus | null {
  const control = document.activeElement;
  if (control === null || !root.contains(control) || control.closest("dialog") !== null) return null;
  const around: Element[] = [];
  for (let part = control.parentElement; part !== null && part !== root; part = part.parentElement)
    around.push(part);
  return { name: nameOf(control), around };
}

// After drawing the same screen again. A control that is gone gives the focus to the heading of its part,
// never to another control: the next press of Enter must not do what the player did not mean.
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
  readonly focus: string; // the name of the control, empty for none
  readonly isRoot: boolean;
}

// The places of the screens that can be come back to.
export class Places {
  private readonly places = new Map<string, Place>();

  // As a screen is left.
  leave(page: Page, focus: Focus | null): void {
    this.places.set(screenOf(page), {
      scroll: window.scrollY,
      focus: focus?.name ?? "",
      isRoot: isRoot(page),
    });
  }

  // As a screen opens: at its top, or where it was left when the player comes back to it. Under a dialog
  // nothing can take the focus; it goes to the heading when the dialog is answered.
  enter(root: Element, page: Page): void {
    const screen = screenOf(page);
    const place = this.places.get(screen);
    this.places.delete(screen);
    // Back on a tab, what was opened from it is over: opened again, it starts at its top.
    if (isRoot(page)) {
      for (const [other, { isRoot }] of this.places) if (!isRoot) this.places.delete(other);
    }
    window.scrollTo(0, place?.scroll ?? 0);
    if (root.querySelector("dialog[open]") !== null) return;
    const control = place === undefined || place.focus === "" ? undefined : findByName(root, place.focus);
    (control ?? root.querySelector<HTMLElement>("h1"))?.focus({ preventScroll: true });
  }
}
