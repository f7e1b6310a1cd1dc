// One tab plays at a time: two would save over each other. The one that plays holds a Web Lock; another waits
// for it, and may ask for it. A browser without Web Locks (a page that is neither https nor localhost) has to
// do without.

const lockName = "top-billing";
const channelName = "top-billing";
const handOver = "hand over";
const patience = 2000; // milliseconds; a tab that the browser has put to sleep never answers

export interface TabLockWatcher {
  elsewhere(): void; // another tab plays; `granted` follows when that ends
  granted(): void;
  lost(): Promise<void>; // another tab wants to play: stop, and resolve when nothing is left to be saved
}

export class TabLock {
  private readonly channel = new BroadcastChannel(channelName);
  private release: (() => void) | undefined;
  private waiting: AbortController | undefined;

  constructor(private readonly watcher: TabLockWatcher) {
    this.channel.onmessage = (message) => {
      if (message.data === handOver && this.release) void this.giveAway();
    };
  }

  async acquire(): Promise<void> {
    if (!("locks" in navigator)) {
      this.watcher.granted();
      return;
    }
    if (!(await this.hold({ ifAvailable: true }))) this.wait();
  }

  // Asks the tab that plays to stop. It hands the lock on by itself, or loses it.
  takeOver(): void {
    this.channel.postMessage(handOver);
    setTimeout(() => {
      if (this.release) return;
      this.waiting?.abort();
      void this.hold({ steal: true });
    }, patience);
  }

  private wait(): void {
    this.waiting = new AbortController();
    this.watcher.elsewhere();
    void this.hold({ signal: this.waiting.signal });
  }

  // Resolves when the browser has answered, to whether the lock is held. The lock is held until `release`.
  private hold(options: LockOptions): Promise<boolean> {
    return new Promise((answered) => {
      let granted = false;
      const held = navigator.locks.request(lockName, options, (lock) => {
        granted = lock !== null;
        answered(granted);
        if (!granted) return undefined;
        const ended = new Promise<void>((release) => {
          this.release = release;
        });
        this.watcher.granted();
        return ended;
      });
      // Rejects when the wait was given up, or when another tab stole the lock from a tab that was asleep.
      held.catch(() => {
        if (granted) this.lose();
      });
    });
  }

  private async giveAway(): Promise<void> {
    const release = this.release;
    this.release = undefined;
    await this.watcher.lost();
    release?.();
    this.wait();
  }

  private lose(): void {
    if (!this.release) return;
    this.release = undefined;
    void this.watcher.lost();
    this.wait();
  }
}
