// Scenes of science fiction and fantasy.

import { circle, ellipse, fall, group, many, mix, n, path, rect, stroke } from "../svg";
import { at, burst, fill, firs, hills, moon, peaks, person, poses, rays, round, sky, skyline, stars } from "./stage";
import type { Scene } from "./stage";

const ringed: Scene = ({ p, chance, y }) => {
  const globe = fall("globe", [p.pop, p.mid, p.deep], true);
  const x = 100 + chance.between(-14, 14);
  const tilt = chance.likely(0.5) ? -20 : 20;
  const ring = (way: string): string => group(stroke(way, p.light, 5) + stroke(way, p.pop, 2, { transform: "scale(.88)" }), { transform: `translate(${n(x)} ${y - 16})rotate(${tilt})` });
  const art =
    sky(p.night, mix(p.night, p.deep, 0.7), p.deep) +
    stars(chance, 60, 300, p.light) +
    globe.defs +
    ring("M-92 0A92 22 0 0 1 92 0") +
    circle(x, y - 16, 54, globe.paint) +
    ring("M-92 0A92 22 0 0 0 92 0") +
    circle(chance.likely(0.5) ? 30 : 168, y - 80, 9, p.mid) +
    path(`M0 ${y + 82}Q60 ${y + 60} 100 ${y + 72}T200 ${y + 66}V300H0Z`, p.night) +
    person(100 - (x - 100) * 2, y + 76, 38, p.light, poses.standing) +
    circle(100 - (x - 100) * 2, y + 42, 6.4, p.pop);
  return { art, sky: p.night, ground: p.night };
};

const saucer: Scene = ({ p, chance, y }) => {
  const art =
    sky(p.night, p.deep, p.mid) +
    stars(chance, 34, y + 40, p.light) +
    path(`M72 ${y - 46}H128L168 ${y + 84}H32Z`, p.pop, { opacity: 0.85 }) +
    path(`M88 ${y - 46}H112L130 ${y + 84}H70Z`, p.light, { opacity: 0.7 }) +
    path(`M64 ${y - 62}Q66 ${y - 98} 100 ${y - 98}T136 ${y - 62}Z`, mix(p.mid, p.light, 0.5)) +
    ellipse(100, y - 56, 74, 17, p.night) +
    ellipse(100, y - 61, 74, 14, mix(p.deep, p.light, 0.35)) +
    many(6, (index) => circle(46 + index * 21.6, y - 57 + Math.abs(2.5 - index) * -1.4 + 3, 4, p.pop)) +
    firs(chance, y + 84, 34, mix(p.deep, p.night, 0.5)) +
    hills(chance, y + 84, 3, p.night) +
    person(100, y + 50, 42, p.night, poses.falling);
  return { art, sky: p.night, ground: p.night };
};

const helmet: Scene = ({ p, chance, y }) => {
  const glass = fall("glass", [p.night, p.deep, p.mid, p.pop]);
  const art =
    fill(p.pop) +
    stars(chance, 24, 300, p.light) +
    circle(100, y - 8, 92, mix(p.pop, p.light, 0.35)) +
    path(`M24 ${y + 110}Q26 ${y + 62} 100 ${y + 60}T176 ${y + 110}Z`, p.light) +
    rect(62, y + 50, 76, 20, mix(p.light, p.night, 0.35), { rx: 9 }) +
    circle(100, y - 8, 68, p.light) +
    path(`M100 ${y - 76}A68 68 0 0 1 100 ${y + 60}Z`, mix(p.light, p.night, 0.16)) +
    glass.defs +
    rect(50, y - 46, 100, 74, glass.paint, { rx: 36 }) +
    circle(86, y - 16, 13, p.light) +
    person(118, y + 22, 30, p.night, poses.standing) +
    path(`M52 ${y + 8}Q100 ${y - 2} 148 ${y + 8}Q140 ${y + 28} 114 ${y + 28}H86Q60 ${y + 28} 52 ${y + 8}Z`, p.night, { opacity: 0.75 }) +
    stroke(`M62 ${y - 22}Q66 ${y - 36} 80 ${y - 38}`, "#ffffff", 5, { ...round, opacity: 0.8 }) +
    rect(28, y - 20, 11, 34, mix(p.light, p.night, 0.35), { rx: 5 }) +
    rect(161, y - 20, 11, 34, mix(p.light, p.night, 0.35), { rx: 5 });
  return { art, sky: p.pop, ground: p.light };
};

