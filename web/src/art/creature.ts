// Creatures for trading cards, combined from random parts. Centered at 0, 0, about 80 wide, feet at y = 36.

import type { Chance } from "./random";
import { circle, ellipse, group, many, mix, n, path, stroke } from "./svg";

interface Hide {
  readonly coat: string;
  readonly belly: string;
  readonly mark: string;
  readonly dark: string;
}

interface Body {
  readonly art: string;
  readonly headY: number; // center of the face
  readonly head: number; // half its width
}

const mirrored = (content: string): string => content + group(content, { transform: "scale(-1 1)" });

function round(hide: Hide): Body {
  const feet = mirrored(ellipse(13, 33, 9, 5, hide.dark));
  return {
    art: feet + ellipse(0, 6, 30, 29, hide.coat) + ellipse(0, 15, 19, 17, hide.belly),
    headY: -4,
    head: 24,
  };
}

function upright(hide: Hide): Body {
  const legs = mirrored(path("M6 18h14l2 16H6Z", hide.dark));
  const arms = mirrored(path("M18 0q18 4 16 18q-6 4-9-2q-2-8-9-8Z", hide.coat));
  const trunk =
    path("M-20 24Q-24-8 0-8T20 24Q0 34-20 24Z", hide.coat) +
    path("M-12 24Q-13 2 0 2T12 24Q0 29-12 24Z", hide.belly);
  return { art: legs + arms + trunk + circle(0, -18, 20, hide.coat), headY: -18, head: 19 };
}

function fourLegged(hide: Hide): Body {
  const legs = many(4, (index) =>
    path(`M${n(-26 + index * 15)} 12h9l1 23h-11Z`, index % 2 === 0 ? hide.dark : hide.coat),
  );
  const trunk = ellipse(2, 10, 30, 17, hide.coat) + ellipse(2, 18, 22, 8, hide.belly);
  return { art: legs + trunk + circle(-16, -8, 19, hide.coat), headY: -8, head: 17 };
}

function serpent(hide: Hide): Body {
  const coil =
    stroke("M-30 28Q0 40 24 26T8 4T-4-18", hide.coat, 19, { "stroke-linecap": "round" }) +
    stroke("M-26 30Q0 38 21 24T4 2", hide.belly, 6, { "stroke-linecap": "round" });
  return { art: coil + circle(-4, -20, 18, hide.coat), headY: -20, head: 16 };
}

function winged(hide: Hide): Body {
  const wings = mirrored(
    path("M14-2Q44-34 52-10Q56 12 18 16Z", hide.dark) + path("M16 2Q40-20 46-6Q46 8 18 12Z", hide.mark),
  );
  const tail = path("M-8 22L0 42L8 22Z", hide.dark);
  return {
    art: wings + tail + ellipse(0, 4, 20, 26, hide.coat) + ellipse(0, 14, 12, 14, hide.belly),
    headY: -8,
    head: 17,
  };
}

function shelled(hide: Hide): Body {
  const feet = mirrored(ellipse(22, 30, 9, 6, hide.coat));
  const shell =
    path("M-34 24Q-34-18 0-18T34 24Q0 34-34 24Z", hide.dark) +
    path("M-12-16L-20 26M12-16L20 26M-33 8H33", "none", { stroke: hide.mark, "stroke-width": 2.6 });
  return { art: feet + shell + circle(0, 6, 17, hide.coat), headY: 4, head: 15 };
}

function ghost(hide: Hide): Body {
  const sheet = path("M-26 34V0Q-26-30 0-30T26 0V34q-6-8-13 0t-13 0t-13 0t-13 0Z", hide.coat);
  return { art: sheet + ellipse(0, 16, 14, 12, hide.belly, { opacity: 0.6 }), headY: -8, head: 20 };
}

const bodies = [round, upright, fourLegged, serpent, winged, shelled, ghost];

