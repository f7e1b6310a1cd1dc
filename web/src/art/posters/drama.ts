// Scenes of dramas, romances and family films.

import { circle, ellipse, group, many, mix, n, path, rect, stroke } from "../svg";
import { at, birds, cloud, couple, fill, firs, heart, hills, moon, person, poses, rain, rays, round, shadow, sky } from "./stage";
import type { Scene } from "./stage";

const bareTree = "M0 0Q2-28-4-46Q-16-58-30-58M-3-42Q-4-66 8-84M-4-50Q-14-70-12-88M3-68Q18-76 26-72M-17-57Q-24-66-36-68M-9-70Q-20-78-26-90M6-80Q16-90 14-100M1-30Q18-40 30-60M20-48Q34-50 40-44";

const bench: Scene = ({ p, chance, y }) => {
  const foot = y + 62;
  const side = chance.likely(0.5) ? 1 : -1;
  const tree = group(stroke(bareTree, p.night, 3.4, round) + stroke("M0 2Q2-20-1-34", p.night, 7, round), {
    transform: `translate(${100 - side * 34} ${foot})scale(${side * 1.35} 1.35)`,
  });
  const seat =
    rect(-18, -9, 40, 3, p.night) + rect(-18, -17, 40, 2.4, p.night) + stroke("M-14-9V0M18-9V0M-16-18V-6M20-18V-6", p.night, 2);
  const art =
    sky(p.mid, mix(p.mid, p.pop, 0.6), p.light) +
    circle(100 + side * 30, foot - 34, 30, p.light) +
    hills(chance, foot - 6, 5, mix(p.deep, p.mid, 0.4)) +
    hills(chance, foot + 2, 3, p.deep) +
    tree +
    at(100 + side * 44, foot + 3, seat + person(2, 1, 32, p.night, poses.sitting));
  return { art, sky: p.mid, ground: p.deep };
};

const window: Scene = ({ p, chance, y }) => {
  const top = y - 72;
  const art =
    fill(p.deep) +
    rect(34, top - 6, 132, 150, p.night) +
    rect(40, top, 120, 138, p.pop) +
    cloud(70, top + 40, 1, mix(p.pop, p.light, 0.5)) +
    cloud(140, top + 66, 0.8, mix(p.pop, p.light, 0.4)) +
    person(100 + chance.between(-14, 14), top + 158, 108, p.night, poses.standing) +
    stroke(`M100 ${top}v138M40 ${top + 60}h120`, p.night, 4) +
    path(`M28 ${top - 12}h30q4 90-24 168h-6ZM172 ${top - 12}h-30q-4 90 24 168h6Z`, mix(p.deep, p.mid, 0.55)) +
    rect(24, top + 138, 152, 8, mix(p.night, p.deep, 0.4)) +
    rain(chance, p.light, 0.22);
  return { art, sky: p.deep, ground: p.deep };
};

const face = "M0 150V92C-22 78-34 48-32 18C-30-26 6-54 46-50C84-46 96-16 92 6L110 34Q113 42 103 45L97 47L101 57L94 63L97 73Q95 86 78 86L62 88V150Z";

// Two profiles that look past each other.
const profiles: Scene = ({ p, chance, y }) => {
  const art =
    fill(p.light) +
    circle(100, y - 12, 66, mix(p.light, p.pop, 0.75)) +
    group(path(face, p.deep), { transform: `translate(150 ${y - 36})scale(-1.02 1.02)` }) +
    group(path(face, chance.likely(0.5) ? p.mid : p.pop, { opacity: 0.88 }), { transform: `translate(62 ${y - 16})scale(.94)` }) +
    rect(0, y + 106, 200, 200, p.night);
  return { art, sky: p.light, ground: p.night };
};

