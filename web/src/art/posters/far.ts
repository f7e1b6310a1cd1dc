// Scenes of action, adventure, war, history and Western films.

import { circle, ellipse, group, many, mix, n, path, polygon, rect, stroke } from "../svg";
import { at, birds, burst, cloud, fill, firs, hills, peaks, person, poses, rays, round, sea, shadow, sky, skyline, stars } from "./stage";
import type { Scene } from "./stage";

const blast: Scene = ({ p, chance, y }) => {
  const foot = y + 72;
  const art =
    sky(p.night, p.deep) +
    burst(100, y - 4, 19, 112, 72, p.mid) +
    burst(100, y - 2, 15, 84, 52, p.pop) +
    burst(100, y, 12, 52, 32, p.light) +
    many(9, () => path(polygon([[0, -6], [7, 2], [-5, 5]]), p.night, { transform: `translate(${n(chance.between(14, 186))} ${n(y + chance.between(-84, 40))})rotate(${n(chance.between(0, 360))})` })) +
    path(`M0 ${foot - 8}L24 ${foot - 14}L60 ${foot - 6}H140L172 ${foot - 16}L200 ${foot - 6}V300H0Z`, p.night) +
    person(100, foot + 14, 118, p.night, poses.walking);
  return { art, sky: p.night, ground: p.night };
};

const chopper: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const craft = path("M-10-14Q14-20 34-8Q48 0 48 10Q46 22 24 22H-8Q-24 20-28 8L-82-2L-86-16L-76-14L-70-8L-26-6Q-20-12-10-14Z", p.night) + path("M22-8Q40-2 44 8H22Z", p.pop) + stroke("M4-16V-26M-62-27H72M-4 22L-8 32M22 22L26 32M-18 33H38", p.night, 3.4, round) + circle(-82, -10, 8, "none", { stroke: p.night, "stroke-width": 2.4 });
  const art =
    sky(p.mid, p.pop, p.light) +
    circle(100, y - 10, 66, p.light) +
    path(`M${100 + side * 24} ${y - 22}L${100 - side * 10} ${y + 100}H${100 + side * 84}Z`, "#ffffff", { opacity: 0.55 }) +
    group(craft, { transform: `translate(100 ${y - 34})scale(${side} 1)rotate(6)` }) +
    skyline(chance, y + 96, 6, 50, p.deep) +
    skyline(chance, y + 116, 2, 34, p.night) +
    rect(0, y + 112, 200, 300, p.night);
  return { art, sky: p.mid, ground: p.night };
};

const leap: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const tower = (x: number, top: number, colour: string): string => rect(x, top, 74, 300, colour) + many(18, (index) => rect(x + 9 + (index % 3) * 21, top + 16 + Math.floor(index / 3) * 24, 13, 14, mix(colour, p.pop, chance.likely(0.3) ? 0.9 : 0.16)));
  const art =
    sky(p.deep, p.mid, p.pop) +
    skyline(chance, y + 110, 20, 80, mix(p.deep, p.mid, 0.5)) +
    group(tower(-14, y + 30, p.night) + tower(146, y + 52, p.night) + group(person(0, 0, 92, p.night, poses.running), { transform: `translate(94 ${y + 18})rotate(-8)` }) +
      stroke(`M14 ${y - 46}h40M4 ${y - 26}h48M22 ${y - 6}h26`, p.light, 3.4, round), side === 1 ? {} : { transform: "translate(200 0)scale(-1 1)" });
  return { art, sky: p.deep, ground: mix(p.night, p.deep, 0.5) };
};