const grid: Scene = ({ p, chance, y }) => {
  const line = y + 34;
  const sun = fall("sun", [p.light, p.pop, p.mid]);
  const art =
    sky(p.night, p.deep, mix(p.deep, p.mid, 0.5)) +
    stars(chance, 30, line - 30, p.light) +
    sun.defs +
    circle(100, line - 40, 62, sun.paint) +
    many(5, (index) => rect(30, line - 34 + index * 12, 140, 2 + index * 1.2, mix(p.deep, p.mid, 0.2))) +
    skyline(chance, line, 12, 66, p.night, p.pop) +
    rect(0, line, 200, 300, p.night) +
    stroke(many(15, (index) => `M${100 + (index - 7) * 9} ${line}L${100 + (index - 7) * 62} 300`) + many(7, (index) => `M0 ${n(line + index * index * 3.4 + 1)}H200`), p.mid, 1.6) +
    person(100, line + 56, 62, p.light, poses.coat);
  return { art, sky: p.night, ground: p.night };
};

const robot: Scene = ({ p, chance, y }) => {
  const metal = mix(p.light, p.mid, 0.3);
  const art =
    fill(p.deep) +
    circle(100, y - 4, 90, mix(p.deep, p.mid, 0.6)) +
    path(`M40 ${y + 110}V${y + 82}Q40 ${y + 66} 58 ${y + 66}H142Q160 ${y + 66} 160 ${y + 82}V${y + 110}Z`, mix(metal, p.night, 0.35)) +
    rect(82, y + 48, 36, 22, p.night) +
    stroke(`M100 ${y - 64}V${y - 90}`, metal, 5) +
    circle(100, y - 93, 8, p.pop) +
    rect(24, y - 24, 16, 40, mix(metal, p.night, 0.35), { rx: 6 }) +
    rect(160, y - 24, 16, 40, mix(metal, p.night, 0.35), { rx: 6 }) +
    rect(36, y - 66, 128, 118, metal, { rx: 26 }) +
    path(`M100 ${y - 66}H138Q164 ${y - 66} 164 ${y - 40}V${y + 26}Q164 ${y + 52} 138 ${y + 52}H100Z`, mix(metal, p.night, 0.14)) +
    (chance.likely(0.5)
      ? rect(50, y - 40, 100, 36, p.night, { rx: 18 }) + circle(74, y - 22, 11, p.pop) + circle(126, y - 22, 11, p.pop) + circle(74, y - 22, 4, p.light) + circle(126, y - 22, 4, p.light)
      : circle(100, y - 20, 32, p.night) + circle(100, y - 20, 21, p.pop) + circle(100, y - 20, 8, p.light)) +
    stroke(`M72 ${y + 28}H128${many(5, (index) => `M${80 + index * 10} ${y + 22}v12`)}`, p.night, 3) +
    circle(48, y - 54, 3, p.night) +
    circle(152, y - 54, 3, p.night);
  return { art, sky: p.deep, ground: mix(metal, p.night, 0.35) };
};

const rocket: Scene = ({ p, chance, y }) => {
  const craft = path("M0-78Q28-44 24 12L20 34H-20L-24 12Q-28-44 0-78Z", p.light) + path("M0-78Q28-44 24 12L20 34H0Z", mix(p.light, p.night, 0.2)) + path("M-22 2Q-46 16-44 48L-20 32ZM22 2Q46 16 44 48L20 32Z", p.mid) + path("M0-78Q13-62 19-42H-19Q-13-62 0-78Z", p.mid) + circle(0, -18, 11, p.night) + circle(0, -18, 7, p.pop) + path("M-16 34H16L9 66L0 90L-9 66Z", p.pop) + path("M-8 34H8L0 66Z", "#ffffff");
  const art =
    sky(p.night, p.deep, mix(p.deep, p.mid, 0.6)) +
    stars(chance, 46, 300, p.light) +
    moon(chance.likely(0.5) ? 40 : 160, y - 62, 20, p.light, p.mid) +
    at(100, y - 2, craft, 1, chance.between(10, 24) * (chance.likely(0.5) ? 1 : -1)) +
    many(9, (index) => circle(-4 + index * 26, y + 112 - (index % 3) * 9, 24, mix(p.light, p.deep, 0.35))) +
    rect(0, y + 108, 200, 300, p.night);
  return { art, sky: p.night, ground: p.night };
};