const boat: Scene = ({ p, chance, y }) => {
  const line = y + 16;
  const x = chance.between(70, 130);
  const skiff =
    path("M-32-6Q0 2 32-6Q26 8 14 8H-14Q-26 8-32-6Z", p.night) +
    person(-4, -1, 30, p.night, poses.sitting) +
    stroke("M4-14L34 10", p.night, 1.8, round);
  const art =
    sky(p.deep, p.mid, mix(p.mid, p.pop, 0.7)) +
    circle(100, line - 20, 34, p.light) +
    rect(0, line, 200, 300, mix(p.deep, p.mid, 0.35)) +
    path(many(7, (index) => `M${n(100 - 32 + index * 4 + (index % 2) * 5)} ${line + 5 + index * 8}h${56 - index * 7}v3h-${56 - index * 7}Z`), p.light, { opacity: 0.8 }) +
    path(`M0 ${line}q30-16 64-8t60-2t76 10Z`, mix(p.deep, p.night, 0.4)) +
    at(x, line + 30, skiff, 1.25) +
    path(`M0 ${line + 84}H200V300H0Z`, p.deep);
  return { art, sky: p.deep, ground: p.deep };
};

const chair: Scene = ({ p, chance, y }) => {
  const foot = y + 52;
  const lean = chance.likely(0.5) ? 40 : -40;
  const art =
    fill(mix(p.deep, p.mid, 0.35)) +
    path(`M${100 - lean * 0.6 - 40} ${y - 90}h80l${lean} ${146}h-80Z`, p.pop, { opacity: 0.9 }) +
    stroke(`M${100 - lean * 0.6} ${y - 90}l${lean} 146M${100 - lean * 0.35 - 40} ${y - 30}h80`, mix(p.deep, p.mid, 0.35), 3) +
    rect(0, foot, 200, 300, p.night) +
    path(`M76 ${foot + 12}L${76 + lean} ${foot + 44}h52L122 ${foot + 12}Z`, mix(p.night, "#000000", 0.4)) +
    stroke(`M78 ${foot + 14}V${foot - 62}M122 ${foot + 14}V${foot - 24}M84 ${foot + 8}V${foot - 22}M116 ${foot + 6}V${foot - 22}`, p.night, 5, round) +
    path(`M74 ${foot - 28}h52l-4 8H78Z`, p.night) +
    stroke(`M78 ${foot - 60}h22M78 ${foot - 46}h22M100 ${foot - 62}v36`, p.night, 4, round);
  return { art, sky: mix(p.deep, p.mid, 0.35), ground: p.night };
};

const homeward: Scene = ({ p, chance, y }) => {
  const top = y - 14;
  const side = chance.likely(0.5) ? 1 : -1;
  const house =
    path("M-20 0V-22L0-40L20-22V0Z", p.night) + rect(9, -40, 5, 14, p.night) + rect(-6, -20, 9, 10, p.pop);
  const art =
    sky(p.mid, mix(p.mid, p.light, 0.55), p.light) +
    path(`M-10 ${top + 40}Q${100 + side * 40} ${top - 26} 210 ${top + 30}V300H-10Z`, mix(p.deep, p.mid, 0.4)) +
    at(100 + side * 42, top + 14, house, 1.2) +
    path(`M-10 ${top + 58}Q100 ${top + 26} 210 ${top + 62}V300H-10Z`, p.deep) +
    path(`M${100 + side * 38} ${top + 14}q${side * 18} 14 ${-side * 26} 26t${-side * 30} 50l-16 214h90Q${100 + side * 10} ${top + 60} ${100 + side * 46} ${top + 40}t${-side * 4}-26Z`, mix(p.light, p.deep, 0.35)) +
    person(100 - side * 26, top + 96, 50, p.night, poses.walking) +
    rect(100 - side * 26 + 12, top + 74, 14, 11, p.night, { rx: 2 }) +
    birds(100 - side * 60, y - 50, p.deep);
  return { art, sky: p.mid, ground: p.deep };
};

