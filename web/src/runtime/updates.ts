// Offline play and updates. The service worker caches the current version completely. A new version is
// fetched in the background and waits until the player accepts it or opens the game again.

const takeOver = "take over"; // message to the service worker
const betweenChecks = 60 * 60 * 1000; // milliseconds; for pages that stay open for days

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
      return; // the game works online only
    }
    if (registration.waiting) this.ready(registration.waiting);
    registration.addEventListener("updatefound", () => {
      const found = registration.installing;
      found?.addEventListener("statechange", () => {
        // Without a controller this is the first installation, not an update.
        if (found.state === "installed" && navigator.serviceWorker.controller) this.ready(found);
      });
    });
    document.addEventListener("visibilitychange", () => {
      if (document.hidden || Date.now() - this.lastCheck < betweenChecks) return;
      this.lastCheck = Date.now();
      registration.update().catch(() => undefined); // no network; tried again later
    });
  }

  // Activates the new version and reloads the page.
  takeOver(): void {
    navigator.serviceWorker.addEventListener("controllerchange", () => location.reload(), { once: true });
    this.waiting?.postMessage(takeOver);
  }

  private ready(worker: ServiceWorker): void {
    this.waiting = worker;
    this.whenReady();
  }
}
