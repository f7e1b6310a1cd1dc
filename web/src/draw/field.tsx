// A text field. Its text is submitted on blur, on Enter, or before anything else is pressed. Until then
// redrawing the page does not change text and caret.

import { useId, useLayoutEffect, useRef } from "preact/hooks";

import type * as View from "../view_types";
import { finishTyping, handleOf, setUnfinished } from "./pressing";
import { useScreen } from "./screen_context";
import { Words } from "./words";

type Control = HTMLInputElement | HTMLTextAreaElement;

function useTyping(value: string) {
  const { actions } = useScreen();
  const control = useRef<Control | null>(null);
  const isTyping = useRef(false);

  useLayoutEffect(() => {
    const field = control.current;
    if (field !== null && !isTyping.current && field.value !== value) field.value = value;
  });
  // A removed field discards its text.
  useLayoutEffect(
    () => () => {
      if (isTyping.current) setUnfinished(null);
    },
    [],
  );

  const handOver = () => {
    const field = control.current;
    if (field === null || !isTyping.current) return;
    isTyping.current = false;
    actions.type(handleOf(field), field.value);
  };
  return {
    ref: (field: Control | null) => {
      control.current = field;
    },
    onInput: () => {
      isTyping.current = true;
      setUnfinished(handOver);
    },
    onBlur: finishTyping,
    onChange: finishTyping,
  };
}

export function Field({ label, value, hint, maximumLength, severalLines, handle }: View.Field) {
  const id = useId();
  const typing = useTyping(value);
  const common = {
    id,
    class: "field-control",
    "data-handle": handle,
    // maxLength counts UTF-16 units, so it is never more than the game's limit of characters.
    maxLength: maximumLength,
    autoComplete: "off",
    "aria-describedby": hint === "" ? undefined : `${id}-hint`,
    ...typing,
  };
  const finishOnEnter = (event: KeyboardEvent) => {
    if (event.key === "Enter" && !event.isComposing) finishTyping();
  };
  return (
    <div class="field">
      <label class="field-label" for={id}>
        <Words text={label} />
      </label>
      {severalLines ? (
        <textarea {...common} rows={4} />
      ) : (
        <input {...common} type="text" enterKeyHint="done" onKeyDown={finishOnEnter} />
      )}
      {hint !== "" && (
        <p class="field-hint" id={`${id}-hint`}>
          <Words text={hint} />
        </p>
      )}
    </div>
  );
}