const umbrella: Scene = ({ p, chance, y }) => {
  const foot = y + 66;
  const x = chance.between(84, 116);
  const art =
    sky(p.night, p.deep, p.mid) +
    many(5, (index) => ellipse(20 + index * 40, y - 40 + (index % 2) * 34, 16, 16, p.mid, { opacity: 0.35 })) +
    rain(chance, p.light, 0.5) +
    path(`M0 ${foot}H200V300H0Z`, mix(p.night, p.deep, 0.5)) +
    ellipse(x, foot + 6, 46, 5, p.mid, { opacity: 0.5 }) +
    person(x, foot + 4, 96, p.night, poses.coat) +
    stroke(`M${n(x + 16)} ${foot - 50}V${foot - 116}`, p.night, 3) +
    path(`M${n(x - 40)} ${foot - 92}Q${n(x - 34)} ${foot - 138} ${n(x + 14)} ${foot - 138}T${n(x + 68)} ${foot - 92}q-9-9-18 0q-9-9-18 0q-9-9-18 0q-9-9-18 0q-9-9-18 0q-9-9-18 0Z`, p.pop);
  return { art, sky: p.night, ground: mix(p.night, p.deep, 0.5) };
};

// A close-up of a face with a tear.
const tear: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const skin = mix(p.pop, p.light, 0.35);
  const art = group(
    path("M-70-170H150V170H-70Z", p.deep) +
      path("M-20-170Q-52-30-38 20Q-26 84 20 116V170H150V-170Z", skin) +
      path("M-30-170Q-58-60-44 10Q-30-70 30-104Q90-120 150-96V-170Z", p.night) +
      path("M-22-18Q-2-38 32-20Q6-10-22-18Z", p.light) +
      circle(4, -22, 8, p.night) +
      stroke("M-26-17Q-2-42 36-20", p.night, 4, round) +
      stroke("M-26-44Q0-60 36-46", p.night, 5, round) +
      stroke("M62-20Q66 14 76 26Q70 36 56 34", mix(p.pop, p.deep, 0.4), 4, round) +
      path("M36 66Q56 56 66 60Q76 56 96 66Q66 84 36 66Z", p.mid) +
      path("M4 2Q-8 22 4 30Q16 22 4 2Z", p.light),
    { transform: `translate(${100 - side * 22} ${y})scale(${side} 1)` },
  );
  return { art: fill(p.deep) + art + path(`M0 ${y + 92}Q100 ${y + 130} 200 ${y + 92}V300H0Z`, p.deep), sky: p.night, ground: p.deep };
};

// A person alone in a wide field.
const field: Scene = ({ p, chance, y }) => {
  const line = y + 30;
  const x = chance.between(70, 130);
  const art =
    sky(p.light, mix(p.light, p.pop, 0.6), p.pop) +
    circle(200 - x, line - 14, 26, p.light) +
    rect(0, line, 200, 300, p.mid) +
    path(many(9, (index) => `M${n(100 - 3 + (index - 4) * 5)} ${line}h4L${n(100 + (index - 4) * 62 + 18)} 300h-38Z`), mix(p.mid, p.deep, 0.5)) +
    path(`M0 ${line + 66}H200V300H0Z`, p.deep, { opacity: 0.7 }) +
    shadow(x, line + 34, 4, 60, x - 100, p.night) +
    person(x, line + 36, 58, p.night, chance.pick([poses.dress, poses.coat, poses.standing])) +
    birds(30, y - 46, p.deep);
  return { art, sky: p.light, ground: mix(p.mid, p.deep, 0.7) };
};

const twoWindows: Scene = ({ p, chance, y }) => {
  const lit = chance.likely(0.5) ? [1, 10] : [3, 8];
  const art =
    fill(p.night) +
    rect(26, y - 92, 148, 300, p.deep) +
    many(12, (index) => {
      const x = 40 + (index % 3) * 44;
      const top = y - 78 + Math.floor(index / 3) * 42;
      return (
        rect(x, top, 32, 32, lit.includes(index) ? p.pop : mix(p.deep, p.night, 0.55)) +
        (lit.includes(index) ? person(x + 16, top + 38, 34, p.night, poses.standing) + rect(x, top + 32, 32, 7, p.deep) : "")
      );
    }) +
    rect(20, y - 98, 160, 8, mix(p.deep, p.mid, 0.4)) +
    rect(0, y + 92, 200, 300, p.night);
  return { art, sky: p.night, ground: p.night };
};

