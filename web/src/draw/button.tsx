// Buttons. A button with a price looks like a ticket with the price on its stub. A disabled button stays
// focusable and shows its reason, and so does one that would refuse.

import { useId } from "preact/hooks";

import type * as View from "../view_types";
import { numbered } from "./keys";
import { usePress } from "./pressing";
import { Check, Icon, spokenIcon } from "./signs";
import { Words } from "./words";

// The button's accessible name; empty when its text is enough.
function spokenName({ label, name, price: { amount, icon } }: View.Button): string {
  if (name === "" && icon === "none") return "";
  const called = name === "" ? label : name;
  return amount === "" ? called : `${called}, ${amount}${spokenIcon(icon)}`;
}

export function PressButton(button: View.Button) {
  const { label, price, offReason, refusal, weight, handle } = button;
  const press = usePress();
  const reason = useId();
  const off = offReason !== "";
  const why = off ? offReason : refusal;
  const spoken = spokenName(button);
  const shownOnly = spoken === "" ? undefined : "true";
  return (
    <div class={`button-place weight-${weight}${off ? " is-off" : why === "" ? "" : " is-refusing"}`}>
      <button
        type="button"
        class={`button${price.amount === "" ? "" : " button-ticket"}`}
        data-handle={handle}
        aria-disabled={off ? "true" : undefined}
        aria-describedby={why === "" ? undefined : reason}
        onClick={press}
      >
        {spoken !== "" && <span class="unseen">{spoken}</span>}
        <span class="button-label" aria-hidden={shownOnly}>
          <span>
            {weight === "done" && <Check />}
            <Words text={label} />
          </span>
        </span>
        {price.amount !== "" && (
          <span class="button-price" aria-hidden={shownOnly}>
            <span>
              <span class="unseen">, </span>
              <Icon name={price.icon} />
              {price.amount}
            </span>
          </span>
        )}
      </button>
      {why !== "" && (
        <p class="off-reason" id={reason}>
          <Words text={why} />
        </p>
      )}
    </div>
  );
}

// Buttons side by side, if their labels fit.
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
