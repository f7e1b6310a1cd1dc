// Helpers to define pages with default values. Buttons have handle 1 by default; rows and cards are not
// pressable by default.

import type * as View from "../src/view_types";

export type Kind = View.Node["kind"];
type Content<K extends Kind> = Extract<View.Node, { readonly kind: K }>["content"];

const part =
  <Whole>(usual: Whole) =>
  (rest: Partial<Whole> = {}): Whole => ({ ...usual, ...rest });

const node =
  <K extends Kind>(kind: K, usual: Content<K>) =>
  (rest: Partial<Content<K>> = {}) =>
    ({ kind, content: { ...usual, ...rest } }) as View.Node;

const usualButton: View.Button = {
  label: "", price: { amount: "", icon: "none" }, offReason: "", refusal: "", name: "", weight: "normal", handle: 1,
};
const usualField: View.Field = { label: "", value: "", hint: "", maximumLength: 80, severalLines: false, handle: 1 };
const usualSlider: View.Slider = { label: "", value: 50, minimum: 0, maximum: 100, step: 1, text: "", handle: 1 };
const usualCard: View.Card = { title: "", subtitle: "", picture: [], nodes: [], handle: 0 };

const emptyPage: View.Page = {
  title: "Test", subtitle: "", heading: "", head: "full", icons: [], figures: [], nodes: [], main: [], tabs: [],
  close: [], dialog: [], moment: [], passing: [], offersSaves: false, screen: 1,
};

export const page = part<View.Page>(emptyPage);
export const plainButton = part(usualButton);
export const plainCard = part(usualCard);
export const tile = part<View.StatTile>({ label: "", value: "", detail: "", tone: "plain", band: "none", icon: "none" });
export const option = part<View.ChoiceOption>({ label: "", chosen: false, picture: [], handle: 1 });

export const button = node("button", usualButton);
export const card = node("card", usualCard);
export const row = node("row", {
  label: "", value: "", detail: "", picture: [], tone: "plain", step: "none", band: "none", action: [], handle: 0,
});
export const meter = node("meter", { label: "", value: 0, maximum: 100, text: "", band: "none" });
export const chart = node("chart", { kind: "line", title: "", points: [], scale: [], summary: "" });
export const field = node("field", usualField);
export const slider = node("slider", usualSlider);

export const text = (text: string, rest: Partial<View.Text> = {}) =>
  node("text", { text, style: "body", tone: "plain" })(rest);
export const tiles = (...tiles: View.StatTile[]) => node("tiles", { tiles })();
export const cash = (value: string) => tiles(tile({ label: "Cash", value }));
export const balance = (net: string, income: string, expenses: string, tone: View.Tone = "plain") =>
  node("balance", { label: "Net of the week", net, tone, income, expenses })();
export const headline = node("headline", {
  stamp: "", text: "", detail: "", value: "", picture: [], tone: "plain", isLead: false, handle: 0,
});
export const post = node("post", {
  note: "", author: "", when: "", text: "", picture: [], comments: "", reposts: "", likes: "",
  isVerified: false, mine: false, actions: [], handle: 0,
});
export const place = node("place", {
  place: "", move: "none", moved: "", label: "", detail: "", value: "", picture: [], tone: "plain", handle: 0,
});
export const fold = (label: string, isOpen: boolean, ...nodes: View.Node[]) =>
  node("fold", { key: label, label, isOpen, nodes, handle: 1 })();
export const moment = part<View.Moment>({ scene: "deal", title: "", line: "", picture: [], number: 1 });
export const stars = (label: string, value: number, outOf = 5) => node("stars", { label, value, outOf })();
export const buttons = (...buttons: View.Button[]) => node("buttons", { buttons })();
export const choice = (label: string, options: readonly View.ChoiceOption[], several = false) =>
  node("choice", { label, options, several })();
const usualPicture: View.Picture = {
  kind: "photo", name: "", description: "", title: "", genre: "", format: "feature", season: 0, billed: "", age: 0,
};
export const picture = (kind: View.PictureKind, name: string, description = ""): View.Picture => ({
  ...usualPicture, kind, name, description,
});
// A poster like those of the catalogue.
export const poster = (title: string, genre: string, rest: Partial<View.Picture> = {}): View.Picture => ({
  ...usualPicture, kind: "poster", name: `${title}.png`, title, genre, ...rest,
});
export const pictureNode = (...shown: Parameters<typeof picture>) => node("picture", picture(...shown))();
export const bubble = (speaker: string, text: string, mine = false, letterTime = 0) =>
  node("bubble", { speaker, text, mine, letterTime, delay: 0 })();
export const happened = (when: string, text: string) => node("timelineEntry", { when, text })();
export const countdown = (label: string, secondsLeft: number, secondsInAll = 60) =>
  node("countdown", { label, secondsLeft, secondsInAll })();
export const section = (heading: string, ...nodes: View.Node[]) => node("section", { heading, nodes })();
export const swipeCard = (card: View.Card, left: View.Button, right: View.Button) =>
  node("swipeCard", { card, left, right })();
export const listPage = (nodes: readonly View.Node[], position = "", turns: readonly View.Button[] = []) =>
  node("listPage", { nodes, position, turns })();

export const dialog = (title: string, message: string, ...answers: View.Button[]) => [{ title, message, answers }];
export const tab = (label: string, icon: View.Icon, current = false): View.Tab => ({ label, icon, current, isOff: false, handle: 1 });

// The hub's tabs and icons, and the back button.
export const tabs = (current: number) =>
  (["home", "work", "social", "life", "wealth"] as const).map((icon, index) =>
    tab(icon[0]!.toUpperCase() + icon.slice(1), icon, index === current),
  );
export const energy = (amount: string): View.Price => ({ amount, icon: "energy" });
export const money = (amount: string): View.Price => ({ amount, icon: "none" });
export const icons = [tab("The Backstage", "backstage"), tab("Settings", "settings")];
export const back = (label = "Back") => [plainButton({ label })];

// A chart's points and ticks.
export const points = (values: readonly number[], label = "Week") =>
  values.map((value, index) => ({ label: `${label} ${index + 1}`, value, text: `$${value}K` }));
export const ticks = (...values: number[]) => values.map((value) => ({ value, text: `$${value}K` }));
