// Buttons. One with a price is a ticket: the price stands on the stub. One that is off stays in reach and
// says why.

import { useId } from "preact/hooks";

import type * as View from "../view_types";
import { numbered } from "./keys";
import { usePress } from "./pressing";
import { Words } from "./words";

export function PressButton({ label, price, offReason, weight, handle }: View.Button) {
  const press = usePress();
  const reason = useId();
  const off = offReason !== "";
  return (
    <div class={`button-place weight-${weight}${off ? " is-off" : ""}`}>
      <button
        type="button"
        class={`button${price === "" ? "" : " button-ticket"}`}
        data-handle={handle}
        aria-disabled={off ? "true" : undefined}
        aria-describedby={off ? reason : undefined}
        onClick={press}
      >
        <span class="button-label">
          <span>
            <Words text={label} />
          </span>
        </span>
        {price !== "" && (
          <span class="button-price">
            <span>
              <span class="unseen">, </span>
              <Words text={price} />
            </span>
          </span>
        )}
      </button>
      {off && (
        <p class="off-reason" id={reason}>
          <Words text={offReason} />
        </p>
      )}
    </div>
  );
}

// Buttons that stand side by side, as far as their words allow.
export function Buttons({ buttons }: View.Buttons) {
  const keys = numbered(buttons.map((button) => button.label));
  return (
    <div class="buttons">
      {buttons.map((button, index) => (
        <PressButton key={keys[index]!} {...button} />
      ))}
    </div>
  );
}
