// Pages with every kind of node and option, and with edge cases: long words, markup characters, empty and
// very long content.

import type * as View from "../src/view_types";
import * as make from "./gallery_nodes";
import {
  back, button, card, chart, icons, page, picture, plainButton, points, row, section, tabs, text, ticks, tile,
} from "./gallery_nodes";

const longWord = "Donaudampfschifffahrtselektrizitätenhauptbetriebswerkbauunterbeamtengesellschaft";
const longText =
  "A sentence that goes on and on, as sentences in a long career will do when nobody stops them in time. ".repeat(4);
const markup = `<b onclick="alert(1)">"Bold" & daring</b>`;
const signs = "© 2026 ™ 1️⃣ 👩🏽‍🎤🏳️‍🌈🇫🇷 ⚠️ ★ — all in one line";
const muchMoney = "$123,456,789,012,345.67";

const tones: readonly View.Tone[] = ["plain", "quiet", "good", "warning", "accent"];
const styles: readonly View.TextStyle[] = ["body", "large", "caption", "quotation", "heading"];
const weights: readonly View.ButtonWeight[] = ["normal", "primary", "quiet", "destructive", "done"];
const figures = [
  tile({ label: "Cash", value: "$1,250" }),
  tile({ label: "Energy", value: "72", detail: "of 100", icon: "energy" }),
];
const endWeek = [plainButton({ label: "End Week", weight: "primary" })];
const pictureKinds: readonly View.PictureKind[] = [
  "avatar", "poster", "logo", "house", "vehicle", "card", "photo", "icon",
];
const bands: readonly View.Band[] = ["none", "poor", "fair", "good", "great"];
const poster = [picture("poster", "Night Train")];

const hub = page({
  title: "Dana Wells",
  subtitle: "JANUARY\n16, 2026",
  heading: "Home",
  icons,
  figures,
  main: endWeek,
  tabs: tabs(0),
  nodes: [
    section(
      "This week",
      row({
        label: "Audition in 2 weeks",
        detail: "Cold Harbor Radio • Support\nReady 41 of 100",
        picture: poster,
        handle: 1,
        action: [plainButton({ label: "Rehearse", name: "Rehearse for Iris", price: make.energy("4"), weight: "primary" })],
      }),
      row({ label: "Find work", step: "taken", tone: "quiet", handle: 1 }),
      row({ label: "Send showreels", detail: "20 energy each", step: "open", handle: 1 }),
      row({ label: "End the week", step: "open" }),
    ),
    make.tiles(...tones.map((tone) => tile({ label: `Cash ${tone}`, value: "$1,250", detail: "+312 a week", tone }))),
    make.balance("+$380", "$450", "$70", "good"),
    make.meter({ label: "Energy", value: 72, text: "72 of 100" }),
    section(
      "Now playing",
      card({
        title: "Night Train",
        subtitle: "Feature Film • Thriller\nWeek 3 in theaters",
        picture: poster,
        handle: 1,
        nodes: [make.stars("Audience", 3.5), make.buttons(plainButton({ label: "Promote", price: make.money("$2,500") }))],
      }),
      card({ title: "The Lake House", subtitle: "TV-Series • Drama", picture: poster, handle: 1 }),
    ),
    make.listPage(
      [
        card({
          title: "Iris",
          picture: poster,
          nodes: [
            text("A retired stuntwoman is asked for one last fall."),
            row({ label: "Pay", value: "$450" }),
            button({ label: "Submit", price: make.energy("12"), weight: "primary" }),
          ],
        }),
        card({ title: "Ghost Light", subtitle: "Short Film • Principal" }),
      ],
      "1–2 of 312",
      [
        plainButton({ label: "Previous", weight: "quiet", offReason: "This is the first page.", handle: 0 }),
        plainButton({ label: "Next", weight: "quiet" }),
      ],
    ),
    section("Auditions", ...tones.map((tone) => row({ label: `Invited ${tone}`, value: "Lead", tone, handle: 1 }))),
    section(
      "Fame",
      chart({
        title: "Net worth",
        points: points(Array.from({ length: 30 }, (_, week) => Math.round(40 + week * 3 + 22 * Math.sin(week / 3)))),
        scale: ticks(0, 50, 100, 150),
        summary: "Net worth rose from $40K to $128K over 30 weeks, with a dip in week 15.",
      }),
    ),
  ],
});

