// Written by view_types from the fields of the view vocabulary (src/shells/web/view_fields.h). Do not edit:
// build the target view_types and run it.
export type PageHead = "full" | "line";

export type Icon = "none" | "home" | "work" | "social" | "life" | "wealth" | "backstage" | "settings" | "energy" | "rose";

export interface Tab {
  readonly label: string;
  readonly icon: Icon;
  readonly current: boolean;
  readonly isOff: boolean;
  readonly handle: number;
}

export type Tone = "plain" | "quiet" | "good" | "warning" | "accent";

export type Band = "none" | "poor" | "fair" | "good" | "great";

export interface StatTile {
  readonly label: string;
  readonly value: string;
  readonly detail: string;
  readonly tone: Tone;
  readonly band: Band;
  readonly icon: Icon;
}

export interface Price {
  readonly amount: string;
  readonly icon: Icon;
}

export type ButtonWeight = "normal" | "primary" | "quiet" | "destructive" | "done";

export interface Button {
  readonly label: string;
  readonly price: Price;
  readonly offReason: string;
  readonly refusal: string;
  readonly name: string;
  readonly weight: ButtonWeight;
  readonly handle: number;
}

export interface Dialog {
  readonly title: string;
  readonly message: string;
  readonly answers: readonly Button[];
}

export type MomentScene = "deal" | "curtain" | "marquee" | "envelope" | "glow" | "tabloid";

export type PictureKind = "avatar" | "poster" | "logo" | "house" | "vehicle" | "card" | "photo" | "icon";

export type PosterFormat = "feature" | "series" | "commercial" | "student" | "shortFilm";

export interface Picture {
  readonly kind: PictureKind;
  readonly name: string;
  readonly description: string;
  readonly title: string;
  readonly genre: string;
  readonly format: PosterFormat;
  readonly season: number;
  readonly billed: string;
  readonly age: number;
}

export interface Moment {
  readonly scene: MomentScene;
  readonly title: string;
  readonly line: string;
  readonly picture: readonly Picture[];
  readonly number: number;
}

export interface PassingLine {
  readonly text: string;
  readonly number: number;
}

export interface Page {
  readonly title: string;
  readonly subtitle: string;
  readonly heading: string;
  readonly head: PageHead;
  readonly icons: readonly Tab[];
  readonly figures: readonly StatTile[];
  readonly nodes: readonly Node[];
  readonly main: readonly Button[];
  readonly tabs: readonly Tab[];
  readonly close: readonly Button[];
  readonly dialog: readonly Dialog[];
  readonly moment: readonly Moment[];
  readonly passing: readonly PassingLine[];
  readonly offersSaves: boolean;
  readonly screen: number;
}

export type TextStyle = "body" | "large" | "caption" | "quotation" | "heading";

export interface Text {
  readonly text: string;
  readonly style: TextStyle;
  readonly tone: Tone;
}

export interface Tiles {
  readonly tiles: readonly StatTile[];
}

export interface Balance {
  readonly label: string;
  readonly net: string;
  readonly tone: Tone;
  readonly income: string;
  readonly expenses: string;
}

export interface Meter {
  readonly label: string;
  readonly value: number;
  readonly maximum: number;
  readonly text: string;
  readonly band: Band;
}

export interface Stars {
  readonly label: string;
  readonly value: number;
  readonly outOf: number;
}

export interface Buttons {
  readonly buttons: readonly Button[];
}

export type RowStep = "none" | "open" | "taken";

export interface Row {
  readonly label: string;
  readonly value: string;
  readonly detail: string;
  readonly picture: readonly Picture[];
  readonly tone: Tone;
  readonly step: RowStep;
  readonly band: Band;
  readonly action: readonly Button[];
  readonly handle: number;
}

export interface Headline {
  readonly stamp: string;
  readonly text: string;
  readonly detail: string;
  readonly value: string;
  readonly picture: readonly Picture[];
  readonly tone: Tone;
  readonly isLead: boolean;
  readonly handle: number;
}

