// Scenes of family films.

import { circle, ellipse, group, many, mix, path, rect, stroke } from "../svg";
import { at, birds, cloud, fill, firs, heart, hills, person, poses, rays, round, sky } from "./stage";
import type { Scene } from "./stage";

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