// A board with buttons in rows and a one-line head.
const board = page({
  title: "Casting Network",
  subtitle: "The Backstage",
  head: "line",
  close: back(),
  figures: [tile({ label: "Cash", value: "-$1,250,000", tone: "warning" }), figures[1]!],
  main: endWeek,
  tabs: tabs(1),
  passing: [{ text: "Showreel sent to The Salt Wives", number: 1 }],
  nodes: [
    { label: "Submit", price: make.energy("20"), weight: "primary" as const },
    { label: "Submitted", weight: "done" as const },
    { label: "Submit", price: make.energy("20"), weight: "primary" as const, refusal: "Union members only" },
    { label: "Submit", price: make.energy("20"), offReason: "No energy", handle: 0 },
  ].map((action, index) =>
    row({
      label: index === 1 ? longWord : `The Salt Wives ${index}`,
      detail: "Feature Film • Support\n$3,795 • in 8 weeks",
      picture: poster,
      handle: index === 3 ? 0 : 1,
      action: [plainButton({ name: `Submit for The Salt Wives ${index}`, ...action })],
    }),
  ),
});

// A title's page: poster beside the lead, nested sections.
const film = page({
  title: "Summer of Steel",
  subtitle: "Feature Film • Action, Drama • 2027",
  close: back(),
  nodes: [
    make.pictureNode("poster", "Summer of Steel", "Poster of Summer of Steel"),
    ...styles.map((style) => text(`“Words in ${style}.”`, { style })),
    make.tiles(tile({ label: "Total gross", value: "$48.9M" })),
    section(
      "Scores",
      ...bands.map((band, index) => make.meter({ label: band, value: 10 + 25 * index, text: `${index}`, band })),
      make.tiles(...bands.map((band) => tile({ label: band, value: "50", band }))),
      ...bands.map((band) => row({ label: `Scene ${band}`, value: "50", band })),
    ),
    section(
      "Cast",
      ...tones.flatMap((tone) => [
        text(`Said in ${tone}.`, { tone }),
        row({ label: `Lead ${tone}`, picture: [picture("avatar", "woman (12).png")], tone }),
      ]),
      section("Reviews", row({ label: "The Daily Reel", value: "★ 4.0", detail: "“Rarely this warm.”", picture: poster })),
    ),
    make.buttons(...weights.map((weight) => plainButton({ label: `Now ${weight}`, weight }))),
    make.buttons(...weights.map((weight) => plainButton({ label: `For money ${weight}`, weight, price: make.energy("12") }))),
    make.buttons(
      ...weights.map((weight) =>
        plainButton({ label: `Not ${weight}`, weight, price: make.money("$9"), offReason: "No cash.", handle: 0 }),
      ),
    ),
  ],
});

// All kinds of charts: empty, one point, negative values, and many points.
const bottomless = { points: points([-40, 20, -10, 60], "A quarter of the very long year"), scale: ticks(-40, 0, 60) };
const series: Readonly<Record<string, Partial<View.Chart>>> = {
  nothing: {},
  "one point": { points: points([5]), scale: ticks(0, 5) },
  "no share": { points: points([0], longWord), scale: ticks(0) },
  "ups and downs": bottomless,
  "ten markets": { points: points([12, 8, 14, 30, 52, 90, 160, 210, 140, 66], "M"), scale: ticks(0, 100, 200) },
  "two years": {
    points: points(Array.from({ length: 104 }, (_, week) => 500 + Math.round(400 * Math.cos(week / 9)))),
    scale: ticks(0, 500, 1000),
  },
};
const charts = page({
  title: "Charts",
  close: back(),
  nodes: (["line", "bar", "pie", "histogram"] as const).map((kind) =>
    section(
      `As a ${kind}`,
      ...Object.entries(series)
        .filter(([what]) => kind !== "pie" || what !== "two years") // the legend would be too long
        .map(([what, rest]) => chart({ kind, title: `Of ${what}, ${kind}`, summary: `It says ${what}, ${kind}.`, ...rest })),
    ),
  ),
});

