// Pages as screens would make them, with every kind of node.

import type { Page } from "../src/view_types";
import { extreme, large } from "./gallery_extremes";
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
  dialog,
  field,
  happened,
  icons,
  listPage,
  meter,
  option,
  page,
  picture,
  pictureNode,
  plainButton,
  plainCard,
  row,
  section,
  slider,
  stars,
  swipeCard,
  tabs,
  text,
  ticks,
  tile,
  tiles,
  weeks,
} from "./gallery_nodes";

const hub = page("Dana Wells", {
  subtitle: "JANUARY\n16, 2026",
  icons: icons(),
  tabs: tabs(0),
  nodes: [
    tiles(
      tile("Cash", "$1,250"),
      tile("Fans", "14.2K", "+312 this week", "good"),
      tile("Star meter", "48,210"),
      tile("Weekly", "-$340", "rent, classes", "warning"),
    ),
    balance("$450", "$70"),
    meter("Energy", 72),
    section(
      "Now playing",
      card("Night Train", {
        subtitle: "Feature Film • Thriller\nWeek 3 in theaters",
        picture: [picture("poster", "Night Train")],
        pressed: true,
        nodes: [stars("Audience", 3.5), meter("Critics", 64, { isScore: true, text: "64" })],
      }),
      card("The Lake House", {
        subtitle: "TV-Series • Drama",
        picture: [picture("poster", "The Lake House")],
        pressed: true,
      }),
    ),
    section(
      "Auditions",
      row("Paper Moons", "Invited", {
        detail: "Lead • shoots in 3 weeks",
        picture: [picture("poster", "Paper Moons")],
        tone: "good",
        pressed: true,
      }),
      row("Cold Harbor", "Submitted", {
        detail: "Supporting",
        picture: [picture("poster", "Cold Harbor")],
        pressed: true,
      }),
      row("Static", "Closed", {
        detail: "Background",
        picture: [picture("poster", "Static")],
        tone: "quiet",
        pressed: true,
      }),
    ),
    section(
      "Fame",
      chart("line", "Net worth", {
        points: weeks(30, (week) => Math.round(40 + week * 3 + 22 * Math.sin(week / 3))),
        scale: ticks(0, 50, 100, 150),
        summary: "Net worth rose from $40K to $128K over 30 weeks, with a dip in week 15.",
      }),
    ),
    button("End Week", { weight: "primary" }),
  ],
});

const casting = page("Casting Network", {
  subtitle: "Fresh listings each week",
  tabs: tabs(1),
  icons: icons(),
  nodes: [
    text("You have energy for two more castings.", { style: "caption" }),
    choice("Type", [option("All", true), option("Film"), option("Series")]),
    listPage(
      ["Summer of Steel", "Iris", "Queen of Nothing", "Broken Compass", "Neon Saints", "Ghost Light"].map(
        (title, index) =>
          card(title, {
            subtitle: ["Feature Film • Lead", "Short Film • Principal", "Commercial"][index % 3]!,
            picture: [picture("poster", title)],
            nodes: [
              text("A retired stuntwoman is asked for one last fall."),
              row("Pay", `$${(index + 1) * 450}`),
              button(
                "Submit",
                index === 2
                  ? { price: "⚡️ 12", offReason: "You need 12 energy, and have 8." }
                  : { price: "⚡️ 12", weight: index === 0 ? "primary" : "normal" },
              ),
            ],
          }),
      ),
      "21–26 of 312",
      [plainButton("Previous", { weight: "quiet" }), plainButton("Next", { weight: "quiet" })],
    ),
  ],
});

