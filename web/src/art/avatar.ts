// Faces from Draftbit's personas. All traits are chosen here from the name, to avoid unsuitable expressions.
// A name with "man", "woman", "m" or "f" gives a matching face.

import { createAvatar } from "@dicebear/core";
import * as personas from "@dicebear/personas";

import { Chance } from "./random";
import { element, mix } from "./svg";

const longHair = [
  "long",
  "bobCut",
  "curly",
  "pigtails",
  "curlyBun",
  "bobBangs",
  "straightBun",
  "extraLong",
  "sideShave",
] as const;
const shortHair = [
  "shortCombover",
  "curlyHighTop",
  "buzzcut",
  "bald",
  "balding",
  "fade",
  "shortComboverChops",
  "mohawk",
  "bunUndercut",
] as const;
const hats = ["cap", "beanie"] as const;
const eyes = ["open", "open", "open", "open", "happy", "glasses"] as const;
const mouths = ["smile", "smile", "bigSmile", "smirk"] as const;
const paintedMouths = [...mouths, "lips"] as const;
const beards = ["beardMustache", "goatee", "shadow", "shadow", "soulPatch", "walrus"] as const;
const noses = ["mediumRound", "smallRound"] as const;
const bodies = ["squared", "rounded", "small", "checkered"] as const;
const hairColours = [
  "1f1a1c",
  "2f2226",
  "46302a",
  "6b4530",
  "8d5b34",
  "b98045",
  "d9b06a",
  "a33b2a",
  "8e8b90",
  "5b2a3c",
];
const skinColours = [
  "623d36",
  "8a5a44",
  "92594b",
  "b16a5b",
  "c98a6b",
  "d78774",
  "e5a07e",
  "e7a391",
  "eeb4a4",
];
const clothes = [
  "456dff",
  "3ba99c",
  "7555ca",
  "4f9a49",
  "d23f4f",
  "e0a22f",
  "d94f77",
  "2d3446",
  "f2f0ea",
  "8c2f53",
];
const backdrops = [
  "#f6c667",
  "#f2a07b",
  "#e58ba0",
  "#b79be6",
  "#8fb6ee",
  "#7fcfc0",
  "#a9d08a",
  "#e9d8b4",
  "#c9b3bc",
];

const isFemale = /(^|[^a-z])(woman|women|female|girl|lady|sw|daughter|she|f)([^a-z]|$)/iu;
const isMale = /(^|[^a-z])(man|men|male|boy|sm|son|he|m)([^a-z]|$)/iu;

interface Face {
  readonly female: boolean;
  readonly hair: (typeof longHair)[number] | (typeof shortHair)[number] | (typeof hats)[number];
  readonly hairColour: string;
  readonly eyes: (typeof eyes)[number];
  readonly nose: (typeof noses)[number] | "wrinkles";
  readonly mouth: (typeof paintedMouths)[number] | "pacifier";
  readonly skin: string;
  readonly beard: (typeof beards)[number] | ""; // empty for none
  readonly backdrop: string;
}

