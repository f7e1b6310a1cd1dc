// A picture in a given size, with a placeholder until it is drawn.

import { useEffect, useRef, useState } from "preact/hooks";

import type * as View from "../view_types";
import { addressIfDrawn, draw, drawWhenNear, keyOf } from "./drawn_pictures";

type Size = "row" | "lead" | "card" | "option" | "full";

// The address of the image, undefined until it is drawn, and the reference for its placeholder.
function useAddress(shown: View.Picture, atOnce: boolean) {
  const place = useRef<HTMLSpanElement>(null);
  const [, show] = useState("");
  const key = keyOf(shown);
  const address = atOnce ? draw(shown) : addressIfDrawn(key);
  const missing = address === undefined;
  useEffect(() => {
    if (missing) return drawWhenNear(place.current!, shown, () => show(key));
    return undefined;
  }, [key, missing]);
  return { place, address };
}

type PictureProps = View.Picture & { readonly size: Size; readonly atOnce?: boolean };

// `atOnce`: drawn with the page, such as the picture that a page is about. All others come after the first paint.
// The placeholder is not an image, because a page with many empty images opens slowly.
export function Picture({ size, atOnce = size === "full", ...shown }: PictureProps) {
  const { place, address } = useAddress(shown, atOnce);
  const look = `picture picture-${shown.kind} size-${size}`;
  const { description } = shown;
  if (address === undefined) {
    const role = description === "" ? "presentation" : "img";
    return <span ref={place} class={`${look} is-missing`} role={role} aria-label={description} />;
  }
  return <img class={look} src={address} alt={description} decoding={atOnce ? "sync" : "async"} />;
}