const cage: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const bird = path("M0 0Q-22-4-34-26Q-14-24-4-14Q-2-30 14-40Q18-20 10-8Q20-12 28-6L18 0Q14 12-4 10L-22 18Z", p.night);
  const art =
    sky(p.light, mix(p.light, p.pop, 0.45)) +
    circle(100, y - 8, 86, mix(p.light, p.mid, 0.45)) +
    group(
      stroke(`M86 ${y - 110}V${y - 72}`, p.night, 2.4) +
        stroke(many(6, (index) => `M${56 + index * 12} ${y + 56}V${y - 30}Q${56 + index * 12} ${y - 66} 86 ${y - 72}`), p.deep, 3, round) +
        stroke(`M54 ${y - 10}H118M54 ${y + 56}H118`, p.deep, 5, round) +
        rect(50, y + 56, 72, 10, p.deep, { rx: 3 }) +
        path(`M118 ${y - 10}L146 ${y - 22}V${y + 44}L118 ${y + 56}Z`, "none", { stroke: p.deep, "stroke-width": 3 }) +
        stroke(`M66 ${y + 26}H106`, p.deep, 3) +
        at(158, y - 62, bird, 0.9),
      side === 1 ? {} : { transform: "translate(200 0)scale(-1 1)" },
    ) +
    rect(0, y + 92, 200, 300, p.deep);
  return { art, sky: p.light, ground: p.deep };
};

const wilted: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const art =
    fill(mix(p.mid, p.light, 0.35)) +
    path(`M0 ${y - 120}H${100 + side * 20}L${100 - side * 50} ${y + 70}H0Z`, mix(p.mid, p.light, 0.6)) +
    group(
      stroke("M0 40Q-6-20 4-50Q20-84 46-62", p.deep, 4.4, round) +
        path("M2-30Q-30-44-44-20Q-22-10 2-30Z", p.deep) +
        path("M46-66Q66-72 70-46Q72-24 58-12Q54-24 48-16Q42-10 36-20Q28-44 46-66Z", mix(p.pop, p.mid, 0.1)) +
        path("M52-64Q60-40 58-12Q54-24 48-16Q42-44 52-64Z", mix(p.pop, p.night, 0.25)) +
        path("M-24-6H24L18 72H-18Z", p.light, { opacity: 0.55 }) +
        path("M-21 26H21L18 72H-18Z", mix(p.light, p.deep, 0.4), { opacity: 0.6 }) +
        path("M52 66Q62 58 70 68Q62 74 52 66ZM-52 68Q-44 60-36 69Q-44 75-52 68Z", p.pop),
      { transform: `translate(${100 - side * 10} ${y})scale(${side} 1)` },
    ) +
    rect(0, y + 72, 200, 300, p.deep) +
    ellipse(100 - side * 4, y + 74, 30, 4, p.night, { opacity: 0.4 });
  return { art, sky: mix(p.mid, p.light, 0.35), ground: p.deep };
};

const platform: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const line = y + 6;
  const art =
    sky(p.pop, mix(p.pop, p.light, 0.6), p.light) +
    circle(100, line - 8, 30, p.light) +
    hills(chance, line, 5, mix(p.mid, p.deep, 0.3)) +
    rect(0, line + 6, 200, 300, p.mid) +
    group(
      stroke(`M98 ${line + 6}L-30 300M103 ${line + 6}L90 300`, p.night, 3) +
        stroke(many(9, (index) => `M${n(96 - index * index * 1.6)} ${n(line + 12 + index * index * 2.6)}h${n(10 + index * 7)}`), p.deep, 3) +
        path(`M108 ${line + 6}L120 300H200V${line + 44}Z`, p.deep) +
        stroke(`M108 ${line + 6}L200 ${line + 44}`, p.light, 2.4) +
        person(150, line + 76, 84, p.night, poses.coat) +
        rect(164, line + 52, 24, 20, p.night, { rx: 3 }) +
        stroke(`M120 ${line + 14}V${line - 38}M132 ${line + 20}V${line - 50}`, p.night, 2) +
        circle(120, line - 40, 4, p.night) +
        circle(132, line - 52, 5, p.night),
      side === 1 ? {} : { transform: "translate(200 0)scale(-1 1)" },
    ) +
    path(`M0 ${line + 84}H200V300H0Z`, p.deep, { opacity: 0.85 });
  return { art, sky: p.pop, ground: p.deep };
};

