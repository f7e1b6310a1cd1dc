// A toast above the foot of the page for a few seconds. It does not intercept presses and is announced.

import { useEffect, useState } from "preact/hooks";

import type * as View from "../view_types";
import { Words } from "./words";

const shownFor = 4000; // milliseconds

// `place` identifies the shown page; a change hides the line.
export function Passing({ passing, place }: Pick<View.Page, "passing"> & { readonly place: string }) {
  const said = passing[0];
  const [shown, setShown] = useState<View.PassingLine | null>(null);
  // A redraw without a line does not remove it early.
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
