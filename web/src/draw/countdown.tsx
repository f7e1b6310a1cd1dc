// A countdown: an emptying ring around the time.

import type * as View from "../view_types";
import { Words } from "./words";

const lastCall = 10; // seconds; from here on the ring is in the warning color
const radius = 44; // in a square of 100
const around = 2 * Math.PI * radius;

function clockText(seconds: number): string {
  const whole = Math.max(0, Math.ceil(seconds));
  return `${Math.floor(whole / 60)}:${String(whole % 60).padStart(2, "0")}`;
}

export function Countdown({ label, secondsLeft, secondsInAll }: View.Countdown) {
  const share = secondsInAll > 0 ? Math.min(Math.max(secondsLeft / secondsInAll, 0), 1) : 0;
  return (
    <div class={`countdown${secondsLeft <= lastCall ? " is-last-call" : ""}`} role="timer" aria-label={label}>
      <svg class="countdown-ring" viewBox="0 0 100 100" aria-hidden="true">
        <circle class="countdown-track" cx="50" cy="50" r={radius} />
        {share > 0 && (
          <circle
            class="countdown-left"
            cx="50"
            cy="50"
            r={radius}
            stroke-dasharray={`${share * around} ${around}`}
          />
        )}
      </svg>
      <div class="countdown-words">
        <span class="countdown-figure">{clockText(secondsLeft)}</span>
        <span class="countdown-label" aria-hidden="true">
          <Words text={label} />
        </span>
      </div>
    </div>
  );
}
