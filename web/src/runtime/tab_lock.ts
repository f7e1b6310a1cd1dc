// Allows one playing tab at a time, because two would overwrite each other's saves. The playing tab holds a
// Web Lock; others wait for it or request it. Without Web Locks (not https or localhost) there is no check.

const lockName = "top-billing";
const channelName = "top-billing";
const handOver = "hand over";
const patience = 2000; // milliseconds; a frozen tab does not respond

export interface TabLockWatcher {
  elsewhere(): void; // another tab is playing; `granted` is called when that ends
  granted(): void;
  lost(): Promise<void>; // another tab takes over: stop, and resolve when everything is saved
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

  // Whether this tab may write.
  get isHeld(): boolean {
    return !("locks" in navigator) || this.release !== undefined;
  }

  // Asks the playing tab to stop. It releases the lock, or loses it after a timeout.
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

  // Requests the lock and resolves to whether it is held. It is held until `release`.
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
      // Rejects when the request was aborted or another tab stole the lock.
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
