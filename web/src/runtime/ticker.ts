// Sends ticks to the game while a countdown is shown and the page is visible.

import type { Node, Page } from "../view_types";

const interval = 250; // milliseconds

export class Ticker {
  private timer: ReturnType<typeof setInterval> | undefined;
  private lastTime = 0;

  constructor(private readonly tick: (seconds: number) => void) {
    document.addEventListener("visibilitychange", () => {
      this.lastTime = performance.now();
    });
  }

  // Sets the current page; undefined while no game is running.
  watch(page: Page | undefined): void {
    const runs = page !== undefined && page.dialog.length === 0 && page.nodes.some(holdsCountdown);
    if (runs === (this.timer !== undefined)) return;
    clearInterval(this.timer);
    this.timer = undefined;
    if (!runs) return;
    this.lastTime = performance.now();
    this.timer = setInterval(() => this.goOn(), interval);
  }

  private goOn(): void {
    if (document.hidden) return;
    const now = performance.now();
    const seconds = (now - this.lastTime) / 1000;
    this.lastTime = now;
    this.tick(seconds);
  }
}

function holdsCountdown(node: Node): boolean {
  switch (node.kind) {
    case "countdown":
      return true;
    case "section":
    case "card":
    case "listPage":
      return node.content.nodes.some(holdsCountdown);
    case "swipeCard":
      return node.content.card.nodes.some(holdsCountdown);
    default:
      return false;
  }
}
