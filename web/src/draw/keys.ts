// Keys of sibling nodes: their kind and name. A control with the same name keeps its element, and so its
// focus, when it moves among its siblings.

import type { Node } from "../view_types";

function nameOf(node: Node): string {
  switch (node.kind) {
    case "meter":
    case "stars":
    case "button":
    case "row":
    case "field":
    case "slider":
    case "choice":
    case "countdown":
    case "fold":
    case "place":
      return node.content.label;
    case "post":
      return `${node.content.author} ${node.content.text}`;
    case "headline":
      return node.content.text;
    case "buttons":
      return node.content.buttons[0]?.label ?? "";
    case "section":
      return node.content.heading;
    case "chart":
    case "card":
      return node.content.title;
    case "swipeCard":
      return node.content.card.title;
    case "picture":
      return `${node.content.kind} ${node.content.name}`;
    case "bubble":
      return `${node.content.speaker} ${node.content.text}`;
    case "timelineEntry":
      return `${node.content.when} ${node.content.text}`;
    case "text":
    case "tiles":
    case "balance":
    case "listPage":
      return "";
  }
}

// A unique key per node; nodes with equal names are numbered.
export function keysOf(nodes: readonly Node[]): string[] {
  return numbered(nodes.map((node) => `${node.kind} ${nameOf(node)}`));
}

export function numbered(names: readonly string[]): string[] {
  const seen = new Map<string, number>();
  return names.map((name) => {
    const before = seen.get(name) ?? 0;
    seen.set(name, before + 1);
    return before === 0 ? name : `${name} #${before}`;
  });
}
