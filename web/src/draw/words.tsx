// Text with its emoji on nodes of their own: in a common font stack some systems draw them in one colour.

import type { ComponentChild } from "preact";

const emoji =
  /(?:\p{Regional_Indicator}{2}|[#*0-9]\ufe0f?\u20e3|(?:\p{Emoji_Presentation}|\p{Extended_Pictographic})(?:\ufe0f|\p{Emoji_Modifier})?(?:\u200d\p{Extended_Pictographic}(?:\ufe0f|\p{Emoji_Modifier})?)*)+/gu;

// Signs that have been text for longer than there are emoji, and stay it.
const plain = /^[©®™]+$/u;

export function Words({ text }: { readonly text: string }) {
  // Most text is Latin: anything that could be an emoji lies above it, but for the keycaps' enclosing sign.
  if (!/[\u00a9\u00ae\u2000-\uffff]/u.test(text) && !/[\u{10000}-\u{10ffff}]/u.test(text)) return <>{text}</>;
  const parts: ComponentChild[] = [];
  let end = 0;
  for (const match of text.matchAll(emoji)) {
    if (plain.test(match[0])) continue;
    if (match.index > end) parts.push(text.slice(end, match.index));
    parts.push(<span class="emoji">{match[0]}</span>);
    end = match.index + match[0].length;
  }
  if (end < text.length) parts.push(text.slice(end));
  return <>{parts}</>;
}
