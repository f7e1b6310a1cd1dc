// Offers to install the game, once, if the browser supports it.

const answeredKey = "install offer answered";

// Not standard, so TypeScript has no type for it.
interface InstallPrompt extends Event {
  prompt(): Promise<unknown>;
}

export class InstallOffer {
  private prompt: InstallPrompt | undefined;

  // `changed` is called when the availability of the offer changes.
  constructor(private readonly changed: (isOffered: boolean) => void) {
    addEventListener("beforeinstallprompt", (event) => {
      event.preventDefault(); // suppresses the browser's own prompt
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
      // without storage there is no installation either
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