const gate: Scene = ({ p, chance, y }) => {
  const art =
    fill(p.night) +
    many(7, (index) => circle(100, y - 6, 92 - index * 12, [p.deep, p.mid, mix(p.deep, p.mid, 0.5), p.pop, p.mid, mix(p.pop, p.light, 0.5), p.light][index]!)) +
    many(12, (index) => group(rect(-3, -104, 6, 12, p.pop), { transform: `translate(100 ${y - 6})rotate(${index * 30 + n(chance.between(0, 4))})` })) +
    path(`M60 ${y + 92}L88 ${y + 40}H112L140 ${y + 92}Z`, p.light, { opacity: 0.5 }) +
    person(100, y + 76, 60, p.night, poses.standing) +
    path(`M0 ${y + 72}L40 ${y + 76}L100 ${y + 70}L160 ${y + 76}L200 ${y + 72}V300H0Z`, mix(p.night, p.deep, 0.3));
  return { art, sky: p.night, ground: mix(p.night, p.deep, 0.3) };
};

export const sciFi: readonly Scene[] = [ringed, saucer, helmet, grid, robot, rocket, gate];

const castle: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const keep = path("M-46 30V-6H-40V-12H-34V-6H-28V-42L-19-66L-10-42V-20H-4V-70L9-102L22-70V-14H28V-30L37-54L46-30V30Z", p.night) + path("M9-102v-14l14 5l-14 5ZM-19-66v-11l11 4l-11 4Z", p.pop) + path("M5-62h8v12H5ZM-22-36h6v9h-6ZM34-24h6v9h-6Z", p.pop);
  const art =
    sky(p.night, p.deep, p.mid) +
    stars(chance, 26, y, p.light) +
    moon(100 - side * 20, y - 30, 56, p.light, p.pop) +
    peaks(chance, y + 70, 60, mix(p.deep, p.mid, 0.4)) +
    path(`M${100 + side * 10 - 70} ${y + 112}L${100 + side * 10 - 46} ${y + 40}L${100 + side * 10 + 46} ${y + 40}L${100 + side * 10 + 74} ${y + 112}Z`, p.night) +
    at(100 + side * 10, y + 24, keep, 1.06) +
    hills(chance, y + 90, 5, p.night);
  return { art, sky: p.night, ground: p.night };
};

const dragon: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const beast =
    path("M-6 8Q-20-40-74-62Q-66-44-72-34Q-56-34-54-20Q-40-22-36-6Q-24-8-6 8Z", p.night) +
    path("M10 4Q14-48 62-84Q60-62 70-54Q56-46 60-30Q44-30 42-14Q28-14 10 4Z", p.night) +
    path("M-8 2Q6-12 26 2Q44 8 58-6Q56-16 62-20L66-28L70-19Q86-16 92-4L76-1L88 5Q72 10 66 4Q48 26 22 22Q4 26-14 46Q-34 66-66 58L-82 66L-76 50Q-44 52-28 32Q-18 18-8 2Z", p.night) +
    circle(73, -10, 2.2, p.pop) +
    path("M92 0Q116-10 132 10Q118 4 112 12Q106 4 90 5Z", p.pop);
  const art =
    sky(p.mid, p.pop, p.light) +
    circle(100, y - 16, 60, p.light) +
    group(beast, { transform: `translate(${100 - side * 12} ${y - 6})scale(${side * 1.02} 1.02)` }) +
    peaks(chance, y + 90, 56, mix(p.deep, p.mid, 0.3)) +
    peaks(chance, y + 104, 30, p.deep) +
    person(100 + side * 20, y + 94, 30, p.night, poses.stride) +
    path(`M0 ${y + 96}Q100 ${y + 86} 200 ${y + 96}V300H0Z`, p.night);
  return { art, sky: p.mid, ground: p.night };
};

const swordInStone: Scene = ({ p, chance, y }) => {
  const art =
    sky(p.deep, p.mid) +
    rays(100, y - 70, 14, p.light, 0.4, 240).replace("/>", ' opacity=".28"/>') +
    circle(100, y - 30, 52, p.pop, { opacity: 0.5 }) +
    firs(chance, y + 70, 80, mix(p.deep, p.night, 0.4)) +
    path(`M93 ${y + 50}V${y - 46}H107V${y + 50}Z`, p.light) +
    path(`M100 ${y + 50}V${y - 46}H107V${y + 50}Z`, mix(p.light, p.night, 0.25)) +
    rect(68, y - 56, 64, 11, p.pop, { rx: 5 }) +
    rect(95, y - 90, 10, 36, p.night) +
    circle(100, y - 94, 9, p.pop) +
    path(`M38 ${y + 96}L50 ${y + 52}L82 ${y + 34}L122 ${y + 38}L152 ${y + 60}L164 ${y + 96}Z`, p.night) +
    path(`M82 ${y + 34}L122 ${y + 38}L112 ${y + 56}L88 ${y + 54}Z`, mix(p.night, p.mid, 0.35)) +
    hills(chance, y + 94, 3, p.night);
  return { art, sky: p.deep, ground: p.night };
};

