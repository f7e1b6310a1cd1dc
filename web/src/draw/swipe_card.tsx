// A card that is answered by swiping, with the arrow keys or with one of its two buttons.

import { useLayoutEffect, useRef } from "preact/hooks";

import type * as View from "../view_types";
import { PressButton } from "./button";
import { stillness } from "./motion";
import { Nodes } from "./node";
import { Picture } from "./picture";
import { Heading, Under } from "./section";
import { Words } from "./words";

const decided = 88; // CSS pixels; releasing beyond this answers
const begun = 8; // pixels; beyond this it is a swipe, not a press or a scroll
const flight = 140; // milliseconds of the exit animation
const lean = 0.06; // degrees per pixel

type Side = "left" | "right";

const sides: Readonly<Record<string, Side>> = { ArrowLeft: "left", ArrowRight: "right" };

// Whether the arrow keys do something else there: in a field or a choice, and under a message.
const usesArrows = (target: EventTarget | null): boolean =>
  document.querySelector("dialog[open]") !== null ||
  (target instanceof HTMLElement && target.closest("input, textarea, select") !== null);

interface Push {
  readonly pointer: number;
  readonly startX: number;
  readonly startY: number;
  moved: number;
  isPush: boolean;
}

function usePushing() {
  const card = useRef<HTMLDivElement>(null);
  const push = useRef<Push | null>(null);
  const leaving = useRef(0);

  const place = (moved: number) => {
    const shown = card.current;
    if (shown === null) return;
    shown.style.transform = moved === 0 ? "" : `translateX(${moved}px) rotate(${moved * lean}deg)`;
    shown.style.setProperty("--to-left", String(Math.min(Math.max(-moved / decided, 0), 1)));
    shown.style.setProperty("--to-right", String(Math.min(Math.max(moved / decided, 0), 1)));
  };
  const buttonOf = (side: Side) =>
    card.current?.parentElement?.querySelector<HTMLButtonElement>(
      `.swipe-${side} .button:not([aria-disabled])`,
    );

  const answer = (side: Side) => {
    const shown = card.current;
    if (shown === null) return;
    const answered = () => {
      leaving.current = 0;
      buttonOf(side)?.click();
      shown.classList.remove("is-moving");
      place(0);
    };
    if (stillness()) return answered();
    shown.classList.add("is-moving");
    place((side === "left" ? -1 : 1) * (shown.clientWidth + 2 * decided));
    leaving.current = window.setTimeout(answered, flight);
  };

  useLayoutEffect(() => () => clearTimeout(leaving.current), []);

  useLayoutEffect(() => {
    const onKeyDown = (event: KeyboardEvent) => {
      const side = sides[event.key];
      if (side === undefined || event.repeat || event.altKey || event.ctrlKey || event.metaKey) return;
      if (leaving.current !== 0 || usesArrows(event.target) || !buttonOf(side)) return;
      event.preventDefault();
      answer(side);
    };
    window.addEventListener("keydown", onKeyDown);
    return () => window.removeEventListener("keydown", onKeyDown);
  }, []);

  return {
    ref: card,
    onPointerDown: (event: PointerEvent) => {
      if (!event.isPrimary || event.button !== 0 || leaving.current !== 0) return;
      push.current = {
        pointer: event.pointerId,
        startX: event.clientX,
        startY: event.clientY,
        moved: 0,
        isPush: false,
      };
    },
    onPointerMove: (event: PointerEvent) => {
      const now = push.current;
      if (now === null || now.pointer !== event.pointerId) return;
      now.moved = event.clientX - now.startX;
      if (!now.isPush) {
        if (Math.abs(now.moved) < begun || Math.abs(now.moved) < Math.abs(event.clientY - now.startY)) return;
        now.isPush = true;
        card.current?.setPointerCapture(now.pointer);
        card.current?.classList.remove("is-moving");
      }
      place(now.moved);
    },
    onPointerUp: () => {
      const done = push.current;
      push.current = null;
      if (done === null || !done.isPush) return;
      const side: Side = done.moved < 0 ? "left" : "right";
      if (Math.abs(done.moved) >= decided && buttonOf(side)) return answer(side);
      card.current?.classList.add("is-moving");
      place(0);
    },
    onPointerCancel: () => {
      push.current = null;
      place(0);
    },
  };
}

export function SwipeCard({ card, left, right }: View.SwipeCard) {
  const pushing = usePushing();
  return (
    <div class="swipe">
      <article class="swipe-card" {...pushing}>
        <div class="swipe-front">
          {card.picture.map((shown) => (
            <Picture key={shown.name} {...shown} size="full" />
          ))}
          <span class="swipe-stamp swipe-stamp-left" aria-hidden="true">
            <Words text={left.label} />
          </span>
          <span class="swipe-stamp swipe-stamp-right" aria-hidden="true">
            <Words text={right.label} />
          </span>
        </div>
        <div class="swipe-words">
          {card.title !== "" && (
            <Heading class="swipe-title">
              <Words text={card.title} />
            </Heading>
          )}
          {card.subtitle !== "" && (
            <p class="card-subtitle">
              <Words text={card.subtitle} />
            </p>
          )}
          <Under>
            <Nodes nodes={card.nodes} />
          </Under>
        </div>
      </article>
      <div class="swipe-answers">
        <div class="swipe-left">
          <PressButton {...left} />
        </div>
        <div class="swipe-right">
          <PressButton {...right} />
        </div>
      </div>
    </div>
  );
}
