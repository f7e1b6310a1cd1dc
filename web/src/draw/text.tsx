import type * as View from "../view_types";
import { Words } from "./words";

export function Text({ text, style, tone }: View.Text) {
  const words = <Words text={text} />;
  if (style === "quotation") return <blockquote class={`text quotation tone-${tone}`}>{words}</blockquote>;
  return <p class={`text text-${style} tone-${tone}`}>{words}</p>;
}