const chase: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const car = path("M-84 14Q-84 0-66-4L-40-8Q-20-30 10-30Q34-30 50-8L76-2Q86 2 86 16V22H-84Z", p.mid) + path("M-30-9Q-14-24 6-24V-9ZM12-24Q28-22 40-9H12Z", p.night) + rect(-84, 10, 170, 5, p.night) + path("M70-2l16 6v6H72Z", p.light) +
    many(2, (index) => circle(-50 + index * 104, 22, 18, p.night) + circle(-50 + index * 104, 22, 8, p.light));
  const art =
    fill(p.night) +
    group(
      burst(24, y + 14, 15, 78, 44, p.pop) + burst(20, y + 14, 12, 48, 28, p.light) + stroke(`M-10 ${y - 50}H92M-10 ${y - 34}H58M-10 ${y + 58}H80M-10 ${y + 72}H120`, p.mid, 3.4) +
        at(108, y, car, 0.96, -15) + path(`M-10 ${y + 108}L60 ${y + 76}L210 ${y + 112}V300H-10Z`, p.deep),
      side === 1 ? {} : { transform: "translate(200 0)scale(-1 1)" },
    );
  return { art, sky: p.night, ground: p.deep };
};

const dynamite: Scene = ({ p, chance, y }) => {
  const art =
    fill(p.pop) +
    rays(100, y, 18, mix(p.pop, p.light, 0.4), 0.5) +
    many(3, (index) => rect(52 + index * 33, y - 54, 31, 132, p.mid, { rx: 4 }) + rect(52 + index * 33, y - 54, 9, 132, mix(p.mid, p.light, 0.3), { rx: 4 })) +
    rect(46, y - 20, 110, 12, p.night) +
    rect(46, y + 40, 110, 12, p.night) +
    circle(100, y + 10, 34, p.night) +
    circle(100, y + 10, 27, p.light) +
    stroke(`M100 ${y + 10}V${y - 9}M100 ${y + 10}l${n(chance.between(-14, 14))} 8`, p.night, 4, round) +
    stroke(`M100 ${y - 54}Q98 ${y - 84} 124 ${y - 80}`, p.night, 4) +
    burst(130, y - 80, 9, 19, 8, "#ffffff") +
    rect(0, y + 104, 200, 300, p.night);
  return { art, sky: p.pop, ground: p.night };
};

export const action: readonly Scene[] = [blast, chopper, leap, chase, dynamite];

const summit: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const hiker = person(0, 0, 62, p.night, poses.walking) + rect(-15, -50, 13, 22, p.deep, { rx: 4 }) + stroke("M16-30L22 0", p.night, 2.4, round);
  const art =
    sky(p.mid, mix(p.mid, p.light, 0.6), p.light) +
    circle(100 + side * 34, y - 42, 26, p.pop) +
    peaks(chance, y + 30, 96, mix(p.mid, p.deep, 0.4), p.light) +
    peaks(chance, y + 62, 62, mix(p.deep, p.mid, 0.25)) +
    path(side === 1 ? `M0 ${y + 20}L60 ${y + 46}L110 ${y + 92}L200 ${y + 112}V300H0Z` : `M200 ${y + 20}L140 ${y + 46}L90 ${y + 92}L0 ${y + 112}V300H200Z`, p.night) +
    group(hiker, { transform: `translate(${100 - side * 48} ${y + 44})scale(${side} 1)` }) +
    birds(100 + side * 20, y - 74, p.deep);
  return { art, sky: p.mid, ground: p.night };
};

const map: Scene = ({ p, chance, y }) => {
  const art =
    fill(p.light) +
    path(`M0 ${y - 70}Q50 ${y - 40} 60 ${y - 90}T150 ${y - 74}T200 ${y - 20}V${y + 64}Q150 ${y + 40} 132 ${y + 74}T40 ${y + 80}T0 ${y + 30}Z`, mix(p.light, p.pop, 0.55)) +
    path(`M118 ${y - 52}l10-18l10 18ZM136 ${y - 44}l8-15l8 15ZM100 ${y - 44}l8-15l8 15Z`, p.deep) +
    stroke(`M22 ${y + 60}Q60 ${y + 70} 70 ${y + 30}T126 ${y + 22}T152 ${y - 18}`, p.mid, 5, { "stroke-dasharray": "3 11", "stroke-linecap": "round" }) +
    stroke(`M140 ${y - 32}l26 24M166 ${y - 32}l-26 24`, p.mid, 9, round) +
    at(52, y - 22, circle(0, 0, 36, "none", { stroke: p.deep, "stroke-width": 2.4 }) + path("M0-46L8-8L46 0L8 8L0 46L-8 8L-46 0L-8-8Z", p.deep) + path("M0-46L8-8L0 0ZM46 0L8 8L0 0ZM0 46L-8 8L0 0ZM-46 0L-8-8L0 0Z", p.pop) + path("M26-26L12-5L5-12ZM26 26L5 12L12 5ZM-26 26L-12 5L-5 12ZM-26-26L-5-12L-12-5Z", p.deep), 1, chance.between(-12, 12)) +
    stroke(`M20 ${y + 92}q10-8 20 0t20 0M140 ${y + 94}q10-8 20 0t20 0`, p.deep, 2.4) +
    path(`M0 ${y + 104}L28 ${y + 98}L60 ${y + 108}L96 ${y + 99}L140 ${y + 109}L172 ${y + 100}L200 ${y + 106}V300H0Z`, p.deep);
  return { art, sky: p.light, ground: p.deep };
};

