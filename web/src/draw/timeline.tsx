// A timeline in the style of a film strip.

import type { ComponentChildren } from "preact";

import type * as View from "../view_types";
import { Words } from "./words";

export function Timeline({ children }: { readonly children?: ComponentChildren }) {
  return (
    <ol class="timeline" role="list">
      {children}
    </ol>
  );
}

export function TimelineEntry({ when, text }: View.TimelineEntry) {
  return (
    <li class="timeline-entry">
      {when !== "" && (
        <span class="timeline-when">
          <Words text={when} />
          <span class="unseen">: </span>
        </span>
      )}
      <span class="timeline-text">
        <Words text={text} />
      </span>
    </li>
  );
}
