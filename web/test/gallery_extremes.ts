// Pages with content that is hard to draw: words without an end, nothing at all, and very much.

import {
  back,
  balance,
  bubble,
  button,
  buttons,
  card,
  chart,
  choice,
  countdown,
  field,
  happened,
  icons,
  listPage,
  meter,
  option,
  page,
  picture,
  plainButton,
  row,
  section,
  slider,
  stars,
  tabs,
  text,
  ticks,
  tile,
  tiles,
  weeks,
} from "./gallery_nodes";

const longWord = "Donaudampfschifffahrtselektrizitätenhauptbetriebswerkbauunterbeamtengesellschaft";
const longText =
  "A sentence that goes on and on, as sentences in a long career will do when nobody stops them in time. ".repeat(
    4,
  );

export const extreme = page(longWord, {
  subtitle: longText,
  icons: icons(),
  tabs: tabs(2),
  close: back("Leave this screen without deciding anything"),
  nodes: [
    tiles(tile(longWord, "$123,456,789,012,345.67", longText, "good"), tile("", "0"), tile("None", "")),
    tiles(tile("Alone", "$999,999,999")),
    tiles(),
    balance("-$123,456,789,012,345", "$999,999,999,999,999"),
    meter(longWord, 1e12, { maximum: 100, text: "1,000,000,000,000 of 100" }),
    meter("Nothing", 0, { maximum: 0, text: "0 of 0" }),
    stars(longWord, 7.3, 10),
    button(longWord, { price: "$123,456,789,012", offReason: longText }),
    buttons(
      plainButton(longWord, { price: "$1" }),
      plainButton("OK"),
      plainButton("A button with quite a few words on it", { weight: "quiet" }),
    ),
    row(longWord, "$123,456,789,012,345", {
      detail: longText,
      picture: [picture("photo", "x")],
      pressed: true,
    }),
    row("", ""),
    field(longWord, longWord, { hint: longText }),
    slider(longWord, 50, "$123,456,789,012,345", { minimum: 50, maximum: 50 }),
    choice("", [option(longWord, true), option("B")]),
    chart("line", "Empty", { summary: "There is nothing to show yet." }),
    chart("line", "One point", {
      points: weeks(1, () => 5),
      scale: ticks(0, 5),
      summary: "One week at $5K.",
    }),
    chart("bar", "Below nothing", {
      points: [-40, 20, -10, 60].map((value, index) => ({
        label: `Quarter ${index + 1} of the very long year`,
        value,
        text: `${value}M`,
      })),
      scale: [-40, 0, 60].map((value) => ({ value, text: `${value}M` })),
      summary: "Two quarters below zero, two above.",
    }),
    chart("line", "Two years", {
      points: weeks(104, (week) => 500 + Math.round(400 * Math.cos(week / 9))),
      scale: ticks(0, 500, 1000),
      summary: "Two years between $100K and $900K.",
    }),
    chart("pie", "Nothing to share", {
      points: [{ label: longWord, value: 0, text: "$0" }],
      summary: "No share yet.",
    }),
    bubble(longWord, longText),
    bubble("", longWord, true),
    happened(longWord, longText),
    section(
      longWord,
      section(
        longWord,
        section(longWord, section(longWord, section(longWord, section(longWord, text(longWord))))),
      ),
    ),
    card(longWord, {
      subtitle: longText,
      picture: [picture("poster", longWord)],
      pressed: true,
      nodes: [text(longText)],
    }),
    card("", {}),
    listPage([], "", []),
    text("", {}),
    text("© 2026 ™ 1️⃣ 👩🏽‍🎤🏳️‍🌈🇫🇷 ⚠️ ★ — all in one line", { tone: "accent" }),
    countdown(longWord, 0, 0),
  ],
});

export const large = page("Chirp", {
  tabs: tabs(2),
  icons: icons(),
  nodes: [
    tiles(tile("Followers", "1.2M"), tile("Posts", "312")),
    ...Array.from({ length: 8 }, (_, part) =>
      section(
        `Day ${part + 1}`,
        ...Array.from({ length: 20 }, (_, index) =>
          row(`Fan ${part * 20 + index}`, `${index * 3} ♥`, {
            detail: "I laughed, I cried, I bought the soundtrack. 🎵",
            picture: [picture(index % 3 === 0 ? "poster" : "avatar", `woman (${part * 20 + index}).png`)],
            pressed: true,
          }),
        ),
      ),
    ),
    button("Post", { weight: "primary" }),
  ],
});