const airBalloon: Scene = ({ p, chance, y }) => {
  const x = 100 + chance.between(-8, 8);
  const art =
    sky(p.pop, mix(p.pop, p.light, 0.65), p.light) +
    cloud(34, y - 30, 0.9, p.light) +
    cloud(174, y + 14, 1, p.light) +
    at(x, y - 16, path("M0-76C-42-76-60-48-56-18C-52 10-24 30-14 52H14C24 30 52 10 56-18C60-48 42-76 0-76Z", p.mid) + path("M0-76C-20-76-26-46-24-16C-22 12-10 34-5 52H5C10 34 22 12 24-16C26-46 20-76 0-76Z", p.light) + path("M-56-24Q0-4 56-24L54-8Q0 12-54-8Z", p.deep) + stroke("M-13 52L-9 72M13 52L9 72", p.night, 1.4) + rect(-11, 70, 22, 15, p.night, { rx: 2 })) +
    peaks(chance, y + 104, 44, mix(p.deep, p.mid, 0.35)) +
    hills(chance, y + 100, 6, p.deep);
  return { art, sky: p.pop, ground: p.deep };
};

const temple: Scene = ({ p, chance, y }) => {
  const leaf = (x: number, top: number, turn: number, s: number): string => at(x, top, path("M0 0Q20-30 66-24Q40-18 34-6Q22 4 0 0Z", p.night) + stroke("M2-2Q26-18 56-22", mix(p.night, p.deep, 0.6), 1.6), s, turn);
  const art =
    sky(p.deep, p.mid, p.pop) +
    rays(100, y - 30, 12, p.light, 0.42, 190).replace("/>", ' opacity=".3"/>') +
    circle(100, y - 34, 26, p.light) +
    firs(chance, y + 64, 50, mix(p.deep, p.mid, 0.35)) +
    path(many(5, (index) => `M${40 + index * 12} ${y + 84 - index * 22}h${120 - index * 24}v24h-${120 - index * 24}Z`), mix(p.deep, p.night, 0.3)) +
    path(`M92 ${y + 86}L96 ${y - 26}H104L108 ${y + 86}Z`, p.pop) +
    rect(94, y - 22, 12, 16, p.light) +
    path(`M0 ${y + 84}H200V300H0Z`, p.night) +
    person(100, y + 98, 44, p.night, poses.walking, "fedora") +
    leaf(-8, y + 40, -20, 1.3) + leaf(-10, y + 84, 6, 1.4) + leaf(-6, y - 10, -50, 1.1) +
    group(leaf(-8, y + 44, -24, 1.3) + leaf(-10, y + 86, 4, 1.4) + leaf(-6, y - 4, -46, 1.1), { transform: "translate(200 0)scale(-1 1)" });
  return { art, sky: p.deep, ground: p.night };
};

