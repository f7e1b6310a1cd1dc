// The passing line: what was done just now, over the foot of the page for a few seconds. It covers nothing that
// can be pressed for long, takes no press itself, and is read out.

import { useEffect, useState } from "preact/hooks";

import type * as View from "../view_types";
import { Words } from "./words";

const shownFor = 4000; // milliseconds

// `place`: which page is on show. What was done on another one is over.
export function Passing({ passing, place }: Pick<View.Page, "passing"> & { readonly place: string }) {
  const said = passing[0];
  const [shown, setShown] = useState<View.PassingLine | null>(null);
  // The same page drawn again says nothing any more; the line stays its time.
  useEffect(() => {
    if (said !== undefined) setShown(said);
  }, [said?.number]);
  useEffect(() => {
    if (said === undefined) setShown(null);
  }, [place]);
  useEffect(() => {
    if (shown === null) return;
    const timer = setTimeout(() => setShown(null), shownFor);
    return () => clearTimeout(timer);
  }, [shown?.number]);
  return (
    <div class="passing" role="status">
      {shown !== null && (
        <p class="passing-line" key={shown.number}>
          <Words text={shown.text} />
        </p>
      )}
    </div>
  );
}
