// A slider. Reports values at most once per frame; the game's page sets the thumb's position.

import { useEffect, useId, useLayoutEffect, useRef } from "preact/hooks";

import type * as View from "../view_types";
import { finishTyping, handleOf } from "./pressing";
import { useScreen } from "./screen_context";
import { Words } from "./words";

export function Slider({ label, value, minimum, maximum, step, text, handle }: View.Slider) {
  const id = useId();
  const { actions } = useScreen();
  const control = useRef<HTMLInputElement>(null);
  const frame = useRef(0);
  const share = maximum > minimum ? (value - minimum) / (maximum - minimum) : 0;

  useLayoutEffect(() => {
    const slider = control.current;
    if (slider !== null && frame.current === 0 && slider.valueAsNumber !== value)
      slider.value = String(value);
  });
  useEffect(() => () => cancelAnimationFrame(frame.current), []);

  const tell = () => {
    frame.current = 0;
    finishTyping();
    const slider = control.current;
    if (slider !== null && handleOf(slider) > 0) actions.slide(handleOf(slider), slider.valueAsNumber);
  };
  const tellSoon = () => {
    if (frame.current === 0) frame.current = requestAnimationFrame(tell);
  };
  return (
    <div class="slider">
      <div class="slider-words">
        <label class="field-label" for={id}>
          <Words text={label} />
        </label>
        <span class="slider-text" aria-hidden="true">
          <Words text={text} />
        </span>
      </div>
      <input
        type="range"
        id={id}
        ref={control}
        class="slider-control"
        min={minimum}
        max={maximum}
        step={step}
        aria-valuetext={text === "" ? undefined : text}
        data-handle={handle}
        style={{ "--share": String(Math.min(Math.max(share, 0), 1)) }}
        onInput={tellSoon}
      />
    </div>
  );
}
