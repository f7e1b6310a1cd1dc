// Text with its emoji on nodes of their own: in a common font stack some systems draw them in one colour.

import type { ComponentChild } from "preact";

// A flag, a keycap, or a pictograph with what can follow it; joined, they are one sign.
const picture = String.raw`(?:\p{Emoji_Presentation}|\p{Extended_Pictographic})(?:\ufe0f|\p{Emoji_Modifier})?`;
const sign = String.raw`\p{Regional_Indicator}{2}|[#*0-9]\ufe0f?\u20e3|${picture}(?:\u200d${picture})*`;
const emoji = new RegExp(`(?:${sign})+`, "gu");

// Signs that were text before there were emoji, and stay it.
const plain = /^[©®™]+$/u;

export function Words({ text }: { readonly text: string }) {
  // Most text is Latin, and every emoji has a sign above that.
  if (!/[\u2000-\u{10ffff}]/u.test(text)) return <>{text}</>;
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