export const drama: readonly Scene[] = [
  bench, window, profiles, boat, chair, homeward, umbrella, tear, field, twoWindows, cage, wilted, platform,
];

const kiss: Scene = ({ p, chance, y }) => {
  const foot = y + 70;
  const art =
    sky(p.mid, p.pop, mix(p.pop, p.light, 0.6)) +
    (chance.likely(0.5) ? circle(100, y - 4, 66, p.light) : heart(100, y - 6, 1.75, p.light)) +
    hills(chance, foot - 2, 4, p.deep) +
    couple(100, foot + 3, 112, p.night, p.night);
  return { art, sky: p.mid, ground: p.deep };
};

const balloons: Scene = ({ p, chance, y }) => {
  const knot = y + 52;
  const one = (x: number, top: number, scale: number, colour: string): string =>
    stroke(`M${x} ${top + 36 * scale}Q${n((x + 100) / 2)} ${n(top + 60)} 100 ${knot}`, p.night, 1) + heart(x, top, scale, colour);
  const art =
    sky(p.light, mix(p.light, p.pop, 0.5)) +
    cloud(34, y - 62, 0.8, "#ffffff") +
    cloud(170, y - 6, 0.9, "#ffffff") +
    one(64, y - 34, 0.8, p.mid) +
    one(142, y - 44, 0.72, p.deep) +
    one(104, y - 62, 0.95, p.pop === p.light ? p.mid : p.mid) +
    one(98, y - 14, 0.9, p.pop) +
    hills(chance, y + 84, 6, p.deep) +
    stroke(`M100 ${knot}L91 ${knot + 14}`, p.night, 1.4) +
    person(84, y + 86, 46, p.night, poses.dress) +
    person(118, y + 86, 50, p.night, poses.standing);
  return { art, sky: p.light, ground: p.deep };
};

const tandem: Scene = ({ p, chance, y }) => {
  const foot = y + 56;
  const wheel = (x: number): string =>
    circle(x, foot - 24, 23, "none", { stroke: p.night, "stroke-width": 3.4 }) +
    stroke(many(6, (index) => `M${x} ${foot - 24}l${n(Math.cos(index * 1.05) * 22)} ${n(Math.sin(index * 1.05) * 22)}`), p.night, 0.7);
  const art =
    fill(p.light) +
    heart(100, y - 14, 2.1, mix(p.light, p.pop, 0.75)) +
    wheel(54) +
    wheel(146) +
    stroke(`M54 ${foot - 24}L74 ${foot - 62}H132L146 ${foot - 24}M74 ${foot - 62}L96 ${foot - 24}H54M96 ${foot - 24}L132 ${foot - 62}L128 ${foot - 78}h14M70 ${foot - 70}h-8h16`, p.mid, 4.2, round) +
    path(`M134 ${foot - 72}h28l-4 20h-20Z`, p.deep) +
    many(5, (index) => circle(136 + index * 6, foot - 76 - (index % 2) * 5, 5, index % 2 === 0 ? p.mid : p.pop) + circle(136 + index * 6, foot - 76 - (index % 2) * 5, 1.8, p.light)) +
    rect(0, foot, 200, 300, p.deep) +
    many(8, (index) => heart(12 + index * 25, foot - chance.between(96, 150), 0.09, p.mid));
  return { art, sky: p.light, ground: p.deep };
};