const ropeBridge: Scene = ({ p, chance, y }) => {
  const art =
    sky(p.light, mix(p.light, p.pop, 0.7), p.pop) +
    peaks(chance, y + 40, 80, mix(p.pop, p.mid, 0.5)) +
    peaks(chance, y + 80, 60, p.mid) +
    path(`M0 ${y - 6}L44 ${y - 2}L36 ${y + 40}L52 ${y + 90}L40 300H0ZM200 ${y - 6}L156 ${y - 2}L166 ${y + 46}L150 ${y + 92}L160 300H200Z`, p.night) +
    stroke(`M40 ${y - 28}Q100 ${y + 20} 160 ${y - 28}M40 ${y}Q100 ${y + 48} 160 ${y}${many(9, (index) => `M${52 + index * 12} ${n(y - 28 + 24 * (1 - ((index - 4) / 5) ** 2))}v28`)}`, p.night, 2) +
    stroke(`M40 ${y + 1}Q100 ${y + 49} 160 ${y + 1}`, p.night, 5, { "stroke-dasharray": "6 3" }) +
    stroke(`M42 ${y - 34}V${y}M158 ${y - 34}V${y}`, p.night, 5) +
    person(100 + chance.between(-16, 16), y + 25, 54, p.night, poses.walking, "fedora") +
    birds(40, y - 74, p.deep);
  return { art, sky: p.light, ground: p.deep };
};

export const adventure: readonly Scene[] = [summit, map, airBalloon, temple, ropeBridge];

const soldier = (x: number, y: number, height: number, colour: string): string =>
  person(x, y, height, colour, poses.walking, "helmet") + stroke(`M${n(x - height * 0.24)} ${n(y - height * 0.52)}L${n(x + height * 0.26)} ${n(y - height * 0.86)}`, colour, height * 0.05, round) + rect(x - height * 0.24, y - height * 0.76, height * 0.14, height * 0.24, colour, { rx: 2 });

const ridge: Scene = ({ p, chance, y }) => {
  const art =
    sky(p.pop, mix(p.pop, p.light, 0.5), p.light) +
    circle(100, y - 6, 58, p.mid) +
    path(`M0 ${y + 62}Q60 ${y + 44} 110 ${y + 56}T200 ${y + 50}V300H0Z`, p.deep) +
    many(4, (index) => soldier(26 + index * 48 + chance.between(-5, 5), y + 60, 66, p.night)) +
    path(`M0 ${y + 72}Q60 ${y + 54} 110 ${y + 66}T200 ${y + 60}V300H0Z`, p.night) +
    stroke(`M20 ${y + 92}V${y + 40}M110 ${y + 96}V${y + 44}M190 ${y + 90}V${y + 40}M0 ${y + 60}Q20 ${y + 48} 64 ${y + 58}T110 ${y + 56}T200 ${y + 50}M0 ${y + 76}Q50 ${y + 66} 110 ${y + 74}T200 ${y + 68}${many(12, (index) => `M${8 + index * 17} ${y + 52}l5 8m0-8l-5 8`)}`, p.night, 1.8);
  return { art, sky: p.pop, ground: p.night };
};

const squadron: Scene = ({ p, chance, y }) => {
  const plane = path("M-5-30Q0-38 5-30L7-10L48 4V13L7 8L4 30L15 37V42L0 39L-15 42V37L-4 30L-7 8L-48 13V4L-7-10Z", p.night) + circle(-30, 6, 5, p.pop) + circle(30, 6, 5, p.pop);
  const art =
    sky(p.mid, mix(p.mid, p.light, 0.6), p.light) +
    circle(150, y - 44, 26, mix(p.pop, p.light, 0.4)) +
    cloud(40, y + 34, 1, p.light) +
    cloud(168, y - 40, 0.9, p.light) +
    at(100, y - 14, plane, 1.15, chance.between(-8, 8)) +
    at(42, y + 26, plane, 0.6) +
    at(158, y + 26, plane, 0.6) +
    many(4, (index) => cloud(24 + index * 50, y + 74 + (index % 2) * 10, 0.5, p.deep)) +
    hills(chance, y + 96, 5, p.deep);
  return { art, sky: p.mid, ground: p.deep };
};