const latch = page({
  title: "Latch",
  subtitle: "Each swipe takes 3 energy",
  icons: [make.tab("Matches", "rose")],
  close: back("Done"),
  nodes: [
    make.swipeCard(
      make.plainCard({
        title: "Robin, 27",
        subtitle: "Stunt double • 4 miles away",
        picture: [picture("avatar", "woman (31).png", "Robin")],
        nodes: [text("Fluent in sarcasm and subtitles."), make.meter({ label: "Match", value: 81, text: "81%" })],
      }),
      plainButton({ label: "Pass", price: make.energy("3") }),
      plainButton({ label: "Like", price: make.energy("3"), weight: "primary" }),
    ),
    section(
      "Messages",
      make.bubble("Robin", "So… which of your films should I never watch?"),
      make.bubble("", "The commercial with the singing toaster. 🍞", true),
      make.countdown("Robin is typing", 8),
    ),
    section("What happened", make.countdown("Time left", 42), make.happened("0:55", "Bisney opens at $3M.")),
  ],
});

const news = (stamp: string, words: string, rest: Partial<View.Headline> = {}) =>
  make.headline({ stamp, text: words, picture: poster, handle: 1, ...rest });
// The tabs are off until it is closed.
const review = page({
  title: "REVIEW",
  subtitle: "Week 4 of 2026",
  head: "line",
  close: back("Close"),
  figures,
  main: [plainButton({ label: "Carry on", weight: "primary" })],
  tabs: tabs(0).map((tab) => ({ ...tab, isOff: true, handle: 0 })),
  nodes: [
    section("INCOME • EXPENSES", make.balance("-$50", "$0", "$50", "warning")),
    section(
      "FEED",
      news("BOOKED", "You auditioned for Night Train and the cast director offered you the role.", {
        tone: "good", isLead: true, detail: "Lead • Feature Film",
      }),
      ...tones.map((tone) => news(`IT IS ${tone}`, `Told in ${tone}.`, { tone, value: "+$1.1K" })),
      make.headline({ text: "The contract for your job has ended" }),
      make.fold("4 never wrote back", false),
      make.fold("Two Hats said no", true, news("NOT SELECTED", "You were not selected.", { tone: "quiet" })),
    ),
  ],
});
const frontPages = page({
  title: "Front pages",
  nodes: [
    ...tones.map((tone) => news(longWord, longText, { tone, isLead: true, value: muchMoney, detail: longWord })),
    news(longWord, longText, { value: muchMoney, detail: longWord }),
    make.headline({ stamp: "WRAPPED", text: "Without a picture, and nowhere to go.", isLead: true, detail: "As is" }),
    make.fold(longText, true, news("", longWord)),
  ],
});

const face = [make.picture("avatar", "woman (3).png")];
const seen = { when: "3h", comments: "12", reposts: "1.2K", likes: "8.1K", picture: face };
const feed = page({
  title: "Feed",
  nodes: [
    make.post({ ...seen, author: "popcornDuchess", text: "the trailer gave away everything, @ushers 🍿", isVerified: true }),
    make.post({ ...seen, author: "Ada", text: "Thank you.", note: "Pinned", mine: true, handle: 1, actions: [plainButton({ label: "Unpin" })] }),
    make.post({ ...seen, author: longWord, text: longText, likes: muchMoney }),
    ...(["up", "down", "level", "entered", "none"] as const).map((move, index) =>
      make.place({ place: `${index + 1}`, move, moved: move === "none" ? "" : `${move} 3`, label: `Title ${index}`, detail: "4 weeks in the Top 10", value: "41M", picture: poster, tone: index === 0 ? "accent" : "plain", handle: index }),
    ),
    make.place({ place: "100", label: longWord, detail: longText, value: muchMoney }),
  ],
});

const letters = (...labels: string[]) => labels.map((label, index) => make.option({ label, chosen: index === 1 }));
const form = page({
  title: "New career",
  nodes: [
    make.field({ label: "Stage name", value: "Dana", hint: "As it appears on posters.", maximumLength: 30 }),
    make.field({ label: "Biography", value: "Grew up backstage.\nNever quite left.", severalLines: true }),
    make.slider({ label: "Age", value: 24, text: "24 years", minimum: 18, maximum: 60 }),
    make.choice("Side by side", letters("Female", "Male")),
    make.choice("Chips", letters("1", "2", "3", "4", "5", "6", "7")),
    make.choice("In a list", letters("A shared room above a theater in the old town", "Your parents' house")),
    make.choice("Several", letters("Voice", "Stage fighting", "Crying on cue"), true),
    make.choice(
      "Pictures",
      pictureKinds.map((kind, index) =>
        make.option({ label: `Look ${kind}`, chosen: index === 1, picture: [picture(kind, "woman (7).png")] }),
      ),
    ),
  ],
  main: [plainButton({ label: "Begin", weight: "primary" })],
});

