import { useRef } from "preact/hooks";

import type * as View from "../view_types";
import { useCounting } from "./counting";
import { Words } from "./words";

const longestFigure = 12; // characters of a figure that fit a phone at full size

// The net amount above income and expenses, which the heading and the colors distinguish.
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
