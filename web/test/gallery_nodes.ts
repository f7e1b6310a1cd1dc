// Short ways to write nodes down, with what is usual left out. Handles count up, as a laid-out page's do.

import type * as View from "../src/view_types";

let lastHandle = 0;
const handle = (): number => ++lastHandle;

type Rest<Kind> = Partial<Omit<Kind, "handle">>;

export const text = (text: string, rest: Rest<View.Text> = {}): View.Node => ({
  kind: "text",
  content: { text, style: "body", tone: "plain", ...rest },
});

export const tile = (
  label: string,
  value: string,
  detail = "",
  tone: View.Tone = "plain",
): View.StatTile => ({
  label,
  value,
  detail,
  tone,
});
export const tiles = (...all: View.StatTile[]): View.Node => ({ kind: "tiles", content: { tiles: all } });

export const balance = (income: string, expenses: string): View.Node => ({
  kind: "balance",
  content: { income, expenses },
});

export const meter = (label: string, value: number, rest: Rest<View.Meter> = {}): View.Node => ({
  kind: "meter",
  content: {
    label,
    value,
    maximum: 100,
    text: `${value} of ${rest.maximum ?? 100}`,
    isScore: false,
    ...rest,
  },
});

export const stars = (label: string, value: number, outOf = 5): View.Node => ({
  kind: "stars",
  content: { label, value, outOf },
});

export const plainButton = (label: string, rest: Rest<View.Button> = {}): View.Button => ({
  label,
  price: "",
  offReason: "",
  weight: "normal",
  ...rest,
  handle: rest.offReason ? 0 : handle(),
});
export const button = (label: string, rest: Rest<View.Button> = {}): View.Node => ({
  kind: "button",
  content: plainButton(label, rest),
});
export const buttons = (...all: View.Button[]): View.Node => ({ kind: "buttons", content: { buttons: all } });

interface RowRest extends Rest<View.Row> {
  readonly pressed?: boolean;
}
export const row = (label: string, value = "", { pressed = false, ...rest }: RowRest = {}): View.Node => ({
  kind: "row",
  content: { label, value, detail: "", picture: [], tone: "plain", ...rest, handle: pressed ? handle() : 0 },
});

export const field = (label: string, value: string, rest: Rest<View.Field> = {}): View.Node => ({
  kind: "field",
  content: { label, value, hint: "", maximumLength: 80, severalLines: false, ...rest, handle: handle() },
});

export const slider = (
  label: string,
  value: number,
  text: string,
  rest: Rest<View.Slider> = {},
): View.Node => ({
  kind: "slider",
  content: { label, value, minimum: 0, maximum: 100, step: 1, text, ...rest, handle: handle() },
});

export const option = (
  label: string,
  chosen = false,
  picture: readonly View.Picture[] = [],
): View.ChoiceOption => ({
  label,
  chosen,
  picture,
  handle: handle(),
});
export const choice = (label: string, options: readonly View.ChoiceOption[], several = false): View.Node => ({
  kind: "choice",
  content: { label, options, several },
});

export const picture = (kind: View.PictureKind, name: string, description = ""): View.Picture => ({
  kind,
  name,
  description,
});
export const pictureNode = (kind: View.PictureKind, name: string, description: string): View.Node => ({
  kind: "picture",
  content: picture(kind, name, description),
});

export const chart = (kind: View.ChartKind, title: string, rest: Rest<View.Chart> = {}): View.Node => ({
  kind: "chart",
  content: { kind, title, points: [], scale: [], summary: "", ...rest },
});

export const bubble = (speaker: string, text: string, mine = false): View.Node => ({
  kind: "bubble",
  content: { speaker, text, mine },
});

export const happened = (when: string, text: string): View.Node => ({
  kind: "timelineEntry",
  content: { when, text },
});

export const countdown = (label: string, secondsLeft: number, secondsInAll: number): View.Node => ({
  kind: "countdown",
  content: { label, secondsLeft, secondsInAll },
});

export const section = (heading: string, ...nodes: View.Node[]): View.Node => ({
  kind: "section",
  content: { heading, nodes },
});

interface CardRest extends Rest<View.Card> {
  readonly pressed?: boolean;
}
export const plainCard = (title: string, { pressed = false, ...rest }: CardRest = {}): View.Card => ({
  title,
  subtitle: "",
  picture: [],
  nodes: [],
  ...rest,
  handle: pressed ? handle() : 0,
});
export const card = (title: string, rest: CardRest = {}): View.Node => ({
  kind: "card",
  content: plainCard(title, rest),
});

export const swipeCard = (card: View.Card, left: View.Button, right: View.Button): View.Node => ({
  kind: "swipeCard",
  content: { card, left, right },
});

export const listPage = (
  nodes: readonly View.Node[],
  position = "",
  turns: readonly View.Button[] = [],
): View.Node => ({
  kind: "listPage",
  content: { nodes, position, turns },
});

export const tab = (label: string, icon: string, current = false): View.Tab => ({
  label,
  icon,
  current,
  handle: handle(),
});

export const dialog = (title: string, message: string, ...answers: View.Button[]): View.Dialog => ({
  title,
  message,
  answers,
});

export const page = (title: string, rest: Partial<View.Page>): View.Page => ({
  title,
  subtitle: "",
  icons: [],
  nodes: [],
  tabs: [],
  close: [],
  dialog: [],
  screen: 1,
  ...rest,
});

// The hub's tabs and icons, and the way back from a screen.
export const tabs = (current: number) =>
  [
    ["Career", "🎬"],
    ["Casting", "🎭"],
    ["Social", "💬"],
    ["Energy", "⚡️"],
    ["Wealth", "💰"],
  ].map(([label, icon], index) => tab(label!, icon!, index === current));
export const icons = () => [tab("Inbox", "✉️"), tab("The Backstage", "B")];
export const back = (label = "Back") => [plainButton(label)];

// Points and ticks of a chart over weeks, in thousands of dollars.
export const weeks = (count: number, of: (week: number) => number) =>
  Array.from({ length: count }, (_, index) => ({
    label: `Week ${index + 1}`,
    value: of(index),
    text: `$${of(index).toLocaleString("en-US")}K`,
  }));
export const ticks = (...values: number[]) =>
  values.map((value) => ({ value, text: value === 0 ? "$0" : `$${value}K` }));
