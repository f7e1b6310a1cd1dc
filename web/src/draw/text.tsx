import type * as View from "../view_types";
import { Heading } from "./section";
import { Words } from "./words";

export function Text({ text, style, tone }: View.Text) {
  const words = <Words text={text} />;
  if (style === "heading") return <Heading class={`text text-heading tone-${tone}`}>{words}</Heading>;
  if (style === "quotation") return <blockquote class={`text quotation tone-${tone}`}>{words}</blockquote>;
  return <p class={`text text-${style} tone-${tone}`}>{words}</p>;
}