function faceOf(chance: Chance, { headY, head }: Body, hide: Hide, middle: number): string {
  const apart = head * chance.between(0.36, 0.5);
  const size = head * chance.between(0.2, 0.3);
  const stern = chance.likely(0.4);
  const eye = (side: number): string =>
    ellipse(middle + side * apart, headY, size, size * 1.15, "#ffffff") +
    circle(middle + side * apart, headY + size * 0.1, size * 0.62, "#22182a") +
    circle(middle + side * apart + size * 0.2, headY - size * 0.2, size * 0.2, "#ffffff") +
    (stern
      ? path(
          `M${n(middle + side * (apart - size * 1.2))} ${n(headY - size * 0.5)}L${n(middle + side * (apart + size * 1.2))} ${n(headY - size * 1.5)}V${n(headY - size * 1.7)}H${n(middle + side * (apart - size * 1.2))}Z`,
          hide.coat,
        )
      : "");
  const y = headY + head * 0.5;
  const mouths = [
    stroke(`M${n(middle - 5)} ${n(y)}q5 5 10 0`, "#22182a", 1.8, { "stroke-linecap": "round" }),
    path(`M${n(middle - 6)} ${n(y - 1)}h12q-1 8-6 8t-6-8Z`, "#5a1f2c") +
      path(`M${n(middle - 4)} ${n(y - 1)}l2 4l2-4ZM${n(middle)} ${n(y - 1)}l2 4l2-4Z`, "#ffffff"),
    path(`M${n(middle - 5)} ${n(y - 2)}L${n(middle)} ${n(y + 7)}L${n(middle + 5)} ${n(y - 2)}Z`, hide.mark),
  ];
  return eye(-1) + eye(1) + chance.pick(mouths);
}

function growthOf(chance: Chance, { headY, head }: Body, hide: Hide, middle: number): string {
  const top = headY - head * 0.75;
  const pair = (way: string, colour: string): string =>
    group(mirrored(path(way, colour)), { transform: `translate(${n(middle)} ${n(top)})` });
  const growths = [
    () => pair("M6 4L12-22L19 6Z", hide.coat) + pair("M9 2L12.4-14L16 4Z", hide.belly),
    () => pair("M5 2Q8-16 22-18Q16-8 16 4Z", hide.mark),
    () => pair("M8 4Q2-26 12-28T16 4Z", hide.coat),
    () =>
      path(
        `M${n(middle - 5)} ${n(top + 2)}L${n(middle)} ${n(top - 22)}L${n(middle + 5)} ${n(top + 2)}Z`,
        hide.mark,
      ),
    () => path(`M${n(middle)} ${n(top - 20)}q14 10 7 22h-14q-8-8 0-14q0 5 4 4q-1-8 3-12Z`, hide.mark),
    () =>
      group(
        many(5, (index) =>
          path("M-3 2L0-15L3 2Z", hide.mark, {
            transform: `rotate(${-40 + index * 20}) translate(0 ${n(-index % 2)})`,
          }),
        ),
        { transform: `translate(${n(middle)} ${n(top + 4)})` },
      ),
    () =>
      stroke(
        `M${n(middle - 6)} ${n(top + 2)}q-8-12-14-14M${n(middle + 6)} ${n(top + 2)}q8-12 14-14`,
        hide.dark,
        2,
        { "stroke-linecap": "round" },
      ) +
      circle(middle - 20, top - 12, 3, hide.mark) +
      circle(middle + 20, top - 12, 3, hide.mark),
  ];
  return chance.pick(growths)();
}

function tailOf(chance: Chance, hide: Hide): string {
  const tails = [
    "",
    stroke("M20 22Q46 20 42-2", hide.coat, 7, { "stroke-linecap": "round" }),
    stroke("M20 22Q44 24 44 4", hide.coat, 5, { "stroke-linecap": "round" }) +
      path("M44-16q12 10 6 20h-12q-6-6 0-11q1 4 4 2q-1-7 2-11Z", hide.mark),
    path("M18 20Q52 26 50-10Q40-6 40 4Q34 12 18 12Z", hide.dark),
    stroke("M20 20L34 8L30 2L46-10", hide.mark, 5, { "stroke-linejoin": "bevel" }),
  ];
  return chance.pick(tails);
}

function marksOf(chance: Chance, hide: Hide): string {
  const marks = [
    "",
    many(3, (index) => circle(-16 + index * 15, 14 + (index % 2) * 9, 3.6, hide.mark, { opacity: 0.75 })),
    many(3, (index) =>
      stroke(`M${-14 + index * 12} 18l4 8`, hide.mark, 3.4, { "stroke-linecap": "round", opacity: 0.8 }),
    ),
    path("M0 8l3.4 7l7.6 1l-5.6 5l1.6 7.6l-7-4l-7 4l1.6-7.6l-5.6-5l7.6-1Z", hide.mark, { opacity: 0.85 }),
  ];
  return chance.pick(marks);
}

export function creature(chance: Chance, colours: Pick<Hide, "coat" | "mark">): string {
  const hide: Hide = {
    ...colours,
    belly: mix(colours.coat, "#fff6e6", 0.55),
    dark: mix(colours.coat, "#1c1024", 0.35),
  };
  const shape = chance.pick(bodies);
  const body = shape(hide);
  const middle = shape === fourLegged ? -16 : shape === serpent ? -4 : 0;
  return (
    tailOf(chance, hide) +
    growthOf(chance, body, hide, middle) +
    body.art +
    marksOf(chance, hide) +
    faceOf(chance, body, hide, middle)
  );
}
