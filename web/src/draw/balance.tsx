import { useRef } from "preact/hooks";

import type * as View from "../view_types";
import { useCounting } from "./counting";
import { Words } from "./words";

const longestFigure = 12; // characters of a figure that fit a phone at full size

// What is left, and under it what came in and what went out. The heading above says which is which, and so
// does the colour.
export function Balance({ label, net, tone, income, expenses }: View.Balance) {
  const figure = useRef<HTMLElement>(null);
  useCounting(figure, `balance ${label}`, net);
  return (
    <div class="balance">
      <p class={`balance-net tone-${tone}`}>
        <span class="balance-label">
          <Words text={label} />
        </span>
        <span class="unseen">: </span>
        <span class={`balance-figure${net.length > longestFigure ? " figure-words" : ""}`} ref={figure}>
          <Words text={net} />
        </span>
      </p>
      <p class="balance-line">
        <span class="balance-side">
          <Words text={income} />
        </span>
        {" | "}
        <span class="balance-side tone-warning">
          <Words text={expenses} />
        </span>
      </p>
    </div>
  );
}