const rose: Scene = ({ p, y }) => {
  const art =
    fill(p.deep) +
    circle(100, y - 6, 82, mix(p.deep, p.mid, 0.35)) +
    stroke(`M100 ${y + 10}Q92 ${y + 50} 102 ${y + 96}`, p.night, 5, round) +
    path(`M98 ${y + 60}Q126 ${y + 30} 146 ${y + 46}Q132 ${y + 68} 98 ${y + 60}ZM97 ${y + 72}Q70 ${y + 46} 50 ${y + 60}Q66 ${y + 84} 97 ${y + 72}Z`, p.night) +
    path(`M100 ${y + 26}C52 ${y + 22} 44 ${y - 26} 62 ${y - 50}Q80 ${y - 42} 84 ${y - 58}Q100 ${y - 76} 118 ${y - 58}Q122 ${y - 42} 140 ${y - 50}C156 ${y - 26} 148 ${y + 22} 100 ${y + 26}Z`, p.mid) +
    path(`M100 ${y + 18}C74 ${y + 10} 66 ${y - 22} 82 ${y - 40}Q100 ${y - 52} 118 ${y - 40}C134 ${y - 22} 126 ${y + 10} 100 ${y + 18}Z`, p.pop) +
    stroke(`M100 ${y - 14}q-10-8 0-16q14 2 10 16q-6 16-22 8q-10-16 2-30q16-12 30 4`, p.deep, 2.6, round) +
    path(`M100 ${y + 26}C72 ${y + 18} 58 ${y - 4} 60 ${y - 30}Q82 ${y - 8} 100 ${y + 26}ZM100 ${y + 26}C128 ${y + 18} 142 ${y - 4} 140 ${y - 30}Q118 ${y - 8} 100 ${y + 26}Z`, mix(p.mid, p.deep, 0.3));
  return { art, sky: p.deep, ground: p.deep };
};

const lovebirds: Scene = ({ p, chance, y }) => {
  const wire = y + 34;
  const bird = path("M-6 0Q-30-2-30-26Q-28-44-12-46Q2-54 12-44L24-40L13-35Q20-10 2-1L-30 34L-40 28Z", p.night) + stroke("M-4 0V6M3-1V6", p.night, 2);
  const art =
    sky(p.pop, mix(p.pop, p.light, 0.7), p.light) +
    circle(100, y - 10, 58, mix(p.pop, p.mid, 0.7)) +
    stroke(`M-6 ${wire - 10}Q100 ${wire + 14} 206 ${wire - 10}M-6 ${wire + 34}Q100 ${wire + 58} 206 ${wire + 34}`, p.night, 2) +
    at(72, wire - 1, bird, 1) +
    group(bird, { transform: `translate(128 ${wire - 1})scale(-1 1)` }) +
    heart(100, y - 34, 0.42, p.light) +
    many(3, (index) => heart(92 + index * 9 + chance.between(-4, 4), y - 58 - index * 14, 0.16, p.light)) +
    rect(0, y + 84, 200, 300, p.deep);
  return { art, sky: p.pop, ground: p.deep };
};

const swing: Scene = ({ p, chance, y }) => {
  const art =
    sky(p.night, p.deep, p.mid) +
    moon(100, y - 10, 68, p.light, p.mid) +
    path(`M40 ${y - 96}Q100 ${y - 74} 210 ${y - 104}V${y - 124}H30Z`, p.night) +
    many(7, (index) => circle(40 + index * 26, y - 92 + (index % 2) * 9, 15, p.night)) +
    stroke(`M66 ${y - 90}V${y + 36}M134 ${y - 90}V${y + 36}`, p.night, 1.6) +
    rect(60, y + 34, 80, 4, p.night) +
    person(86, y + 52, 46, p.night, poses.sitting) +
    group(person(0, 0, 46, p.night, poses.sitting), { transform: `translate(114 ${y + 52})scale(-1 1)` }) +
    heart(100, y - 30, 0.4, p.pop) +
    hills(chance, y + 84, 6, p.night);
  return { art, sky: p.night, ground: p.night };
};

