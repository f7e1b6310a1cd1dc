// Scenes of dramas.

import { circle, ellipse, group, many, mix, n, path, rect, stroke } from "../svg";
import { at, birds, cloud, fill, hills, person, poses, rain, round, shadow, sky } from "./stage";
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
