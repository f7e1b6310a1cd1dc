// One line of a list: what, how much, and where a press leads.

import type { ComponentChildren } from "preact";

import type * as View from "../view_types";
import { Picture } from "./picture";
import { usePress } from "./pressing";
import { Words } from "./words";

export function Rows({ children }: { readonly children?: ComponentChildren }) {
  return (
    <ul class="rows" role="list">
      {children}
    </ul>
  );
}

function RowContent({ label, value, detail, picture }: View.Row) {
  return (
    <>
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
        <span class="row-value">
          <Words text={value} />
        </span>
      )}
    </>
  );
}

// Beside a picture there is room for a figure; what is said in words stands under the name.
const longestFigure = 10;

function layoutOf({ value, picture, tone }: View.Row): string {
  const bare = value === "" ? " row-bare" : "";
  const tall = picture.length > 0 && value.length > longestFigure ? " row-tall" : "";
  return `tone-${tone}${bare}${tall}`;
}

export function Row(row: View.Row) {
  const press = usePress();
  const tint = layoutOf(row);
  if (row.handle === 0) {
    return (
      <li class={`row ${tint}`}>
        <RowContent {...row} />
      </li>
    );
  }
  return (
    <li class="row-place">
      <button type="button" class={`row row-press ${tint}`} data-handle={row.handle} onClick={press}>
        <RowContent {...row} />
      </button>
    </li>
  );
}