const film = page("Summer of Steel", {
  subtitle: "Feature Film • Action, Drama • 2027",
  close: back(),
  nodes: [
    pictureNode("poster", "Summer of Steel", "Poster of Summer of Steel"),
    text("“A performance that will be talked about when the popcorn is long gone.”", { style: "quotation" }),
    tiles(tile("Opening weekend", "$12.4M", "", "good"), tile("Total gross", "$48.9M")),
    section(
      "Scores",
      meter("Imbd", 84, { isScore: true, text: "8.4" }),
      meter("Critics", 61, { isScore: true, text: "61%" }),
      meter("Audience", 38, { isScore: true, text: "38%" }),
      meter("Chemistry", 12, { isScore: true, text: "12" }),
      stars("Your review", 4.5),
    ),
    section(
      "Ratings",
      chart("histogram", "Ratings by stars", {
        points: [12, 8, 14, 30, 52, 90, 160, 210, 140, 66].map((value, index) => ({
          label: `${index + 1}`,
          value,
          text: `${value} ratings`,
        })),
        scale: [0, 100, 200].map((value) => ({ value, text: `${value}` })),
        summary: "Most of 782 ratings are 7 to 9 stars.",
      }),
    ),
    section(
      "Markets",
      chart("bar", "Gross by market", {
        points: [
          ["US", 18],
          ["UK", 7],
          ["FR", 4],
          ["DE", 6],
          ["JP", 9],
          ["BR", 2],
        ].map(([label, value]) => ({ label: String(label), value: Number(value), text: `$${value}M` })),
        scale: [0, 10, 20].map((value) => ({ value, text: `$${value}M` })),
        summary: "The US leads with $18M, before Japan with $9M.",
      }),
    ),
    section(
      "Money",
      chart("pie", "Where it went", {
        points: [
          ["Production", 42],
          ["Marketing", 25],
          ["Cast", 18],
          ["Distribution", 10],
          ["Royalties", 5],
        ].map(([label, value]) => ({ label: String(label), value: Number(value), text: `${value}%` })),
        summary: "Production took 42% of the budget, marketing 25%.",
      }),
    ),
    section(
      "Cast",
      row("Mara Quinn", "Lead", { picture: [picture("avatar", "woman (12).png")], pressed: true }),
      row("Theo Brand", "Director", { picture: [picture("avatar", "man (7).png")], pressed: true }),
      section(
        "Reviews",
        row("The Daily Reel", "★ 4.0", {
          detail: "“Steel has rarely been this warm.”",
          picture: [picture("logo", "The Daily Reel")],
        }),
      ),
    ),
    buttons(
      plainButton("Promote", { price: "$2,500" }),
      plainButton("Sell the rights", { weight: "destructive" }),
    ),
  ],
});

const latch = page("Latch", {
  subtitle: "Each swipe takes 3 energy",
  close: back("Done"),
  nodes: [
    swipeCard(
      plainCard("Robin, 27", {
        subtitle: "Stunt double • 4 miles away",
        picture: [picture("avatar", "woman (31).png", "Robin")],
        nodes: [text("Fluent in sarcasm and subtitles."), meter("Match", 81, { isScore: true, text: "81%" })],
      }),
      plainButton("Pass", { price: "⚡️ 3" }),
      plainButton("Like", { price: "⚡️ 3", weight: "primary" }),
    ),
    section(
      "Messages",
      bubble("Robin", "So… which of your films should I never watch?"),
      bubble("", "The commercial with the singing toaster. 🍞", true),
      bubble("Robin", "I have already seen it twice 😄"),
      countdown("Robin is typing", 8, 60),
    ),
  ],
});

const auction = page("Content Auction", {
  subtitle: "Highest bid at 0:00 wins",
  close: back(),
  nodes: [
    countdown("Time left", 42, 60),
    tiles(tile("Highest bid", "$4.2M", "Bisney", "warning")),
    section(
      "What happened",
      happened("0:55", "Bisney opens at $3M."),
      happened("0:49", "You raise to $3.6M."),
      happened("0:44", "Bisney raises to $4.2M."),
    ),
    buttons(
      plainButton("Bid", { price: "$4.5M", weight: "primary" }),
      plainButton("Walk away", { weight: "quiet" }),
    ),
  ],
});

const form = page("New career", {
  nodes: [
    text("Every career starts with a name on a list.", { style: "large" }),
    field("Stage name", "Dana Wells", { hint: "As it will stand on the poster.", maximumLength: 30 }),
    slider("Age", 24, "24 years", { minimum: 18, maximum: 60 }),
    choice("Gender", [option("Female", true), option("Male")]),
    choice(
      "Headshot",
      [1, 2, 3, 4, 5, 6].map((index) =>
        option(`Look ${index}`, index === 2, [picture("avatar", `woman (${index * 7}).png`)]),
      ),
    ),
    choice(
      "Strong points",
      [option("Voice", true), option("Stage fighting"), option("Crying on cue", true)],
      true,
    ),
    choice("Where do you start?", [
      option("A shared room above a theater in the old town", true),
      option("Your parents' house, an hour from any casting office"),
    ]),
    field("Biography", "Grew up backstage.\nNever quite left.", { severalLines: true, maximumLength: 400 }),
    button("Begin", { weight: "primary" }),
  ],
});