const poppies: Scene = ({ p, chance, y }) => {
  const foot = y + 66;
  const art =
    sky(p.mid, p.light) +
    path(`M0 ${foot - 8}Q100 ${foot - 22} 200 ${foot - 8}V300H0Z`, p.deep) +
    stroke(`M100 ${foot + 6}V${foot - 100}`, p.night, 7) +
    path(`M92 ${foot - 96}h16l4 40h-24Z`, p.night) +
    path(`M58 ${foot - 98}Q60 ${foot - 142} 100 ${foot - 142}T142 ${foot - 98}Q150 ${foot - 92} 152 ${foot - 88}H48Q50 ${foot - 92} 58 ${foot - 98}Z`, p.night) +
    stroke(`M66 ${foot - 106}Q100 ${foot - 98} 134 ${foot - 106}`, p.deep, 3) +
    stroke(`M70 ${foot - 88}Q84 ${foot - 62} 100 ${foot - 60}`, p.night, 3) +
    path(`M78 ${foot + 8}V${foot - 22}Q88 ${foot - 28} 96 ${foot - 20}V${foot - 6}L116 ${foot}V${foot + 8}Z`, p.night) +
    many(11, (index) => {
      const x = 8 + index * 18 + chance.between(-5, 5);
      const top = foot + chance.between(-14, 22);
      return stroke(`M${n(x)} ${n(top)}v16`, p.night, 1.4) + circle(x, top, chance.between(5, 8), p.pop) + circle(x, top, 2.2, p.night);
    });
  return { art, sky: p.mid, ground: p.deep };
};

const tank: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const hull = path("M-74 18L-64-8H-30L-22-30H26L36-8H62L76 18Z", p.night) + stroke("M30-20L98-32", p.night, 7) + rect(-84, 14, 168, 34, p.night, { rx: 17 }) + many(5, (index) => circle(-60 + index * 30, 31, 10, p.deep) + circle(-60 + index * 30, 31, 3.6, p.night)) + burst(5, -9, 5, 10, 4, p.pop) + rect(-8, -40, 18, 12, p.night, { rx: 3 });
  const art =
    sky(p.deep, p.mid, p.pop) +
    circle(100 - side * 40, y - 28, 34, p.light) +
    many(3, (index) => path(`M${20 + index * 70} ${y + 50}q-18-50 6-80t-8-60q30 26 18 66t12 74Z`, p.night, { opacity: 0.35 })) +
    hills(chance, y + 46, 5, mix(p.deep, p.night, 0.4)) +
    group(hull, { transform: `translate(${100 - side * 6} ${y + 16})scale(${side * 0.94} .94)rotate(-5)` }) +
    path(`M0 ${y + 62}L40 ${y + 56}L90 ${y + 66}L150 ${y + 54}L200 ${y + 62}V300H0Z`, p.night);
  return { art, sky: p.deep, ground: p.night };
};

export const war: readonly Scene[] = [ridge, squadron, poppies, tank];

const tallShip: Scene = ({ p, chance, y }) => {
  const sail = (x: number, top: number, w: number, h: number): string => path(`M${x - w} ${top}H${x + w}Q${x + w * 1.25} ${top + h / 2} ${x + w * 1.1} ${top + h}Q${x} ${top + h * 0.8} ${x - w * 0.9} ${top + h}Q${x - w * 0.7} ${top + h / 2} ${x - w} ${top}Z`, p.light);
  const ship =
    stroke("M-34 26V-74M4 26V-92M40 26V-66M-60 20L-92 2", p.night, 3) +
    sail(-34, -62, 17, 30) + sail(-34, -28, 21, 34) + sail(4, -82, 17, 30) + sail(4, -48, 22, 30) + sail(4, -14, 25, 30) + sail(40, -56, 15, 28) + sail(40, -24, 18, 34) +
    path("M-72 16Q-62 26 60 24L78 10L72 40Q60 56 40 56H-40Q-62 52-72 16Z", p.night) + rect(-54, 32, 112, 4, p.pop) + path("M4-92l18 5l-18 5Z", p.pop);
  const art =
    sky(p.mid, p.pop, p.light) +
    circle(100 + chance.between(-40, 40), y - 20, 40, mix(p.light, p.pop, 0.3)) +
    at(100, y, ship, 1.02) +
    sea(y + 48, [mix(p.deep, p.mid, 0.3), p.deep, p.night]);
  return { art, sky: p.mid, ground: p.night };
};

