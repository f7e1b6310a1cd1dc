// The system's way back, a swipe or a button, leaves the screen on top as the page's own "Back" does, or a tab of
// the hub for the first one, instead of leaving the game. While there is somewhere to go back to there is one entry more in the browser's history for it to take.
// The entry stays when the screen is left by the page's own button, and serves the next screen: going back in the
// history by ourselves would race with what the player does.

import type { Page } from "../view_types";

const canGoBack = (page: Page): boolean => page.close.length > 0 || page.tabs.findIndex((tab) => tab.current) > 0;

const mark = "screen";

export class BackGesture {
  // A page that was loaded again stands on the entry that its former self made.
  private guarded = history.state === mark;

  // `back`: leaves the screen on top; does nothing where that can't be left.
  constructor(back: () => void) {
    addEventListener("popstate", () => {
      this.guarded = false;
      back();
    });
  }

  // The page that is on show now; none while nothing is played.
  watch(page: Page | undefined): void {
    if (this.guarded || !page || !canGoBack(page)) return;
    history.pushState(mark, "");
    this.guarded = true;
  }
}
