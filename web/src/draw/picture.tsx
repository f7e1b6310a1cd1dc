// A picture in a given size, with a placeholder until it is drawn.

import { useEffect, useRef, useState } from "preact/hooks";

import type * as View from "../view_types";
import { addressIfDrawn, draw, drawWhenNear, keyOf } from "./drawn_pictures";

type Size = "row" | "lead" | "card" | "option" | "full";

// The picture that a page is about is there with it. All others come after the first paint.
const isFirst = (size: Size): boolean => size === "full";

// The address of the image, undefined until it is drawn, and the reference for its placeholder.
function useAddress(shown: View.Picture, size: Size) {
  const place = useRef<HTMLSpanElement>(null);
  const [, show] = useState("");
  const key = keyOf(shown);
  const address = isFirst(size) ? draw(shown) : addressIfDrawn(key);
  const missing = address === undefined;
  useEffect(() => {
    if (missing) return drawWhenNear(place.current!, shown, () => show(key));
    return undefined;
  }, [key, missing]);
  return { place, address };
}

// The placeholder is not an image, because a page with many empty images opens slowly.
export function Picture({ size, ...shown }: View.Picture & { readonly size: Size }) {
  const { place, address } = useAddress(shown, size);
  const look = `picture picture-${shown.kind} size-${size}`;
  const { description } = shown;
  if (address === undefined) {
    const role = description === "" ? "presentation" : "img";
    return <span ref={place} class={`${look} is-missing`} role={role} aria-label={description} />;
  }
  return <img class={look} src={address} alt={description} decoding={isFirst(size) ? "sync" : "async"} />;
}
