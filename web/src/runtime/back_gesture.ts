// The system's back gesture or button works like the page's "Back" and does not leave the game. While there
// is somewhere to go back to, the browser's history has one extra entry for it. The entry stays for the next
// screen when the page's own button is used: calling history.back() would race with the player's actions.

import type { Page } from "../view_types";

const canGoBack = (page: Page): boolean => page.close.length > 0 || page.tabs.findIndex((tab) => tab.current) > 0;

const mark = "screen";

export class BackGesture {
  // A reloaded page is already on the entry.
  private guarded = history.state === mark;

  // `back` leaves the top screen, if possible.
  constructor(back: () => void) {
    addEventListener("popstate", () => {
      this.guarded = false;
      back();
    });
  }

  // Sets the current page; undefined while no game is running.
  watch(page: Page | undefined): void {
    if (this.guarded || !page || !canGoBack(page)) return;
    history.pushState(mark, "");
    this.guarded = true;
  }
}
