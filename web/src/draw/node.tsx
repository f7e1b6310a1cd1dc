// Draws a node of any kind, and lists of nodes.

import type { ComponentChild, FunctionComponent } from "preact";

import type { Node } from "../view_types";
import { Balance } from "./balance";
import { Bubble, Chat } from "./bubble";
import { Buttons, PressButton } from "./button";
import { Card, Cards } from "./card";
import { Chart } from "./chart";
import { Choice } from "./choice";
import { Countdown } from "./countdown";
import { Field } from "./field";
import { Fold } from "./fold";
import { Headline, Headlines } from "./headline";
import { keysOf, numbered } from "./keys";
import { ListPage } from "./list_page";
import { Meter } from "./meter";
import { Picture } from "./picture";
import { Place, Places } from "./place";
import { Post, Posts } from "./post";
import { Row, Rows } from "./row";
import { Section } from "./section";
import { Slider } from "./slider";
import { Stars } from "./stars";
import { SwipeCard } from "./swipe_card";
import { Text } from "./text";
import { Tiles } from "./tiles";
import { Timeline, TimelineEntry } from "./timeline";

// A missing kind does not compile, because the function would end without a value.
function DrawnNode({ node }: { readonly node: Node }): ComponentChild {
  switch (node.kind) {
    case "text":
      return <Text {...node.content} />;
    case "tiles":
      return <Tiles {...node.content} />;
    case "balance":
      return <Balance {...node.content} />;
    case "meter":
      return <Meter {...node.content} />;
    case "stars":
      return <Stars {...node.content} />;
    case "button":
      return <PressButton {...node.content} />;
    case "buttons":
      return <Buttons {...node.content} />;
    case "row":
      return <Row {...node.content} />;
    case "headline":
      return <Headline {...node.content} />;
    case "post":
      return <Post {...node.content} />;
    case "place":
      return <Place {...node.content} />;
    case "field":
      return <Field {...node.content} />;
    case "slider":
      return <Slider {...node.content} />;
    case "choice":
      return <Choice {...node.content} />;
    case "chart":
      return <Chart {...node.content} />;
    case "picture":
      return <Picture {...node.content} size="full" />;
    case "bubble":
      return <Bubble {...node.content} />;
    case "timelineEntry":
      return <TimelineEntry {...node.content} />;
    case "countdown":
      return <Countdown {...node.content} />;
    case "section":
      return <Section {...node.content} />;
    case "fold":
      return <Fold {...node.content} />;
    case "card":
      return <Card {...node.content} />;
    case "swipeCard":
      return <SwipeCard {...node.content} />;
    case "listPage":
      return <ListPage {...node.content} />;
  }
}

// Kinds whose adjacent nodes form a list.
const lists: Partial<Record<Node["kind"], FunctionComponent>> = {
  row: Rows,
  headline: Headlines,
  post: Posts,
  place: Places,
  card: Cards,
  bubble: Chat,
  timelineEntry: Timeline,
};

interface Run {
  readonly kind: Node["kind"];
  readonly drawn: ComponentChild[];
}

function runsOf(nodes: readonly Node[]): Run[] {
  const keys = keysOf(nodes);
  const runs: Run[] = [];
  nodes.forEach((node, index) => {
    const last = runs[runs.length - 1];
    const drawn = <DrawnNode key={keys[index]!} node={node} />;
    if (last?.kind === node.kind && lists[node.kind] !== undefined) last.drawn.push(drawn);
    else runs.push({ kind: node.kind, drawn: [drawn] });
  });
  return runs;
}

export function Nodes({ nodes }: { readonly nodes: readonly Node[] }) {
  const runs = runsOf(nodes);
  const keys = numbered(runs.map((run) => run.kind));
  return (
    <>
      {runs.flatMap((run, index) => {
        const List = lists[run.kind];
        return List === undefined ? run.drawn : [<List key={keys[index]!}>{run.drawn}</List>];
      })}
    </>
  );
}
