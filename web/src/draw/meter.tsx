// A meter as a row of bulbs.

import type * as View from "../view_types";
import { Words } from "./words";

export function Meter({ label, value, maximum, text, band }: View.Meter) {
  const share = maximum > 0 ? Math.min(Math.max(value / maximum, 0), 1) : 0;
  return (
    <div class={`meter band-${band}`}>
      <div class="meter-words">
        <span class="meter-label">
          <Words text={label} />
        </span>
        <span class="meter-text">
          <Words text={text} />
        </span>
      </div>
      <div class="bulbs" aria-hidden="true">
        <div class="bulbs-lit" style={{ transform: `scaleX(${share})` }} />
      </div>
    </div>
  );
}