const wizard: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const figure =
    path("M-40 108Q-34 20-22-6H22Q36 20 42 108Z", p.night) +
    path("M-14-22Q0-14 14-22Q18 22 0 58Q-18 22-14-22Z", p.light) +
    circle(0, -22, 15, mix(p.pop, p.light, 0.5)) +
    path("M-12-16Q0-10 12-16Q14 20 0 50Q-14 20-12-16Z", p.light) +
    path("M-44-26Q0-14 44-26Q20-34 16-42Q8-78 24-108Q-12-92-16-42Q-20-34-44-26Z", p.night) +
    rect(-17, -42, 34, 7, p.pop) +
    stroke("M58 108L50-46", p.night, 5, round) +
    path("M20 0Q44 8 58 20L52 32Q34 22 18 24Z", p.night);
  const art =
    sky(p.night, p.deep, p.mid) +
    stars(chance, 40, y + 60, p.light) +
    group(circle(50, -56, 34, p.pop, { opacity: 0.3 }) + circle(50, -56, 21, p.pop, { opacity: 0.6 }) + burst(50, -56, 8, 19, 8, p.light) + figure, { transform: `translate(${100 - side * 14} ${y + 4})scale(${side} 1)` }) +
    hills(chance, y + 104, 3, mix(p.night, p.deep, 0.25));
  return { art, sky: p.night, ground: mix(p.night, p.deep, 0.25) };
};

const portal: Scene = ({ p, chance, y }) => {
  const art =
    fill(p.night) +
    firs(chance, y + 80, 190, mix(p.night, p.deep, 0.5)) +
    path(`M62 ${y + 78}V${y - 22}Q62 ${y - 72} 100 ${y - 82}Q138 ${y - 72} 138 ${y - 22}V${y + 78}Z`, p.deep) +
    path(`M70 ${y + 78}V${y - 20}Q70 ${y - 62} 100 ${y - 71}Q130 ${y - 62} 130 ${y - 20}V${y + 78}Z`, p.pop) +
    circle(100, y - 18, 22, p.light) +
    path(`M70 ${y + 78}H130L176 300H24Z`, p.pop, { opacity: 0.5 }) +
    person(100, y + 84, 62, p.night, poses.dress) +
    many(16, () => circle(chance.between(20, 180), y + chance.between(-90, 90), chance.between(1, 2.8), p.light)) +
    path(`M0 ${y + 96}Q100 ${y + 86} 200 ${y + 96}V300H0Z`, p.night);
  return { art, sky: p.night, ground: p.night };
};

const crown: Scene = ({ p, chance, y }) => {
  const art =
    fill(p.deep) +
    rays(100, y, 16, mix(p.deep, p.mid, 0.45), 0.5) +
    circle(100, y, 82, p.night) +
    many(5, (index) => path("M0 0Q-16-22-2-44Q0-30 8-34Q4-48 12-60Q26-34 16-12Q14-2 0 0Z", [p.mid, p.pop, p.light, p.pop, p.mid][index]!, { transform: `translate(${46 + index * 25} ${y - 6 - (index % 2) * 7})scale(${index === 2 ? 1.25 : 1})` })) +
    path(`M40 ${y + 56}L30 ${y - 22}L66 ${y + 12}L100 ${y - 40}L134 ${y + 12}L170 ${y - 22}L160 ${y + 56}Z`, p.pop) +
    path(`M100 ${y - 40}L134 ${y + 12}L170 ${y - 22}L160 ${y + 56}H100Z`, mix(p.pop, p.night, 0.18)) +
    rect(38, y + 46, 124, 16, p.light) +
    many(4, (index) => circle(56 + index * 29, y + 54, 5, p.mid)) +
    circle(100, y - 44, 7, p.light) +
    circle(30, y - 26, 6, p.light) +
    circle(170, y - 26, 6, p.light) +
    circle(100, y + 22, 9 + chance.between(0, 2), p.mid);
  return { art, sky: p.deep, ground: p.deep };
};

export const fantasy: readonly Scene[] = [castle, dragon, swordInStone, wizard, portal, crown];
