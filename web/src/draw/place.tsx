// An entry of a chart: its place, how it moved, and the title.

import type { ComponentChildren } from "preact";

import type * as View from "../view_types";
import { Picture } from "./picture";
import { usePress } from "./pressing";
import { Words } from "./words";

export function Places({ children }: { readonly children?: ComponentChildren }) {
  return (
    <ul class="places" role="list">
      {children}
    </ul>
  );
}

const arrows: Readonly<Record<View.PlaceMove, string>> = { none: "", up: "▲", down: "▼", level: "▬", entered: "★" };

function PlaceContent({ place, move, moved, label, detail, value, picture }: View.Place) {
  return (
    <>
      <span class="place-rank">
        <span class="place-number">{place}</span>
        {move !== "none" && (
          <span class={`place-move move-${move}`}>
            <span aria-hidden="true">{arrows[move]} </span>
            {moved}
          </span>
        )}
      </span>
      {picture.map((shown) => (
        <Picture key={shown.name} {...shown} size="row" />
      ))}
      <span class="place-words">
        <span class="place-label">
          <span class="unseen">: </span>
          <Words text={label} />
        </span>
        {detail !== "" && (
          <span class="place-detail">
            <span class="unseen">, </span>
            <Words text={detail} />
          </span>
        )}
        {value !== "" && (
          <span class="place-value">
            <span class="unseen">, </span>
            {value}
          </span>
        )}
      </span>
    </>
  );
}

export function Place(entry: View.Place) {
  const press = usePress();
  const look = `place tone-${entry.tone}`;
  return (
    <li>
      {entry.handle === 0 ? (
        <div class={look}>
          <PlaceContent {...entry} />
        </div>
      ) : (
        <button type="button" class={`${look} place-press`} data-handle={entry.handle} onClick={press}>
          <PlaceContent {...entry} />
        </button>
      )}
    </li>
  );
}
