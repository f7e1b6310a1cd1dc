// A moment: a scene of less than a second over the page. Any press skips it, and does nothing else; where the
// system asks for no motion there is none. Its words are read out with the news of the page.

import type { TargetedEvent } from "preact";
import { useEffect, useRef, useState } from "preact/hooks";

import type * as View from "../view_types";
import { stillness } from "./motion";
import { Picture } from "./picture";
import { Words } from "./words";

const wholeScene = "moment-whole"; // the animation that lasts as long as the scene, in style/moments.css
const longestWaitForClick = 350; // milliseconds that a click may follow the finger that was lifted

// The moment that plays now, and how to end it. Each number is played once, whatever is drawn meanwhile; one that
// comes under a message is let go.
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

  // The key that skips is not for what has the focus under the scene. One that is still held down since it
  // brought the scene skips nothing.
  useEffect(() => {
    const onKeyDown = (event: KeyboardEvent) => {
      event.preventDefault();
      event.stopPropagation();
      if (!event.repeat) end();
    };
    window.addEventListener("keydown", onKeyDown, true);
    return () => window.removeEventListener("keydown", onKeyDown, true);
  }, []);

  // The scene stays over the page, unseen, until the click of the finger that skipped it is over.
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
            <Picture {...shown} description="" size="lead" />
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
