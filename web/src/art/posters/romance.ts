// Scenes of romances.

import { circle, group, many, mix, n, path, rect, stroke } from "../svg";
import { at, cloud, couple, fill, heart, hills, moon, person, poses, round, sky } from "./stage";
import type { Scene } from "./stage";

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