const cameo: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const head = "M-22 56Q-34 30-26 4Q-38-20-24-44Q-4-62 20-46Q32-34 28-16L38 2Q38 8 30 9L29 18Q31 22 27 25Q29 36 16 36L8 36Q8 46 18 56Z";
  const art =
    fill(p.deep) +
    many(9, (index) => rect(index * 24 - 4, 0, 9, 300, mix(p.deep, p.night, 0.3))) +
    ellipse(100, y, 74, 92, p.pop) +
    ellipse(100, y, 66, 84, p.night) +
    ellipse(100, y, 60, 78, p.mid) +
    group(path(head, p.light) + path("M-26 4Q-44-10-40-34Q-28-66 6-60Q34-54 28-34Q12-46-2-34Q-14-22-10-2Q-18 8-26 4Z", mix(p.light, p.deep, 0.4)) + stroke("M-30-20Q-6-44 26-34", p.pop, 4, round) + path("M-22 56Q-60 62-50 74H50Q54 60 18 56Z", mix(p.light, p.deep, 0.25)), { transform: `translate(100 ${y})scale(${side} 1)` }) +
    path(`M70 ${y + 84}Q100 ${y + 104} 130 ${y + 84}L140 ${y + 100}L124 ${y + 98}Q100 ${y + 114} 76 ${y + 98}L60 ${y + 100}Z`, p.pop);
  return { art, sky: p.deep, ground: p.deep };
};

const columns: Scene = ({ p, chance, y }) => {
  const art =
    sky(p.pop, mix(p.pop, p.light, 0.6), p.light) +
    circle(100, y - 8, 46, p.light) +
    path(`M20 ${y - 48}L100 ${y - 94}L180 ${y - 48}Z`, p.mid) +
    path(`M44 ${y - 54}L100 ${y - 86}L156 ${y - 54}Z`, mix(p.mid, p.night, 0.22)) +
    rect(22, y - 48, 156, 13, mix(p.mid, p.light, 0.3)) +
    many(5, (index) => rect(30 + index * 32, y - 34, 14, 106, mix(p.mid, p.light, 0.3)) + rect(39 + index * 32, y - 34, 5, 106, mix(p.mid, p.night, 0.22)) + rect(26 + index * 32, y - 36, 22, 6, p.mid) + rect(26 + index * 32, y + 68, 22, 6, p.mid)) +
    many(3, (index) => rect(16 - index * 8, y + 74 + index * 8, 168 + index * 16, 8, mix(p.mid, p.deep, index * 0.35))) +
    rect(0, y + 98, 200, 300, p.deep) +
    person(100 + chance.between(-10, 10), y + 98, 56, p.night, poses.dress);
  return { art, sky: p.pop, ground: p.deep };
};

const letter: Scene = ({ p, chance, y }) => {
  const art =
    fill(p.mid) +
    at(96, y + 10, rect(-62, -62, 124, 140, p.light) + path("M-62-62h124v8H-62Z", mix(p.light, p.mid, 0.4)) + many(7, (index) => stroke(`M-46 ${-38 + index * 13}q10-5 20 0t20 0t20 0${index < 6 ? "t20 0" : ""}`, p.deep, 1.8)), 1, chance.between(-9, -3)) +
    circle(132, y + 70, 19, p.pop) +
    circle(132, y + 70, 12, mix(p.pop, p.night, 0.25)) +
    burst(132, y + 70, 5, 8, 3.6, p.pop) +
    at(96, y + 30, path("M-8 26Q6-26 42-66Q70-94 88-96Q86-66 62-38Q34-8-4 22Z", p.night) + stroke("M-16 36L78-82", p.light, 1.6) + stroke("M50-34l-14-2M62-50l-14-2M36-20l-13-2", p.mid, 1.6)) +
    rect(0, y + 104, 200, 300, p.night);
  return { art, sky: p.mid, ground: p.night };
};