const bouquet: Scene = ({ p, chance, y }) => {
  const bloom = (x: number, top: number, r: number, colour: string): string =>
    many(6, (index) => circle(x + Math.cos(index * 1.047) * r, top + Math.sin(index * 1.047) * r, r * 0.78, colour)) + circle(x, top, r * 0.6, p.light);
  const art =
    fill(p.pop) +
    heart(100, y - 4, 2.2, mix(p.pop, p.light, 0.4)) +
    stroke(`M100 ${y + 70}L62 ${y - 20}M100 ${y + 70}L100 ${y - 40}M100 ${y + 70}L138 ${y - 20}`, p.deep, 3) +
    bloom(62, y - 22, 13, p.mid) +
    bloom(138, y - 22, 13, p.mid) +
    bloom(100, y - 46, 15, p.deep) +
    bloom(84, y + 2, 11, p.light === p.pop ? p.mid : mix(p.mid, p.light, 0.5)) +
    bloom(118, y + 4, 12, p.mid) +
    path(`M66 ${y + 22}Q100 ${y + 36} 134 ${y + 22}L108 ${y + 92}H92Z`, p.light) +
    path(`M88 ${y + 48}q12 6 24 0l-6 14h-12Z`, p.mid) +
    many(6, () => heart(chance.between(12, 188), chance.between(y - 100, y - 60), 0.1, p.light));
  return { art, sky: p.pop, ground: p.pop };
};

export const romance: readonly Scene[] = [kiss, balloons, tandem, rose, lovebirds, swing, bouquet];

const kid = (x: number, y: number, height: number, colour: string): string =>
  person(x, y, height, colour, poses.stride) + circle(x, y - height * 0.93, height * 0.13, colour);

const treehouse: Scene = ({ p, chance, y }) => {
  const art =
    sky(mix(p.pop, p.light, 0.5), p.light) +
    circle(160, y - 62, 18, p.pop) +
    cloud(36, y - 66, 0.8, "#ffffff") +
    hills(chance, y + 70, 8, mix(p.mid, p.light, 0.4)) +
    path(`M88 ${y + 92}Q94 ${y + 30} 84 ${y - 10}h34Q108 ${y + 30} 116 ${y + 92}Z`, p.deep) +
    many(7, (index) => circle(100 + Math.cos(index * 0.9) * 50, y - 40 + Math.sin(index * 0.9) * 26, 30, index % 2 === 0 ? p.mid : mix(p.mid, p.night, 0.14))) +
    path(`M70 ${y + 12}V${y - 30}L102 ${y - 54}L134 ${y - 30}V${y + 12}Z`, p.pop) +
    path(`M62 ${y - 26}L102 ${y - 60}L142 ${y - 26}L136 ${y - 20}L102 ${y - 48}L68 ${y - 20}Z`, p.night) +
    rect(66, y + 10, 72, 6, p.night) +
    rect(92, y - 20, 20, 30, p.night, { rx: 10 }) +
    stroke(`M126 ${y + 16}v66M138 ${y + 16}v66${many(6, (index) => `M126 ${y + 24 + index * 10}h12`)}`, p.night, 2) +
    kid(60, y + 88, 34, p.night) +
    hills(chance, y + 88, 3, p.mid);
  return { art, sky: mix(p.pop, p.light, 0.5), ground: p.mid };
};

const dogAndKid: Scene = ({ p, chance, y }) => {
  const foot = y + 62;
  const dog = path("M-18 0Q-24-24-12-40Q-14-56-2-58L4-66L8-56Q20-54 26-46Q22-40 12-40Q16-20 14 0Z", p.night) + stroke("M-16-4q-16 2-18-14", p.night, 4.5, round);
  const art =
    sky(p.mid, p.pop, p.light) +
    rays(100, foot, 22, mix(p.pop, p.light, 0.5), 0.5) +
    circle(100, foot, 64, p.light) +
    path(`M-10 ${foot + 14}Q100 ${foot - 22} 210 ${foot + 14}V300H-10Z`, p.deep) +
    at(128, foot + 2, dog, 1.05) +
    at(76, foot + 2, circle(0, -48, 14, p.night) + path("M-18 0Q-20-36 0-36T18 0Z", p.night) + stroke("M12-24L36-22", p.night, 6, round)) +
    birds(chance.between(20, 60), y - 50, p.deep);
  return { art, sky: p.mid, ground: p.deep };
};

