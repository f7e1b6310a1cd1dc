// Faces: the personas of Draftbit. Every trait is chosen here from the name and passed on, so that all moods
// are ones that a headshot may have. A name with "man", "woman", "m", "f" or the like in it gives a face to match.

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

export function avatar(name: string): string {
  const chance = new Chance(`avatar ${name}`);
  const female = isFemale.test(name) || (!isMale.test(name) && chance.likely(0.5));
  const hatted = chance.likely(0.07);
  const hair = hatted ? chance.pick(hats) : chance.pick(female ? longHair : shortHair);
  const bearded = !female && chance.likely(0.42);
  const backdrop = chance.pick(backdrops);
  const face = createAvatar(personas, {
    seed: "",
    body: [chance.pick(bodies)],
    clothingColor: [chance.pick(clothes)],
    eyes: [chance.pick(eyes)],
    hair: [hair],
    hairColor: [chance.pick(hairColours)],
    mouth: [chance.pick(female ? paintedMouths : mouths)],
    nose: [chance.pick(noses)],
    skinColor: [chance.pick(skinColours)],
    facialHair: [chance.pick(beards)],
    facialHairProbability: bearded ? 100 : 0,
  }).toString();
  return withBackdrop(withoutStyles(face), backdrop);
}

// The page's policy allows no style in markup: what has an attribute becomes one, the rest is a class of
// ours. The light on the face is a third of what it was: on skin that is less pink than the original's it
// looks like chalk.
function withoutStyles(svg: string): string {
  return svg
    .replace(/style="mask-type:(\w+)"/gu, 'mask-type="$1"')
    .replace(/style="([\w-]+):([\w-]+)"/gu, 'class="$1-$2"')
    .replace('opacity=".36"', 'opacity=".12"');
}

function withBackdrop(svg: string, colour: string): string {
  const light = element("rect", { width: 64, height: 64, fill: colour });
  const glow = element("circle", { cx: 32, cy: 30, r: 25, fill: mix(colour, "#ffffff", 0.28) });
  // Who made it stands in credits.ts, once, where the player can see it.
  return svg.replace(/^(<svg[^>]*>)(<metadata.*?<\/metadata>)?/su, `$1${light}${glow}`);
}