// The people of the dating app are 18 to 40.
const onLatch = /^(wo)?man \(/u;

function someone(name: string, chance: Chance): Face {
  const female = isFemale.test(name) || (!isMale.test(name) && chance.likely(0.5));
  return {
    female,
    hair: chance.pick(chance.likely(0.07) ? hats : female ? longHair : shortHair),
    hairColour: chance.pick(onLatch.test(name) ? youngHairColours : hairColours),
    eyes: chance.pick(eyes),
    nose: chance.pick(noses),
    mouth: chance.pick(female ? paintedMouths : mouths),
    skin: chance.pick(skinColours),
    beard: !female && chance.likely(0.42) ? chance.pick(beards) : "",
    backdrop: chance.pick(backdrops),
  };
}

// Headshots: adjacent ones differ, and all look young.
const youngLongHair = ["long", "bobCut", "curly", "straightBun", "bobBangs", "extraLong", "sideShave", "curlyBun"] as const;
const youngShortHair = ["shortCombover", "curlyHighTop", "fade", "bunUndercut", "long", "shortComboverChops"] as const;
const youngHairColours = ["1f1a1c", "6b4530", "2f2226", "b98045", "46302a", "8d5b34", "a33b2a", "d9b06a"];
const youngBeards = ["", "", "shadow", "", "goatee", "", "soulPatch", ""] as const;
const grey = "#c9c6c8";
const headshot = /^headshot_[fm] \((\d+)\)/u;

// The performer's face at an age in years. `number` selects the face; age adds gray hair, glasses and
// wrinkles and removes hair, each at an individual age.
function performer(name: string, number: number, age: number, chance: Chance): Face {
  const female = isFemale.test(name);
  const turn = (step: number, length: number): number => ((number - 1) * step) % length;
  const from = (least: number, most: number): boolean => age >= chance.whole(least, most);
  const colour = youngHairColours[turn(3, 8)]!;
  const greysAt = chance.whole(42, 50);
  const greyness = Math.min(Math.max((age - greysAt) / 24, 0), 0.92);
  const keepsHair = female || chance.likely(0.5);
  const thins = from(48, 58);
  const young = female ? youngLongHair[turn(3, 8)]! : youngShortHair[turn(5, 6)]!;
  const bald = !keepsHair && age >= 68 ? "bald" : "balding";
  const readsWith = from(44, 62);
  const wearsGlasses = chance.likely(0.75);
  const lined = from(54, 64);
  const beard = youngBeards[turn(5, 8)]!;
  return {
    female,
    hair: keepsHair || !thins ? (female && age >= 60 && young === "extraLong" ? "straightBun" : young) : bald,
    hairColour: mix(`#${colour}`, grey, greyness).slice(1),
    eyes: readsWith && wearsGlasses ? "glasses" : "open",
    nose: lined ? "wrinkles" : noses[turn(1, 2)]!,
    mouth: (female ? paintedMouths : mouths)[turn(1, female ? 5 : 4)]!,
    skin: skinColours[turn(4, 9)]!,
    beard: female ? "" : beard === "goatee" && age >= 50 ? "beardMustache" : beard,
    backdrop: backdrops[turn(2, 9)]!,
  };
}

// A child's face.
const child = /^(fe)?malechild/u;

function young(name: string, age: number, chance: Chance): Face {
  const female = name.startsWith("female");
  const grown = chance.pick(female ? youngLongHair : youngShortHair);
  return {
    ...someone(name, chance),
    female,
    hair: age < 1 ? chance.pick(["bald", "buzzcut"] as const) : grown,
    hairColour: chance.pick(youngHairColours),
    eyes: chance.pick(["open", "happy"] as const),
    nose: "smallRound",
    mouth: age < 2 ? "pacifier" : "bigSmile",
    beard: "",
  };
}

// The face of a name; for a headshot at an age in years, if known.
export function avatar(name: string, age = 0): string {
  const chance = new Chance(`avatar ${name}`);
  const number = Number(headshot.exec(name)?.[1] ?? 0);
  const face = number > 0
    ? performer(name, number, age, chance)
    : child.test(name) ? young(name, age, chance) : someone(name, chance);
  const art = createAvatar(personas, {
    seed: "",
    body: [chance.pick(bodies)],
    clothingColor: [chance.pick(clothes)],
    eyes: [face.eyes],
    hair: [face.hair],
    hairColor: [face.hairColour],
    mouth: [face.mouth],
    nose: [face.nose],
    skinColor: [face.skin],
    facialHair: [face.beard === "" ? "shadow" : face.beard],
    facialHairProbability: face.beard === "" ? 0 : 100,
  }).toString();
  return withBackdrop(softened(art), face.backdrop);
}

// Reduces the highlight on the face to a third, because it looks like chalk on darker skin.
const softened = (svg: string): string => svg.replace('opacity=".36"', 'opacity=".12"');

function withBackdrop(svg: string, colour: string): string {
  const light = element("rect", { width: 64, height: 64, fill: colour });
  const glow = element("circle", { cx: 32, cy: 30, r: 25, fill: mix(colour, "#ffffff", 0.28) });
  // credits.ts has the attribution, so the metadata is removed.
  return svg.replace(/^(<svg[^>]*>)(<metadata.*?<\/metadata>)?/su, `$1${light}${glow}`);
}
