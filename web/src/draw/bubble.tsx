// A chat bubble.

import type { ComponentChildren } from "preact";
import { useEffect, useRef, useState } from "preact/hooks";

import type * as View from "../view_types";
import { stillness } from "./motion";
import { Words } from "./words";

export function Chat({ children }: { readonly children?: ComponentChildren }) {
  return (
    <ul class="chat" role="list">
      {children}
    </ul>
  );
}

// The number of characters that have appeared. Assistive technology reads the whole text at once.
function useLetters(count: number, letterTime: number, delay: number): number {
  const [begun] = useState(() => performance.now());
  const isTyped = letterTime > 0 && !stillness();
  const [shown, show] = useState(isTyped ? 0 : count);
  useEffect(() => {
    if (shown >= count) return undefined;
    const next = window.setTimeout(
      () => show(Math.max(0, Math.floor(((performance.now() - begun) / 1000 - delay) / letterTime))),
      (shown === 0 ? Math.max(delay, letterTime) : letterTime) * 1000,
    );
    return () => clearTimeout(next);
  });
  return isTyped ? Math.min(shown, count) : count;
}

function Written({ text, letterTime, delay }: View.Bubble) {
  const letters = [...text];
  const shown = useLetters(letters.length, letterTime, delay);
  if (shown >= letters.length) return <Words text={text} />;
  return (
    <>
      <span class="unseen">{text}</span>
      <span aria-hidden="true">
        {letters.slice(0, shown).join("")}
        <span class="bubble-unwritten">{letters.slice(shown).join("")}</span>
      </span>
    </>
  );
}

export function Bubble(bubble: View.Bubble) {
  const { speaker, mine, letterTime } = bubble;
  const place = useRef<HTMLLIElement>(null);
  useEffect(() => {
    if (letterTime > 0) place.current!.scrollIntoView({ block: "nearest" });
  }, []);
  return (
    <li ref={place} class={`bubble-place${mine ? " is-mine" : ""}`}>
      {speaker !== "" && (
        <span class="bubble-speaker">
          <Words text={speaker} />
          <span class="unseen">: </span>
        </span>
      )}
      <span class="bubble">
        <Written {...bubble} />
      </span>
    </li>
  );
}