// An engine between a gentleman in a top hat and a lady with a parasol.
const locomotive: Scene = ({ p, chance, y }) => {
  const gentleman = person(30, y + 112, 92, p.night, poses.coat) + rect(21, y + 5, 18, 21, p.night) + rect(14, y + 23, 32, 4, p.night);
  const lady = person(168, y + 112, 84, p.night, poses.dress) + stroke(`M150 ${y + 66}V${y - 6}`, p.light, 2.4) + path(`M114 ${y + 10}Q150 ${y - 42} 186 ${y + 10}Q168 ${y + 1} 150 ${y + 10}Q132 ${y + 1} 114 ${y + 10}Z`, p.light);
  const art =
    sky(p.pop, p.light) +
    cloud(100, y - 56, 1.5, p.light) +
    cloud(74 + chance.between(-10, 30), y - 78, 1.2, mix(p.light, p.mid, 0.25)) +
    hills(chance, y + 30, 10, mix(p.mid, p.light, 0.3)) +
    path(`M84 ${y + 66}H116L170 300H30Z`, mix(p.deep, p.mid, 0.3)) +
    path(`M0 ${y + 70}H200V300H0Z`, p.deep) +
    rect(90, y - 60, 20, 34, p.night) +
    rect(84, y - 66, 32, 8, p.night) +
    rect(48, y - 4, 104, 66, p.night) +
    circle(100, y + 6, 44, p.night) +
    circle(100, y + 6, 36, p.deep) +
    circle(100, y + 6, 36, "none", { stroke: p.pop, "stroke-width": 3 }) +
    circle(100, y - 2, 13, p.light) +
    circle(100, y - 2, 13, "none", { stroke: p.pop, "stroke-width": 4 }) +
    rect(44, y + 46, 112, 14, p.mid) +
    circle(56, y + 53, 6, p.pop) +
    circle(144, y + 53, 6, p.pop) +
    path(`M56 ${y + 62}H144L164 ${y + 98}H36Z`, p.night) +
    stroke(many(7, (index) => `M${64 + index * 12} ${y + 64}L${46 + index * 18} ${y + 96}`), p.pop, 2.4) +
    gentleman +
    lady;
  return { art, sky: p.pop, ground: p.deep };
};

export const history: readonly Scene[] = [tallShip, cameo, columns, letter, locomotive];

const cactus = path("M-9 60V-46Q-9-58 0-58T9-46V10H20Q26 10 26 2V-14Q26-22 33-22T40-14V6Q40 26 22 26H9V60ZM-9 30H-22Q-38 30-38 12V-4Q-38-12-31-12T-24-4V8Q-24 15-18 15H-9Z", "#000000");
const cactusIn = (colour: string): string => cactus.replace("#000000", colour);
const mesas = (y: number, colour: string): string => path(`M0 ${y}V${y - 30}H22L28 ${y - 46}H58L66 ${y - 12}L84 ${y}ZM120 ${y}L132 ${y - 22}L136 ${y - 64}H172L178 ${y - 30}H200V${y}Z`, colour);

const duel: Scene = ({ p, chance, y }) => {
  const foot = y + 74;
  const art =
    sky(p.mid, p.pop, p.light) +
    circle(100, y + 10, 46, p.light) +
    mesas(y + 44, mix(p.mid, p.deep, 0.3)) +
    rect(0, y + 42, 200, 300, mix(p.pop, p.deep, 0.45)) +
    person(104 + chance.between(-5, 5), y + 62, 38, p.night, poses.stride, "cowboy") +
    path(`M0 0H200L184 ${y - 66}Q150 ${y - 52} 146 ${y + 10}L164 ${foot + 26}H196V${foot + 40}H138L104 ${y - 38}H96L62 ${foot + 40}H4V${foot + 26}H36L54 ${y + 10}Q50 ${y - 52} 16 ${y - 66}Z`, p.night) +
    rect(20, y - 64, 160, 15, mix(p.deep, p.night, 0.4)) +
    rect(88, y - 66, 24, 19, p.pop, { rx: 3 }) +
    path(`M150 ${y - 58}h24l-4 54h-14Z`, mix(p.deep, p.mid, 0.4)) +
    rect(0, foot + 36, 200, 300, p.night);
  return { art, sky: p.night, ground: p.night };
};

