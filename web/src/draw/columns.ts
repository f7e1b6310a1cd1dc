// The column layout of a page on a wide screen. On a phone the parts are below each other in the same order.

import type { Node, PictureKind } from "../view_types";

export interface Parts {
  readonly front: readonly Node[]; // none or one: the page's first picture, beside the lead
  readonly lead: readonly Node[]; // above both columns
  readonly columns: readonly (readonly Node[])[]; // none, or two
  readonly isNarrow: boolean; // has no content for a wide screen
}

// The estimated height of a node in rows of text. Nodes are not measured, so that columns do not change with
// figures.
function heightOf(node: Node): number {
  switch (node.kind) {
    case "section":
      return 2 + heightOfAll(node.content.nodes);
    case "listPage":
      return heightOfAll(node.content.nodes) + (node.content.turns.length > 0 ? 3 : 0);
    case "card":
      return 4 + heightOfAll(node.content.nodes);
    case "headline":
      return node.content.isLead ? 8 : 3;
    case "post":
      return 4 + node.content.text.length / 50;
    case "fold":
      return 2 + heightOfAll(node.content.nodes);
    case "choice":
      return 2 + 2 * node.content.options.length;
    case "tiles":
      return 3 * Math.ceil(node.content.tiles.length / 2);
    case "chart":
      return 12;
    case "picture":
    case "swipeCard":
      return 16;
    case "text":
      return 1 + node.content.text.length / 60;
    default:
      return 2.5;
  }
}

const heightOfAll = (nodes: readonly Node[]): number => nodes.reduce((sum, node) => sum + heightOf(node), 0);

// The index to split the sections at, to minimize the higher column.
function cutOf(sections: readonly Node[]): number {
  const all = heightOfAll(sections);
  let best = sections.length;
  let lowest = all;
  let left = 0;
  sections.forEach((section, index) => {
    left += heightOf(section);
    const higher = Math.max(left, all - left);
    if (higher < lowest) [lowest, best] = [higher, index + 1];
  });
  return best;
}

// Whether the node uses the full width, such as cards side by side.
const isWide = (node: Node): boolean =>
  node.kind === "card" ||
  (node.kind === "listPage" && node.content.nodes.some((listed) => listed.kind === "card"));

const uprights: ReadonlySet<PictureKind> = new Set(["poster", "card", "avatar", "logo", "icon"]);

// Whether the first node is a picture with room for the second beside it.
const isFront = (first: Node | undefined, second: Node | undefined): boolean =>
  first?.kind === "picture" && uprights.has(first.content.kind) && second !== undefined;

// A poster's height in rows of text.
const besideFront = 14;

// The index where columns start: the first section, or the first that does not fit beside the picture.
function startOfColumns(nodes: readonly Node[]): number {
  const first = nodes.findIndex((node) => node.kind === "section");
  if (first < 0 || !isFront(nodes[0], nodes[1])) return first;
  let height = heightOfAll(nodes.slice(1, first));
  let start = first;
  while (start < nodes.length && height + heightOf(nodes[start]!) <= besideFront) {
    height += heightOf(nodes[start]!);
    start += 1;
  }
  return nodes.slice(start).filter((node) => node.kind === "section").length >= 2 ? start : first;
}

export function partsOf(nodes: readonly Node[]): Parts {
  const first = startOfColumns(nodes);
  const sections = first < 0 ? [] : nodes.slice(first);
  const hasColumns = sections.filter((node) => node.kind === "section").length >= 2;
  const lead = hasColumns ? nodes.slice(0, first) : nodes;
  const fronts = isFront(lead[0], lead[1]) ? 1 : 0;
  const cut = cutOf(sections);
  const inside = sections[0]?.kind === "section" ? sections[0].content.nodes : [];
  return {
    front: lead.slice(0, fronts),
    lead: lead.slice(fronts),
    columns: hasColumns ? [sections.slice(0, cut), sections.slice(cut)] : [],
    isNarrow: !hasColumns && ![...nodes, ...inside].some(isWide),
  };
}