const pictures = page({
  title: "Pictures",
  close: back(),
  nodes: pictureKinds.map((kind) =>
    section(
      `As ${kind}`,
      make.pictureNode(kind, "ring2.png", `A ${kind} of its own`),
      row({ label: `A row with a ${kind}`, value: "a long word", picture: [picture(kind, "castle")], handle: 1 }),
      card({
        title: `A card with a ${kind}`,
        picture: [picture(kind, "jet")],
        handle: 1,
        nodes: [make.buttons(plainButton({ label: "Buy", price: make.money("$240K") }), plainButton({ label: "Offer less" }))],
      }),
    ),
  ),
});

const extreme = page({
  title: longWord,
  subtitle: longText,
  icons,
  tabs: tabs(2),
  close: back("Leave this screen without deciding anything"),
  nodes: [
    make.tiles(
      tile({ label: longWord, value: muchMoney, detail: longText, tone: "good" }),
      tile({ value: "0" }),
      tile({ label: "None" }),
    ),
    make.tiles(tile({ label: "Alone", value: "$999,999,999" })),
    make.tiles(),
    make.balance(`-${muchMoney}`, `-${muchMoney}`, muchMoney, "warning"),
    make.meter({ label: longWord, value: 1e12, text: "1,000,000,000,000 of 100" }),
    make.meter({ label: "Nothing", maximum: 0, text: "0 of 0" }),
    make.stars(longWord, 7.3, 10),
    button({ label: longWord, price: make.money("$123,456,789,012"), offReason: longText, handle: 0 }),
    make.buttons(
      plainButton({ label: longWord, price: make.money("$1") }),
      plainButton({ label: "OK" }),
      plainButton({ label: "A button with quite a few words on it", weight: "quiet" }),
    ),
    row({ label: longWord, value: muchMoney, detail: longText, picture: poster, handle: 1 }),
    row(),
    make.field({ label: longWord, value: longWord, hint: longText }),
    make.slider({ label: longWord, text: muchMoney, minimum: 50, maximum: 50 }),
    make.choice("", letters(longWord, "B")),
    make.bubble(longWord, longText),
    make.bubble("", longWord, true),
    make.happened(longWord, longText),
    [1, 2, 3, 4, 5].reduce((inner) => section(longWord, inner), section(longWord, text(longWord))),
    card({ title: longWord, subtitle: longText, picture: poster, handle: 1, nodes: [text(longText)] }),
    card(),
    make.listPage([]),
    text(""),
    text(signs, { tone: "accent" }),
    text(markup),
    make.countdown(longWord, 0, 0),
  ],
});

const large = page({
  title: "Chirp",
  tabs: tabs(2),
  icons: [make.tab("Settings", "settings", true)],
  nodes: [
    make.tiles(tile({ label: "Followers", value: "1.2M" }), tile({ label: "Posts", value: "312" })),
    ...Array.from({ length: 8 }, (_, day) =>
      section(
        `Day ${day + 1}`,
        ...Array.from({ length: 20 }, (_, index) =>
          row({
            label: `Fan ${day * 20 + index}`,
            value: `${index * 3} ♥`,
            detail: "I laughed, I cried, I bought the soundtrack. 🎵",
            picture: [picture(index % 3 === 0 ? "poster" : "avatar", `woman (${day * 20 + index}).png`)],
            handle: 1,
          }),
        ),
      ),
    ),
  ],
  main: [plainButton({ label: "Post", weight: "primary" })],
});

const notice = {
  ...hub,
  dialog: make.dialog("⚠️ Name Needed ⚠️", "Please enter your stage name/name.", plainButton({ label: "OK" })),
};
const question = {
  ...hub,
  dialog: make.dialog(
    "💔 Divorce? 💔",
    "\nAre you sure?\n\nIf you do not have the cash on hand, you will take a negative cash balance.",
    plainButton({ label: "Stay together", weight: "primary" }),
    plainButton({ label: "Divorce", weight: "destructive" }),
  ),
};

export const pages: Readonly<Record<string, View.Page>> = {
  hub,
  board,
  film,
  charts,
  latch,
  review,
  frontPages,
  feed,
  form,
  pictures,
  extreme,
  large,
  notice,
  question,
};
