// A chat bubble.

import type { ComponentChildren } from "preact";

import type * as View from "../view_types";
import { Words } from "./words";

export function Chat({ children }: { readonly children?: ComponentChildren }) {
  return (
    <ul class="chat" role="list">
      {children}
    </ul>
  );
}

export function Bubble({ speaker, text, mine }: View.Bubble) {
  return (
    <li class={`bubble-place${mine ? " is-mine" : ""}`}>
      {speaker !== "" && (
        <span class="bubble-speaker">
          <Words text={speaker} />
          <span class="unseen">: </span>
        </span>
      )}
      <span class="bubble">
        <Words text={text} />
      </span>
    </li>
  );
}
