// A moment: an animation of less than a second over the page. Any press skips it and does nothing else. It is
// not played with reduced motion. news.ts announces its words.

import type { TargetedEvent } from "preact";
import { useLayoutEffect, useRef, useState } from "preact/hooks";

import type * as View from "../view_types";
import { stillness } from "./motion";
import { Picture } from "./picture";
import { Words } from "./words";

const wholeScene = "moment-whole"; // the animation with the length of the scene, in style/moments.css
const longestWaitForClick = 350; // milliseconds between lifting a finger and its click

// The current moment and a function to end it. Each number is played once, even if the page is redrawn; a
// moment under a message is dropped.
function usePlaying({ moment, dialog }: View.Page): [View.Moment | null, () => void] {
  const playing = useRef<View.Moment | null>(null);
  const last = useRef(0);
  const [, draw] = useState(0);
  const shown = moment[0];
  if (shown !== undefined && shown.number > last.current) {
    last.current = shown.number;
    playing.current = stillness() || dialog.length > 0 ? null : shown;
  }
  const end = () => {
    playing.current = null;
    draw((count) => count + 1);
  };
  return [playing.current, end];
}

export function MomentOver({ page }: { readonly page: View.Page }) {
  const [moment, end] = usePlaying(page);
  return moment === null ? null : <Scene key={moment.number} moment={moment} end={end} />;
}

function Scene({ moment, end }: { readonly moment: View.Moment; readonly end: () => void }) {
  const [skipped, skip] = useState(false);
  const held = useRef(false);

  // The key that skips the scene does not reach the focused control. Repeats of a held key do not skip. Listens
  // before the scene is painted, so that not even a quick key gets through.
  useLayoutEffect(() => {
    const onKeyDown = (event: KeyboardEvent) => {
      event.preventDefault();
      event.stopPropagation();
      if (!event.repeat) end();
    };
    window.addEventListener("keydown", onKeyDown, true);
    return () => window.removeEventListener("keydown", onKeyDown, true);
  }, []);

  // The invisible scene stays until the click that follows the skipping touch.
  const onPointerDown = () => {
    held.current = true;
    skip(true);
  };
  const onPointerUp = () => setTimeout(end, longestWaitForClick);
  const onAnimationEnd = (event: TargetedEvent<HTMLElement, AnimationEvent>) => {
    if (event.animationName === wholeScene && !held.current) end();
  };
  return (
    <div
      class={`moment moment-${moment.scene}${skipped ? " is-skipped" : ""}`}
      aria-hidden="true"
      onPointerDown={onPointerDown}
      onPointerUp={onPointerUp}
      onPointerCancel={end}
      onClick={end}
      onAnimationEnd={onAnimationEnd}
    >
      <div class="moment-stage">
        {moment.picture.map((shown) => (
          <div class="moment-poster" key={shown.name}>
            <Picture {...shown} description="" size="lead" atOnce />
          </div>
        ))}
        <p class="moment-title">
          <Words text={moment.title} />
        </p>
        <p class="moment-line">
          <Words text={moment.line} />
        </p>
      </div>
      <div class="moment-drape moment-drape-left" />
      <div class="moment-drape moment-drape-right" />
    </div>
  );
}
