// Text with emoji in separate nodes, because some systems draw emoji in one color with a text font stack.

import type { ComponentChild } from "preact";

// Matches a flag, a keycap, or a pictograph with its modifiers, and joined sequences.
const picture = String.raw`(?:\p{Emoji_Presentation}|\p{Extended_Pictographic})(?:\ufe0f|\p{Emoji_Modifier})?`;
const sign = String.raw`\p{Regional_Indicator}{2}|[#*0-9]\ufe0f?\u20e3|${picture}(?:\u200d${picture})*`;
const emoji = new RegExp(`(?:${sign})+`, "gu");

// Symbols that stay text.
const plain = /^[©®™]+$/u;

export function Words({ text }: { readonly text: string }) {
  // Fast path: every emoji contains a character above this range.
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

// A viewer's name is often two words in one. With large text a line may end between them.
export function Name({ text }: { readonly text: string }) {
  const [first, ...others] = text.replace(/(_|\p{Ll}(?=\p{Lu}))/gu, "$1\n").split("\n");
  return (
    <>
      <Words text={first!} />
      {others.map((part) => (
        <>
          <wbr />
          <Words text={part} />
        </>
      ))}
    </>
  );
}
