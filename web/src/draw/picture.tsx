// A picture by its kind and name, in the size that its place asks for.

import { pictureArt } from "../art/picture_art";
import type * as View from "../view_types";

type Size = "row" | "lead" | "card" | "option" | "full";

export function Picture({ kind, name, description, size }: View.Picture & { readonly size: Size }) {
  const art = { __html: pictureArt(kind, name) };
  const look = `picture picture-${kind} size-${size}`;
  if (description === "") return <span class={look} aria-hidden="true" dangerouslySetInnerHTML={art} />;
  return <span class={look} role="img" aria-label={description} dangerouslySetInnerHTML={art} />;
}
