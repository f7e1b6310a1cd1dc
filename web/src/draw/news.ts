// Screen-reader announcements of changes when a screen is redrawn.

import type { Node, Page } from "../view_types";
import { screenOf } from "./places";

const mostAtOnce = 4; // sentences per announcement
const lastCall = 10; // seconds

interface Said {
  readonly figures: Map<string, string>; // by label
  readonly sentences: Set<string>;
  readonly countdowns: Map<string, number>; // seconds left
}

function listen(nodes: readonly Node[], said: Said): void {
  for (const node of nodes) {
    switch (node.kind) {
      case "tiles":
        for (const tile of node.content.tiles) said.figures.set(tile.label, tile.value);
        break;
      case "balance":
        said.figures.set(node.content.label, node.content.net);
        said.figures.set("Income", node.content.income);
        said.figures.set("Expenses", node.content.expenses);
        break;
      case "meter":
        said.figures.set(node.content.label, node.content.text);
        break;
      case "text":
        said.sentences.add(node.content.text);
        break;
      case "bubble":
        said.sentences.add(`${node.content.speaker}: ${node.content.text}`);
        break;
      case "timelineEntry":
        said.sentences.add(`${node.content.when}: ${node.content.text}`);
        break;
      case "countdown":
        said.countdowns.set(node.content.label, node.content.secondsLeft);
        break;
      case "section":
      case "card":
        listen(node.content.nodes, said);
        break;
      case "swipeCard":
        said.sentences.add(`${node.content.card.title}. ${node.content.card.subtitle}`);
        listen(node.content.card.nodes, said);
        break;
      case "listPage":
        if (node.content.position !== "") said.sentences.add(node.content.position);
        listen(node.content.nodes, said);
        break;
      default: // is not announced
        break;
    }
  }
}

function heard(page: Page): Said {
  const said: Said = { figures: new Map(), sentences: new Set(), countdowns: new Map() };
  for (const figure of page.figures) said.figures.set(figure.label, `${figure.value} ${figure.detail}`.trim());
  listen(page.nodes, said);
  return said;
}

// A moment is announced on every screen.
function momentBetween(before: Page, after: Page): string[] {
  const moment = after.moment[0];
  return moment === undefined || moment.number === before.moment[0]?.number ? [] : [`${moment.title}: ${moment.line}`];
}

// Sentences to announce, most important first; for another screen, whose heading is read anyway, only a
// moment.
export function newsBetween(before: Page, after: Page): string[] {
  const moment = momentBetween(before, after);
  if (screenOf(before) !== screenOf(after)) return moment;
  const old = heard(before);
  const now = heard(after);
  const news = moment;
  for (const [label, seconds] of now.countdowns) {
    const past = old.countdowns.get(label) ?? 0;
    if (past > lastCall && seconds <= lastCall) news.push(`${label}: ${lastCall} seconds left`);
  }
  for (const sentence of now.sentences) if (!old.sentences.has(sentence)) news.push(sentence);
  for (const [label, value] of now.figures) {
    if (old.figures.has(label) && old.figures.get(label) !== value) news.push(`${label}: ${value}`);
  }
  return news.slice(0, mostAtOnce);
}