const rider: Scene = ({ p, chance, y }) => {
  const art =
    sky(p.mid, p.pop, mix(p.pop, p.light, 0.6)) +
    circle(100, y - 4, 68, p.light) +
    mesas(y + 62, mix(p.mid, p.deep, 0.4)) +
    path(`M0 ${y + 60}Q100 ${y + 48} 200 ${y + 60}V300H0Z`, p.deep) +
    shadow(92, y + 82, 6, 50, 20, p.night) +
    person(92, y + 84, 122, p.night, poses.stride, "cowboy") +
    at(164, y + 44, cactusIn(p.night), 0.66 + chance.between(0, 0.12)) +
    at(28, y + 58, cactusIn(p.night), 0.4);
  return { art, sky: p.mid, ground: p.deep };
};

const star: Scene = ({ p, chance, y }) => {
  const art =
    fill(p.deep) +
    many(7, (index) => rect(0, y - 130 + index * 44, 200, 2.4, p.night)) +
    at(100, y, burst(0, 0, 5, 86, 38, p.pop) + burst(0, 0, 5, 70, 31, mix(p.pop, p.light, 0.35)) + many(5, (index) => circle(Math.cos(index * 1.2566 - 1.5708) * 84, Math.sin(index * 1.2566 - 1.5708) * 84, 9, p.pop)) + circle(0, 0, 26, p.pop) + burst(0, 0, 5, 18, 8, p.deep), 1, chance.between(-10, 10)) +
    many(2, (index) => {
      const x = 64 + index * 76;
      const top = y - 20 + index * 48;
      return burst(x, top, 8, 13, 8, p.light) + circle(x, top, 6.5, p.night);
    });
  return { art, sky: p.deep, ground: p.deep };
};

const saloon: Scene = ({ p, chance, y }) => {
  const door = path("M-46-40Q-24-54 0-40V58H-46Z", p.deep) + many(6, (index) => rect(-40, -24 + index * 12, 34, 6, p.night));
  const art =
    fill(p.night) +
    rect(30, y - 96, 140, 210, p.pop) +
    circle(100, y - 54, 34, p.light) +
    person(100, y + 106, 150, p.night, poses.stride, "cowboy") +
    at(84 - chance.between(0, 6), y + 26, door) +
    group(door, { transform: `translate(${n(116 + chance.between(0, 6))} ${y + 26})scale(-1 1)` }) +
    rect(22, y - 104, 12, 300, mix(p.deep, p.night, 0.5)) +
    rect(166, y - 104, 12, 300, mix(p.deep, p.night, 0.5)) +
    rect(14, y - 106, 172, 12, mix(p.deep, p.night, 0.5)) +
    rect(0, y + 102, 200, 300, p.night);
  return { art, sky: p.night, ground: p.night };
};

const desert: Scene = ({ p, chance, y }) => {
  const art =
    sky(p.deep, p.mid, p.pop) +
    circle(70 + chance.between(0, 60), y - 20, 34, p.light) +
    mesas(y + 56, mix(p.deep, p.mid, 0.3)) +
    path(`M0 ${y + 54}H200V300H0Z`, mix(p.pop, p.deep, 0.5)) +
    at(104, y + 32, cactusIn(p.night), 1.35) +
    path(`M0 ${y + 96}Q50 ${y + 84} 100 ${y + 96}T200 ${y + 92}V300H0Z`, p.night) +
    at(54, y + 90, ellipse(0, 0, 26, 5, p.night) + path("M-15-2Q-14-18-6-18Q0-14 6-18Q14-18 15-2Z", p.night)) +
    stars(chance, 14, y - 40, p.light);
  return { art, sky: p.deep, ground: p.night };
};

export const western: readonly Scene[] = [duel, rider, star, saloon, desert];
