// A row that expands to show more nodes.

import { useId } from "preact/hooks";

import type * as View from "../view_types";
import { Nodes } from "./node";
import { usePress } from "./pressing";
import { Turn } from "./signs";
import { Words } from "./words";

export function Fold({ label, nodes, isOpen, handle }: View.Fold) {
  const press = usePress();
  const inside = useId();
  return (
    <div class={`fold${isOpen ? " is-open" : ""}`}>
      <button
        type="button"
        class="fold-press"
        aria-expanded={isOpen ? "true" : "false"}
        aria-controls={isOpen ? inside : undefined}
        data-handle={handle}
        onClick={press}
      >
        <span class="fold-label">
          <Words text={label} />
        </span>
        <Turn />
      </button>
      {isOpen && (
        <div class="fold-nodes" id={inside}>
          <Nodes nodes={nodes} />
        </div>
      )}
    </div>
  );
}
