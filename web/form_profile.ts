// Does what a new player can do on the form of a new career while the rest of the program is on its way. split.mjs
// runs this on an instrumented program to find the functions that the form needs.

import { Game, type GameHost } from "./src/runtime/game";
import { localeMessage } from "./src/runtime/locale";

const host: GameHost = {
  commit: () => undefined,
  documents: { summaries: () => [], put: () => undefined, remove: () => undefined, read: () => undefined },
};

// Other currencies, separators and months.
const locales = ["en-US", "de-CH", "fr-FR", "ja-JP", "hi-IN", "ar-EG", "pt-BR"];
const texts = ["A", "  Ada Vale ", "Ñandú Åström-Żółć 名前", "x".repeat(300), ""];

export async function useForm(form: WebAssembly.Module): Promise<void> {
  const game = await Game.open({ form }, host, []);
  for (const locale of locales) {
    game.start(localeMessage(locale));
    useEverything(game);
  }
  game.savingFailed("The disk is full.");
  game.page();
}

function useEverything(game: Game): void {
  for (const { kind, content } of game.page().nodes) {
    if (kind === "field") for (const text of texts) change(game, () => game.type(content.handle, text));
    if (kind === "slider") {
      for (let value = content.minimum; value <= content.maximum; value += content.step) {
        change(game, () => game.slide(content.handle, value));
      }
    }
    if (kind === "choice") for (const { handle } of content.options) change(game, () => game.press(handle));
  }
  change(game, () => game.tick(1));
  change(game, () => game.back());
}

// As the shell does it.
function change(game: Game, action: () => void): void {
  action();
  game.page();
}
