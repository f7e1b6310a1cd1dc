// A card in the shape of a ticket: the title above a perforation, the rest below. A pressable card can be
// pressed anywhere; for keyboards and screen readers its title is the button.

import type { ComponentChildren } from "preact";

import type * as View from "../view_types";
import { Nodes } from "./node";
import { Picture } from "./picture";
import { usePress } from "./pressing";
import { Heading, Under } from "./section";
import { Chevron } from "./signs";
import { Name, Words } from "./words";

export function Cards({ children }: { readonly children?: ComponentChildren }) {
  return <div class="cards">{children}</div>;
}

// Landscape pictures are above the text, others beside it.
const wide: ReadonlySet<View.PictureKind> = new Set(["house", "vehicle", "photo"]);

function CardHead({ title, subtitle, handle }: Pick<View.Card, "title" | "subtitle" | "handle">) {
  const press = usePress();
  const words = <Name text={title} />; // of a viewer, on a review
  return (
    <div class="card-words">
      {title !== "" && (
        <Heading class="card-title">
          {handle === 0 ? (
            words
          ) : (
            <button type="button" class="card-press" data-handle={handle} onClick={press}>
              {words}
            </button>
          )}
        </Heading>
      )}
      {subtitle !== "" && (
        <p class="card-subtitle">
          <Words text={subtitle} />
        </p>
      )}
    </div>
  );
}

// A head with just a title is lower.
function headOf({ subtitle, picture }: View.Card): string {
  if (picture.some((shown) => wide.has(shown.kind))) return " card-banner";
  return subtitle === "" && picture.length === 0 ? " card-bare" : "";
}

export function Card(card: View.Card) {
  const { title, subtitle, picture, nodes, handle } = card;
  const head = headOf(card);
  return (
    <article class="card">
      {(title !== "" || subtitle !== "" || picture.length > 0) && (
        <div class={`card-head${head}`}>
          {picture.map((shown) => (
            <Picture key={shown.name} {...shown} size={wide.has(shown.kind) ? "full" : "card"} />
          ))}
          <CardHead title={title} subtitle={subtitle} handle={handle} />
          {handle !== 0 && <Chevron />}
        </div>
      )}
      {nodes.length > 0 && (
        <div class="card-body">
          <Under>
            <Nodes nodes={nodes} />
          </Under>
        </div>
      )}
    </article>
  );
}
