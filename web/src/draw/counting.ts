// Animates figures from the last shown value to the new one.

import type { RefObject } from "preact";
import { useLayoutEffect } from "preact/hooks";

import { stillness } from "./motion";

interface Figure {
  readonly prefix: string;
  readonly value: number; // including its K, M or B
  readonly suffix: string;
  readonly scale: number;
  readonly decimals: number;
  readonly group: string; // thousands separator, can be empty
  readonly point: string;
}

const scales: Readonly<Record<string, number>> = { K: 1e3, M: 1e6, B: 1e9 };
const countingTime = 180; // milliseconds

// The figure in a text such as "$1,250", "-3.5%" or "€ 1,2 Mio"; null when there is none. Three digits after
// a separator are parsed as thousands; a wrong guess affects only intermediate frames.
export function parseFigure(text: string): Figure | null {
  const match = /^([^\d]*)(\d[\d.,'\u2019\u00a0\u202f]*)(.*)$/su.exec(text);
  if (match === null) return null;
  const [, prefix = "", tail = "", rest = ""] = match;
  const digits = tail.replace(/[^\d]+$/u, "");
  const suffix = tail.slice(digits.length) + rest;
  if (/\d/u.test(suffix)) return null; // two figures, as in "72 of 100", are not animated
  const fraction = /[.,](\d+)$/u.exec(digits);
  const isFraction = fraction !== null && fraction[1]!.length !== 3;
  const whole = isFraction ? digits.slice(0, fraction.index) : digits;
  const decimals = isFraction ? fraction[1]!.length : 0;
  const value = Number(whole.replace(/\D/gu, "") + (isFraction ? `.${fraction[1]}` : ""));
  const scale = scales[suffix.trim().charAt(0)] ?? 1;
  return {
    prefix,
    value: value * scale * (/[-\u2212(]/u.test(prefix) ? -1 : 1),
    suffix,
    scale,
    decimals,
    group: /\D/u.exec(whole)?.[0] ?? "",
    point: isFraction ? digits.charAt(fraction.index) : ".",
  };
}

// `value` in the format of `like`.
export function formatLike(like: Figure, value: number): string {
  const [whole = "0", fraction] = (Math.abs(value) / like.scale).toFixed(like.decimals).split(".");
  const grouped = like.group === "" ? whole : whole.replace(/\B(?=(\d{3})+$)/gu, like.group);
  return like.prefix + grouped + (fraction === undefined ? "" : like.point + fraction) + like.suffix;
}

const lastSeen = new Map<string, string>();

// Animates the text of `figure` when `text` differs from the last one with the same key.
export function useCounting(figure: RefObject<HTMLElement | null>, key: string, text: string): void {
  useLayoutEffect(() => {
    const before = lastSeen.get(key);
    lastSeen.set(key, text);
    const node = figure.current?.lastChild; // an icon may stand before it
    if (before === undefined || before === text || !(node instanceof Text) || stillness()) return;
    const from = parseFigure(before);
    const to = parseFigure(text);
    if (from === null || to === null) return;

    const start = performance.now();
    let frame = 0;
    const step = (now: number) => {
      // The frame's time can be before the start, if the frame began before the change.
      const part = Math.min(Math.max((now - start) / countingTime, 0), 1);
      const eased = 1 - (1 - part) ** 3;
      node.data = part < 1 ? formatLike(to, from.value + (to.value - from.value) * eased) : text;
      if (part < 1) frame = requestAnimationFrame(step);
    };
    step(start);
    return () => cancelAnimationFrame(frame);
  }, [key, text]);
}
