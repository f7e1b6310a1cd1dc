// A picture in a given size, with a placeholder until it is drawn.

import { useEffect, useRef, useState } from "preact/hooks";

import type * as View from "../view_types";
import { addressIfDrawn, draw, drawWhenNear, keyOf } from "./drawn_pictures";

type Size = "row" | "lead" | "card" | "option" | "full";

const nothing = "data:image/svg+xml,<svg xmlns='http://www.w3.org/2000/svg'/>";

// Large pictures are drawn immediately.
const isLarge = (size: Size): boolean => size === "full" || size === "lead";

// The address of the image.
function useAddress(shown: View.Picture, size: Size) {
  const place = useRef<HTMLImageElement>(null);
  const [, show] = useState("");
  const key = keyOf(shown);
  const address = isLarge(size) ? draw(shown) : addressIfDrawn(key);
  const missing = address === undefined;
  useEffect(() => {
    if (missing) return drawWhenNear(place.current!, shown, () => show(key));
    return undefined;
  }, [key, missing]);
  return { place, address };
}

export function Picture({ size, ...shown }: View.Picture & { readonly size: Size }) {
  const { place, address } = useAddress(shown, size);
  const look = `picture picture-${shown.kind} size-${size}${address === undefined ? " is-missing" : ""}`;
  const decoding = isLarge(size) ? "sync" : "async";
  return <img ref={place} class={look} src={address ?? nothing} alt={shown.description} decoding={decoding} />;
}
