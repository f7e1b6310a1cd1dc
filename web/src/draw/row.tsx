// A line of a list: label, value and an optional press.

import type { ComponentChildren } from "preact";

import type * as View from "../view_types";
import { PressButton } from "./button";
import { Picture } from "./picture";
import { usePress } from "./pressing";
import { Check } from "./signs";
import { Words } from "./words";

export function Rows({ children }: { readonly children?: ComponentChildren }) {
  return (
    <ul class="rows" role="list">
      {children}
    </ul>
  );
}

// A completed step has a check mark in its circle.
function StepMark({ step }: Pick<View.Row, "step">) {
  if (step === "none") return null;
  return (
    <span class={`step step-${step}`}>
      <span class="unseen">{step === "taken" ? "Done: " : "To do: "}</span>
      {step === "taken" && <Check />}
    </span>
  );
}

function RowContent({ label, value, detail, picture, step, band }: View.Row) {
  return (
    <>
      <StepMark step={step} />
      {picture.map((shown) => (
        <Picture key={shown.name} {...shown} size="row" />
      ))}
      <span class="row-words">
        <span class="row-label">
          <Words text={label} />
        </span>
        {detail !== "" && (
          <span class="row-detail">
            <Words text={detail} />
          </span>
        )}
      </span>
      {value !== "" && (
        <span class={`row-value band-${band}`}>
          <Words text={value} />
        </span>
      )}
    </>
  );
}

// Beside a picture there is room for a short figure only; longer values are below the label.
const longestFigure = 10;

function layoutOf({ value, picture, tone }: View.Row): string {
  const bare = value === "" ? " row-bare" : "";
  const tall = picture.length > 0 && value.length > longestFigure ? " row-tall" : "";
  return `tone-${tone}${bare}${tall}`;
}

export function Row(row: View.Row) {
  const press = usePress();
  const look = `row ${layoutOf(row)}`;
  const action = row.action.map((button) => <PressButton key="action" {...button} />);
  if (row.handle === 0) {
    return (
      <li class={action.length > 0 ? "row-acting" : look}>
        {action.length > 0 ? (
          <div class={look}>
            <RowContent {...row} />
          </div>
        ) : (
          <RowContent {...row} />
        )}
        {action}
      </li>
    );
  }
  return (
    <li class={action.length > 0 ? "row-place row-acting" : "row-place"}>
      <button type="button" class={`${look} row-press`} data-handle={row.handle} onClick={press}>
        <RowContent {...row} />
      </button>
      {action}
    </li>
  );
}
