// A meter as a row of bulbs.

import type * as View from "../view_types";
import { bandOf } from "./bands";
import { Words } from "./words";

export function Meter({ label, value, maximum, text, isScore }: View.Meter) {
  const share = maximum > 0 ? Math.min(Math.max(value / maximum, 0), 1) : 0;
  const tint = isScore ? `band-${bandOf(value)}` : "band-none";
  return (
    <div class={`meter ${tint}`}>
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
