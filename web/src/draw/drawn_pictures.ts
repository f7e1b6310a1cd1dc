// Pictures as the page shows them: each is drawn once, kept as the address of an image, and stands on the page as
// one element, however much is drawn in it. In lists they are drawn when they come near the screen and the browser
// has nothing else to do, so that a page with many of them opens at once. The art itself is a script of its own,
// which is fetched after the first page has been painted: until then every picture is one that is not drawn yet.

import type { Picture } from "../view_types";

let art: typeof import("../art/picture_art") | undefined;
let loading: Promise<void> | undefined;

// Resolves when pictures can be drawn; rejects when the art could not be fetched. The next call then tries again.
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

// Some hundreds of pictures make a career; of those drawn longest ago some may have to be drawn again.
const mostKept = 400;
const kept = new Map<string, string>(); // by key, the address asked for last at the end

// Two pictures of one key look the same; what is only said of them makes no difference.
export const keyOf = ({ kind, name, title, genre, format, season, billed, age }: Picture): string =>
  [kind, name, title, genre, format, season, billed, age].join("\n");

// Only what means something else in an address is written in another way.
const addressOf = (svg: string): string => `data:image/svg+xml,${svg.replace(/[%#]/gu, encodeURIComponent)}`;

// The address of a picture that has been drawn; undefined before.
export function addressIfDrawn(key: string): string | undefined {
  const address = kept.get(key);
  if (address !== undefined) {
    kept.delete(key);
    kept.set(key, address);
  }
  return address;
}

// The address of the picture, which is drawn now if it has not been; undefined before the art is loaded.
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

const places = new Map<Element, Waiting>(); // where a picture is missing
const near = new Set<Element>(); // those of them that are on the screen or close to it
let asked = false;

const leastTime = 3; // milliseconds that drawing and showing one picture takes

// Safari has no idle time to give: there one picture is drawn after the other, with a pause in between.
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

// Draws the picture when the element in its place comes near the screen, and calls `ready` when it can be shown.
// Answers with what ends the waiting.
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