export interface Post {
  readonly note: string;
  readonly author: string;
  readonly when: string;
  readonly text: string;
  readonly picture: readonly Picture[];
  readonly comments: string;
  readonly reposts: string;
  readonly likes: string;
  readonly isVerified: boolean;
  readonly mine: boolean;
  readonly actions: readonly Button[];
  readonly handle: number;
}

export type PlaceMove = "none" | "up" | "down" | "level" | "entered";

export interface Place {
  readonly place: string;
  readonly move: PlaceMove;
  readonly moved: string;
  readonly label: string;
  readonly detail: string;
  readonly value: string;
  readonly picture: readonly Picture[];
  readonly tone: Tone;
  readonly handle: number;
}

export interface Field {
  readonly label: string;
  readonly value: string;
  readonly hint: string;
  readonly maximumLength: number;
  readonly severalLines: boolean;
  readonly handle: number;
}

export interface Slider {
  readonly label: string;
  readonly value: number;
  readonly minimum: number;
  readonly maximum: number;
  readonly step: number;
  readonly text: string;
  readonly handle: number;
}

export interface ChoiceOption {
  readonly label: string;
  readonly chosen: boolean;
  readonly picture: readonly Picture[];
  readonly handle: number;
}

export interface Choice {
  readonly label: string;
  readonly options: readonly ChoiceOption[];
  readonly several: boolean;
}

export type ChartKind = "line" | "bar" | "pie" | "histogram";

export interface ChartPoint {
  readonly label: string;
  readonly value: number;
  readonly text: string;
}

export interface ChartTick {
  readonly value: number;
  readonly text: string;
}

export interface Chart {
  readonly kind: ChartKind;
  readonly title: string;
  readonly points: readonly ChartPoint[];
  readonly scale: readonly ChartTick[];
  readonly summary: string;
}

export interface Bubble {
  readonly speaker: string;
  readonly text: string;
  readonly mine: boolean;
  readonly letterTime: number;
  readonly delay: number;
}

export interface TimelineEntry {
  readonly when: string;
  readonly text: string;
}

export interface Countdown {
  readonly label: string;
  readonly secondsLeft: number;
  readonly secondsInAll: number;
}

export interface Section {
  readonly heading: string;
  readonly nodes: readonly Node[];
}

export interface Fold {
  readonly key: string;
  readonly label: string;
  readonly nodes: readonly Node[];
  readonly isOpen: boolean;
  readonly handle: number;
}

export interface Card {
  readonly title: string;
  readonly subtitle: string;
  readonly picture: readonly Picture[];
  readonly nodes: readonly Node[];
  readonly handle: number;
}

export interface SwipeCard {
  readonly card: Card;
  readonly left: Button;
  readonly right: Button;
}

export interface ListPage {
  readonly nodes: readonly Node[];
  readonly position: string;
  readonly turns: readonly Button[];
}

export type Node =
  | { readonly kind: "text"; readonly content: Text }
  | { readonly kind: "tiles"; readonly content: Tiles }
  | { readonly kind: "balance"; readonly content: Balance }
  | { readonly kind: "meter"; readonly content: Meter }
  | { readonly kind: "stars"; readonly content: Stars }
  | { readonly kind: "button"; readonly content: Button }
  | { readonly kind: "buttons"; readonly content: Buttons }
  | { readonly kind: "row"; readonly content: Row }
  | { readonly kind: "headline"; readonly content: Headline }
  | { readonly kind: "post"; readonly content: Post }
  | { readonly kind: "place"; readonly content: Place }
  | { readonly kind: "field"; readonly content: Field }
  | { readonly kind: "slider"; readonly content: Slider }
  | { readonly kind: "choice"; readonly content: Choice }
  | { readonly kind: "chart"; readonly content: Chart }
  | { readonly kind: "picture"; readonly content: Picture }
  | { readonly kind: "bubble"; readonly content: Bubble }
  | { readonly kind: "timelineEntry"; readonly content: TimelineEntry }
  | { readonly kind: "countdown"; readonly content: Countdown }
  | { readonly kind: "section"; readonly content: Section }
  | { readonly kind: "fold"; readonly content: Fold }
  | { readonly kind: "card"; readonly content: Card }
  | { readonly kind: "swipeCard"; readonly content: SwipeCard }
  | { readonly kind: "listPage"; readonly content: ListPage };
