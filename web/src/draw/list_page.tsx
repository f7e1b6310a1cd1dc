// The visible page of a long list, with paging buttons.

import { useLayoutEffect, useRef } from "preact/hooks";

import type * as View from "../view_types";
import { PressButton } from "./button";
import { Nodes } from "./node";

export function ListPage({ nodes, position, turns }: View.ListPage) {
  const list = useRef<HTMLDivElement>(null);
  const shown = useRef(position);

  // Paging scrolls to the top of the list, except by keyboard, where the focus stays on the button.
  useLayoutEffect(() => {
    if (shown.current === position) return;
    shown.current = position;
    const top = list.current;
    if (
      top === null ||
      top.getBoundingClientRect().top >= 0 ||
      document.querySelector(":focus-visible") !== null
    )
      return;
    top.scrollIntoView({ block: "start" });
  }, [position]);

  return (
    <div class="list-page" ref={list}>
      <Nodes nodes={nodes} />
      {turns.length > 0 && (
        <div class="turns" role="group" aria-label="Pages of this list">
          {turns.map((turn, index) => (
            <PressButton key={index} {...turn} />
          ))}
          <p class="turns-position">{position}</p>
        </div>
      )}
    </div>
  );
}
