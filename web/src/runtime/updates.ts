// Play without a network, and new versions. The service worker keeps a complete copy of the version in use. A
// new one is fetched beside it and waits: the player is told, and it comes in when she says so, or when the
// game is opened the next time.

const takeOver = "take over"; // the word that the service worker waits for
const betweenChecks = 60 * 60 * 1000; // milliseconds; for a game that stays open for days

export class Updates {
  private waiting: ServiceWorker | undefined;
  private lastCheck = Date.now();

  constructor(private readonly whenReady: () => void) {}

  async start(): Promise<void> {
    if (!("serviceWorker" in navigator)) return;
    let registration: ServiceWorkerRegistration;
    try {
      registration = await navigator.serviceWorker.register("service-worker.js", { updateViaCache: "none" });
    } catch {
      return; // the game plays all the same, with a network
    }
    if (registration.waiting) this.ready(registration.waiting);
    registration.addEventListener("updatefound", () => {
      const found = registration.installing;
      found?.addEventListener("statechange", () => {
        // Without a controller this is the first version, which has nothing to take the place of.
        if (found.state === "installed" && navigator.serviceWorker.controller) this.ready(found);
      });
    });
    document.addEventListener("visibilitychange", () => {
      if (document.hidden || Date.now() - this.lastCheck < betweenChecks) return;
      this.lastCheck = Date.now();
      registration.update().catch(() => undefined); // no network: the next time, then
    });
  }

  // Brings the new version in and loads the page again.
  takeOver(): void {
    navigator.serviceWorker.addEventListener("controllerchange", () => location.reload(), { once: true });
    this.waiting?.postMessage(takeOver);
  }

  private ready(worker: ServiceWorker): void {
    this.waiting = worker;
    this.whenReady();
  }
}
