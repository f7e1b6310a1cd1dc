// The page's display face. A first visit goes without it until the first page has been painted; once it is kept for
// play without a network it comes before anything is painted, so that no heading changes under the player's eyes.

declare const FACES: readonly { readonly file: string; readonly range: string }[];

let loading: Promise<unknown> | undefined;

// Resolves when headings can be drawn in the face; rejects when it could not be fetched. The next call then tries
// again. Letters outside of the first part are fetched when a text holds one.
export function loadFace(): Promise<unknown> {
  loading ??= load().catch((error: unknown) => {
    loading = undefined;
    throw error;
  });
  return loading;
}

async function load(): Promise<void> {
  const [usual, ...others] = FACES.map(
    ({ file, range }) =>
      new FontFace("Marquee", `url("${file}")`, { weight: "700", display: "swap", unicodeRange: range }),
  );
  document.fonts.add(await usual!.load());
  for (const other of others) document.fonts.add(other);
}

// Whether this visit finds the face, and all other files of the game, in the service worker's cache.
export const isKeptForOffline = (): boolean => Boolean(navigator.serviceWorker?.controller);
