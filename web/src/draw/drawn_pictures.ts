// A cache of pictures as image addresses, each a single element on the page. Pictures in lists are drawn in
// idle time when they come near the viewport, so that a page with many of them opens at once. The art is a
// separate script, which is fetched after the first paint; until then no picture is drawn.

import type { Picture } from "../view_types";

let art: typeof import("../art/picture_art") | undefined;
let loading: Promise<void> | undefined;

// Resolves when pictures can be drawn; rejects when the art could not be fetched, and then the next call
// tries again.
export function loadArt(): Promise<void> {
  loading ??= import("../art/picture_art").then(
    (loaded) => {
      art = loaded;
      ask();
    },
    (error: unknown) => {
      loading = undefined;
      throw error;
    },
  );
  return loading;
}

// A career has some hundreds of pictures; the least recently used ones are dropped.
const mostKept = 400;
const kept = new Map<string, string>(); // addresses by key, most recently used last

// Pictures with equal keys look the same. The description is not part of the key.
export const keyOf = ({ kind, name, title, genre, format, season, billed, age }: Picture): string =>
  [kind, name, title, genre, format, season, billed, age].join("\n");

// Escapes only the characters with a meaning in an address.
const addressOf = (svg: string): string => `data:image/svg+xml,${svg.replace(/[%#]/gu, encodeURIComponent)}`;

// The address of a picture if it is in the cache.
export function addressIfDrawn(key: string): string | undefined {
  const address = kept.get(key);
  if (address !== undefined) {
    kept.delete(key);
    kept.set(key, address);
  }
  return address;
}

// The address of the picture, drawing it if needed; undefined until the art is loaded.
export function draw(shown: Picture): string | undefined {
  const key = keyOf(shown);
  const known = addressIfDrawn(key);
  if (known !== undefined || !art) return known;
  const address = addressOf(art.pictureArt(shown));
  kept.set(key, address);
  if (kept.size > mostKept) kept.delete(kept.keys().next().value!);
  return address;
}

interface Waiting {
  readonly shown: Picture;
  readonly ready: () => void;
}

const places = new Map<Element, Waiting>(); // elements whose picture is missing
const near = new Set<Element>(); // those of them near the viewport
let asked = false;

const leastTime = 3; // milliseconds to draw and show a picture

// Safari has no requestIdleCallback, so it draws one picture at a time with pauses.
function whenIdle(work: (timeLeft: () => number) => void): void {
  if ("requestIdleCallback" in globalThis) {
    requestIdleCallback((deadline) => work(() => deadline.timeRemaining()), { timeout: 200 });
  } else {
    setTimeout(() => work(() => 0), 16);
  }
}

function drawSome(timeLeft: () => number): void {
  asked = false;
  do {
    const [place] = near;
    if (!place) return;
    near.delete(place);
    const waiting = places.get(place);
    places.delete(place);
    watch?.unobserve(place);
    if (waiting) {
      draw(waiting.shown);
      waiting.ready();
    }
  } while (timeLeft() > leastTime);
  ask();
}

function ask(): void {
  if (asked || near.size === 0 || !art) return;
  asked = true;
  whenIdle(drawSome);
}

const watch =
  "IntersectionObserver" in globalThis
    ? new IntersectionObserver(
        (entries) => {
          for (const { target, isIntersecting } of entries) {
            if (isIntersecting) near.add(target);
            else near.delete(target);
          }
          ask();
        },
        { rootMargin: "400px" },
      )
    : undefined;

// Draws the picture when its placeholder comes near the viewport, then calls `ready`. Returns a function to
// cancel.
export function drawWhenNear(place: Element, shown: Picture, ready: () => void): () => void {
  places.set(place, { shown, ready });
  if (watch) watch.observe(place);
  else near.add(place);
  ask();
  return () => {
    watch?.unobserve(place);
    places.delete(place);
    near.delete(place);
  };
}