const bear: Scene = ({ p, y }) => {
  const art =
    fill(p.pop) +
    circle(100, y, 88, mix(p.pop, p.light, 0.55)) +
    path(`M34 ${y + 104}Q24 ${y - 20} 60 ${y - 44}Q100 ${y - 60} 140 ${y - 44}Q176 ${y - 20} 166 ${y + 104}Z`, p.deep) +
    circle(64, y - 60, 17, p.deep) +
    circle(136, y - 60, 17, p.deep) +
    circle(64, y - 60, 8, p.mid) +
    circle(136, y - 60, 8, p.mid) +
    ellipse(100, y - 34, 48, 42, p.deep) +
    ellipse(100, y - 18, 22, 17, p.light) +
    ellipse(100, y - 25, 9, 6, p.night) +
    stroke(`M100 ${y - 20}v7M90 ${y - 11}q10 8 20 0`, p.night, 2.4, round) +
    circle(80, y - 44, 4.6, p.night) +
    circle(120, y - 44, 4.6, p.night) +
    ellipse(100, y + 58, 42, 50, mix(p.deep, p.light, 0.3)) +
    kid(100, y + 96, 66, p.night) +
    path(`M34 ${y + 50}Q60 ${y + 34} 92 ${y + 56}Q84 ${y + 78} 40 ${y + 86}ZM166 ${y + 50}Q140 ${y + 34} 108 ${y + 56}Q116 ${y + 78} 160 ${y + 86}Z`, p.deep) +
    rect(0, y + 94, 200, 300, p.night);
  return { art, sky: p.pop, ground: p.night };
};

const kite: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const art =
    sky(p.mid, mix(p.mid, p.light, 0.7)) +
    cloud(60, y - 8, 1, "#ffffff") +
    cloud(158, y + 22, 0.8, "#ffffff") +
    group(
      path("M0-50L30-6L0 42L-30-6Z", p.pop) +
        path("M0-50L30-6H0ZM0 42L-30-6H0Z", p.light) +
        stroke("M0 42Q14 56 2 68T6 96", p.night, 1.4) +
        many(3, (index) => path(`M${index % 2 === 0 ? -4 : 2} ${58 + index * 14}l9-4v8l-9-4l-8 4v-8Z`, p.pop)),
      { transform: `translate(${100 + side * 40} ${y - 44})rotate(${side * 22})` },
    ) +
    stroke(`M${100 + side * 34} ${y - 30}Q${100 + side * 8} ${y + 40} ${100 - side * 28} ${y + 46}`, p.night, 1.2) +
    hills(chance, y + 78, 10, p.deep) +
    kid(100 - side * 34, y + 84, 40, p.night) +
    kid(100 - side * 62, y + 86, 32, p.night) +
    hills(chance, y + 90, 5, mix(p.deep, p.night, 0.4));
  return { art, sky: p.mid, ground: mix(p.deep, p.night, 0.4) };
};

const lanterns: Scene = ({ p, chance, y }) => {
  const home =
    path("M-56 0V-46L0-92L56-46V0Z", p.pop) +
    path("M-68-40L0-98L68-40L60-32L0-82L-60-32Z", p.mid) +
    rect(24, -96, 13, 34, p.mid) +
    rect(-12, -36, 24, 36, p.deep, { rx: 12 }) +
    rect(-44, -38, 20, 20, p.light) +
    rect(24, -38, 20, 20, p.light) +
    stroke("M-34-38v20M-44-28h20M34-38v20M24-28h20", p.mid, 2);
  const art =
    sky(mix(p.light, p.pop, 0.2), p.light) +
    firs(chance, y + 70, 60, mix(p.mid, p.light, 0.5)) +
    at(100, y + 66, home, 1.1) +
    heart(100, y - 14, 0.3, p.light) +
    hills(chance, y + 68, 2, p.deep) +
    person(66, y + 90, 40, p.night, poses.dress) +
    person(134, y + 90, 44, p.night, poses.standing) +
    kid(100, y + 92, 28, p.night);
  return { art, sky: mix(p.light, p.pop, 0.2), ground: p.deep };
};

export const family: readonly Scene[] = [treehouse, dogAndKid, bear, kite, lanterns];