const estate = page("Real Estate", {
  subtitle: "The market is up 2.1% this week",
  icons: icons(),
  tabs: tabs(4),
  nodes: [
    tiles(tile("Portfolio", "$1.8M", "+$120K", "good")),
    section(
      "For sale",
      card("A-frame at Pine Lake", {
        subtitle: "2 beds • 1 bath • 900 sqft",
        picture: [picture("house", "cabin4.png")],
        pressed: true,
        nodes: [
          buttons(
            plainButton("Buy", { price: "$240K", weight: "primary" }),
            plainButton("Offer less", { price: "⚡️ 10" }),
          ),
        ],
      }),
      card("Glass house in the hills", {
        subtitle: "5 beds • 6 baths • 6,200 sqft",
        picture: [picture("house", "modern2.png")],
        nodes: [
          button("Buy", {
            price: "$3.9M",
            offReason: "You do not have enough cash to purchase this property.",
          }),
        ],
      }),
    ),
    section(
      "Garage",
      card("Coupe", {
        subtitle: "+4 energy a week",
        picture: [picture("vehicle", "sports1.png")],
        pressed: true,
      }),
      row("Delivery van", "$18K", {
        detail: "Insured for $60 a week",
        picture: [picture("vehicle", "van2.png")],
        pressed: true,
      }),
    ),
    section(
      "Cards",
      row("Kralamat", "$310", {
        detail: "No. 11 of 2016 • grade 10",
        picture: [picture("card", "Kralamat")],
        tone: "good",
        pressed: true,
      }),
      row("Araquash", "$74", {
        detail: "No. 124 of 2017 • grade 10",
        picture: [picture("card", "Araquash")],
        tone: "warning",
        pressed: true,
      }),
    ),
  ],
});

const pictures = page("Pictures", {
  close: back(),
  nodes: [
    section(
      "Avatars",
      ...["man (3).png", "woman (8).png", "sm11.png"].map((name) =>
        row(name, "", { picture: [picture("avatar", name)] }),
      ),
    ),
    section("Poster", pictureNode("poster", "Midnight at the Diner", "Poster of Midnight at the Diner")),
    section(
      "Logo",
      pictureNode("logo", "imbdMetflix.png", "Metflix"),
      row("Panamount", "", { picture: [picture("logo", "imbdPanamount.png")] }),
    ),
    section(
      "House",
      pictureNode("house", "mansion1.png", "A mansion"),
      row("Castle", "", { picture: [picture("house", "castle.png")] }),
    ),
    section("Vehicle", pictureNode("vehicle", "yacht1.png", "A yacht")),
    section("Trading card", pictureNode("card", "Lavagorn", "Lavagorn, a card")),
    section(
      "Photo",
      pictureNode("photo", "ring2.png", "A ring"),
      row("The wedding", "", { picture: [picture("photo", "wedding3.png")] }),
    ),
    section(
      "Icon",
      pictureNode("icon", "trophy", "A trophy"),
      row("Dance class", "", { picture: [picture("icon", "dance")] }),
    ),
  ],
});

const notice = {
  ...hub,
  dialog: [
    dialog(
      "⚠️ Name Needed ⚠️",
      "Please enter your stage name/name.",
      plainButton("OK", { weight: "primary" }),
    ),
  ],
};
const question = {
  ...hub,
  dialog: [
    dialog(
      "💔 Divorce? 💔",
      "\nAre you sure you want to divorce Robin?\n\nIf you do not have the cash on hand, you will take a negative cash balance.",
      plainButton("Stay together", { weight: "primary" }),
      plainButton("Divorce", { weight: "destructive" }),
    ),
  ],
};

export const pages: Readonly<Record<string, Page>> = {
  hub,
  casting,
  film,
  latch,
  auction,
  form,
  estate,
  pictures,
  extreme,
  large,
  notice,
  question,
};
