// Installing the game to the home screen, where the browser offers that: once, in the game's own words. Whoever has
// answered is not asked again.

const answeredKey = "install offer answered";

// Not every browser has it, and TypeScript's own list of events does not.
interface InstallPrompt extends Event {
  prompt(): Promise<unknown>;
}

export class InstallOffer {
  private prompt: InstallPrompt | undefined;

  // `changed`: whether there is something to offer now.
  constructor(private readonly changed: (isOffered: boolean) => void) {
    addEventListener("beforeinstallprompt", (event) => {
      event.preventDefault(); // the browser would ask at a moment of its own
      if (wasAnswered()) return;
      this.prompt = event as InstallPrompt;
      this.changed(true);
    });
    addEventListener("appinstalled", () => this.answer());
  }

  async install(): Promise<void> {
    const { prompt } = this;
    this.answer();
    await prompt?.prompt();
  }

  answer(): void {
    this.prompt = undefined;
    try {
      localStorage.setItem(answeredKey, "yes");
    } catch {
      // nothing is kept here, and so nothing is installed from here either
    }
    this.changed(false);
  }
}

function wasAnswered(): boolean {
  try {
    return localStorage.getItem(answeredKey) !== null;
  } catch {
    return true;
  }
}
