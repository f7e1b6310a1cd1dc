// Scenes of comedies, music and sports films.

import { circle, ellipse, group, many, mix, n, path, rect, stroke } from "../svg";
import { at, burst, fill, person, poses, rays, round, sky, stars } from "./stage";
import type { Scene } from "./stage";

const disguise: Scene = ({ p, chance, y }) => {
  const art =
    fill(p.pop) +
    rays(100, y, 16, mix(p.pop, p.light, 0.3), 0.5) +
    circle(58, y - 22, 32, p.light) +
    circle(142, y - 22, 32, p.light) +
    circle(58 + chance.between(-9, 9), y - 20, 12, p.night) +
    circle(142 + chance.between(-9, 9), y - 20, 12, p.night) +
    circle(58, y - 22, 34, "none", { stroke: p.night, "stroke-width": 11 }) +
    circle(142, y - 22, 34, "none", { stroke: p.night, "stroke-width": 11 }) +
    stroke(`M92 ${y - 24}Q100 ${y - 32} 108 ${y - 24}`, p.night, 9) +
    path(`M26 ${y - 66}Q56 ${y - 86} 88 ${y - 66}L84 ${y - 56}Q56 ${y - 70} 30 ${y - 56}ZM112 ${y - 66}Q144 ${y - 86} 174 ${y - 66}L170 ${y - 56}Q144 ${y - 70} 116 ${y - 56}Z`, p.night) +
    path(`M92 ${y - 22}Q80 ${y + 22} 76 ${y + 26}Q74 ${y + 44} 100 ${y + 44}T124 ${y + 26}Q120 ${y + 22} 108 ${y - 22}Z`, p.mid) +
    path(`M100 ${y + 40}Q84 ${y + 36} 68 ${y + 48}Q48 ${y + 62} 30 ${y + 46}Q42 ${y + 84} 74 ${y + 74}Q92 ${y + 68} 100 ${y + 56}Q108 ${y + 68} 126 ${y + 74}Q158 ${y + 84} 170 ${y + 46}Q152 ${y + 62} 132 ${y + 48}Q116 ${y + 36} 100 ${y + 40}Z`, p.night);
  return { art, sky: p.pop, ground: p.pop };
};

const banana: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const peel = path("M0-6Q-34-10-46 18Q-24 6-10 12Q-14 26-8 40Q4 22 8 10Q24 10 40 24Q36-8 6-8L4-22H-4Z", "#ffd23e") + path("M-4-22H4L3-12H-3Z", "#6b4a12") + path("M0-6Q-22-4-32 10Q-16 2-6 6ZM2-4Q18-4 30 10Q16 2 6 4Z", "#fff3b8");
  const art =
    fill(p.mid) +
    circle(100, y, 84, mix(p.mid, p.light, 0.4)) +
    rect(0, y + 78, 200, 300, p.deep) +
    group(person(0, 0, 112, p.night, poses.falling), { transform: `translate(${100 + side * 44} ${y + 34})rotate(${side * -62})scale(${side} 1)` }) +
    path(`M${100 + side * 30} ${y + 20}l${side * 22}-8M${100 + side * 36} ${y + 36}l${side * 24} 0`, "none", { stroke: p.light, "stroke-width": 4, "stroke-linecap": "round" }) +
    at(100 + side * 58, y + 58, peel, 0.9);
  return { art, sky: p.mid, ground: p.deep };
};

const duck: Scene = ({ p, chance, y }) => {
  const art =
    sky(p.light, mix(p.light, p.mid, 0.5)) +
    many(9, () => circle(chance.between(10, 190), y + chance.between(-96, 30), chance.between(4, 12), "#ffffff", { opacity: 0.7 })) +
    path(`M34 ${y + 30}Q20 ${y - 8} 40 ${y - 2}Q66 ${y + 10} 78 ${y + 2}Q70 ${y - 70} 118 ${y - 72}Q160 ${y - 68} 154 ${y - 18}Q178 ${y + 20} 150 ${y + 66}H60Q36 ${y + 60} 34 ${y + 30}Z`, "#ffd23e") +
    path(`M76 ${y + 20}Q110 ${y + 2} 124 ${y + 30}Q112 ${y + 56} 80 ${y + 46}Z`, "#f2b21c") +
    path(`M146 ${y - 40}Q178 ${y - 44} 180 ${y - 32}Q178 ${y - 18} 146 ${y - 22}Z`, "#f0722a") +
    rect(94, y - 54, 32, 20, p.night, { rx: 7 }) +
    rect(130, y - 54, 30, 20, p.night, { rx: 7 }) +
    stroke(`M86 ${y - 48}H160`, p.night, 4) +
    path(`M98 ${y - 50}h12l-8 12h-4Z`, p.light, { opacity: 0.7 }) +
    path(`M0 ${y + 52}${"q12-9 25 0t25 0".repeat(4)}V300H0Z`, p.mid) +
    path(`M0 ${y + 76}${"q12-9 25 0t25 0".repeat(4)}V300H0Z`, p.deep);
  return { art, sky: p.light, ground: p.deep };
};

const legsUp: Scene = ({ p, chance, y }) => {
  const sock = (x: number, turn: number): string =>
    at(x, y + 22, rect(-10, -84, 20, 90, p.night) + many(4, (index) => rect(-10, -84 + index * 14, 20, 7, index % 2 === 0 ? p.light : p.mid)) + path("M-11-84Q-12-102 6-102H34Q40-92 30-86L12-84Z", p.night), 1, turn);
  const cake = chance.likely(0.5);
  const art =
    fill(p.pop) +
    rays(100, y + 10, 14, mix(p.pop, p.light, 0.28), 0.5) +
    sock(80, -14) +
    sock(118, 12) +
    (cake
      ? rect(30, y + 20, 140, 46, p.light, { rx: 8 }) +
        path(`M30 ${y + 28}Q30 ${y + 14} 44 ${y + 14}H156Q170 ${y + 14} 170 ${y + 28}v10${"q-7 14-14 0q-7 10-14 0".repeat(2)}q-7 14-14 0q-7 10-14 0q-7 14-14 0q-7 10-14 0q-7 14-14 0q-7 12-14 0Z`, p.mid) +
        rect(18, y + 64, 164, 34, p.mid, { rx: 8 }) +
        many(7, (index) => circle(32 + index * 23, y + 81, 5, p.light))
      : path(`M24 ${y + 14}H176L160 ${y + 98}H40Z`, p.deep) + path(`M24 ${y + 14}H176L173 ${y + 30}H27Z`, p.night) + rect(70, y + 50, 60, 24, p.light, { rx: 3 })) +
    rect(0, y + 96, 200, 300, p.deep);
  return { art, sky: p.pop, ground: p.deep };
};

const pie: Scene = ({ p, chance, y }) => {
  const art =
    fill(p.mid) +
    burst(100, y, 18, 112, 86, mix(p.mid, p.light, 0.22)) +
    path(`M62 ${y + 98}Q64 ${y + 60} 100 ${y + 60}T138 ${y + 98}Z`, p.night) +
    ellipse(100, y + 2, 56, 66, mix(p.pop, p.light, 0.4)) +
    path(`M46 ${y - 20}Q40 ${y - 70} 100 ${y - 70}T154 ${y - 20}Q128 ${y - 48} 100 ${y - 46}T46 ${y - 20}Z`, p.night) +
    path(`M100 ${y - 44}Q136 ${y - 46} 140 ${y - 22}Q164 ${y - 8} 146 ${y + 12}Q152 ${y + 40} 128 ${y + 38}V${y + 58}q-6 10-11 0V${y + 46}Q100 ${y + 56} 86 ${y + 46}V${y + 70}q-6 12-11 0V${y + 40}Q48 ${y + 42} 54 ${y + 14}Q36 ${y - 8} 60 ${y - 22}Q64 ${y - 46} 100 ${y - 44}Z`, "#fff8ec") +
    circle(80, y - 6, 8, p.night) +
    circle(122, y - 6, 8, p.night) +
    circle(82, y - 8, 2.6, "#ffffff") +
    circle(124, y - 8, 2.6, "#ffffff") +
    stroke(`M82 ${y + 20}Q100 ${y + 36} 120 ${y + 20}`, p.night, 4, round) +
    many(8, () => circle(chance.between(14, 186), y + chance.between(-90, 90), chance.between(3, 7), "#fff8ec"));
  return { art, sky: p.mid, ground: p.mid };
};

const grin: Scene = ({ p, chance, y }) => {
  const gap = chance.whole(1, 4);
  const art =
    fill(p.pop) +
    path(`M20 ${y - 30}Q100 ${y + 4} 180 ${y - 30}Q180 ${y + 78} 100 ${y + 80}T20 ${y - 30}Z`, p.night) +
    path(`M44 ${y + 54}Q70 ${y + 26} 100 ${y + 40}T156 ${y + 54}Q134 ${y + 78} 100 ${y + 78}T44 ${y + 54}Z`, p.mid) +
    many(6, (index) => (index === gap ? "" : rect(34 + index * 22.4, y - 28 + (2.5 - Math.abs(index - 2.5)) * 4.6, 20, 26, "#fffdf4", { rx: 4 }))) +
    path(`M20 ${y - 30}Q100 ${y + 4} 180 ${y - 30}L180 ${y - 44}Q100 ${y - 10} 20 ${y - 44}Z`, p.mid) +
    circle(62, y - 72, 21, "#ffffff") +
    circle(138, y - 72, 21, "#ffffff") +
    circle(66, y - 68, 10, p.night) +
    circle(132, y - 76, 10, p.night) +
    stroke(`M36 ${y - 100}Q58 ${y - 112} 82 ${y - 102}M118 ${y - 106}Q142 ${y - 120} 166 ${y - 108}`, p.night, 7, round);
  return { art, sky: p.pop, ground: p.pop };
};

const trenchCoat: Scene = ({ p, chance, y }) => {
  const headAt = (top: number, colour: string): string => circle(100, top, 21, colour) + circle(92, top - 3, 3, p.night) + circle(108, top - 3, 3, p.night) + stroke(`M92 ${top + 8}q8 6 16 0`, p.night, 2.4, round);
  const art =
    fill(p.light) +
    circle(100, y, 92, p.mid) +
    path(`M58 ${y + 110}L66 ${y - 34}Q100 ${y - 52} 134 ${y - 34}L142 ${y + 110}Z`, p.deep) +
    path(`M80 ${y - 40}H120L112 ${y + 110}H88Z`, p.night) +
    headAt(y + 66, mix(p.pop, p.light, 0.2)) +
    headAt(y + 8, mix(p.pop, p.night, 0.14)) +
    headAt(y - 54, mix(p.pop, p.light, 0.35)) +
    path(`M66 ${y - 70}Q100 ${y - 58} 134 ${y - 70}L120 ${y - 76}L116 ${y - 100}Q100 ${y - 106} 84 ${y - 100}L80 ${y - 76}Z`, p.night) +
    rect(78, y - 56, 18, 9, p.night, { rx: 3 }) +
    rect(104, y - 56, 18, 9, p.night, { rx: 3 }) +
    stroke(`M70 ${y - 30}L52 ${y + 40}M130 ${y - 30}L${148 + chance.between(-4, 8)} ${y + 40}`, p.deep, 16, round) +
    stroke(`M66 ${y + 36}H134`, p.night, 4);
  return { art, sky: p.light, ground: p.deep };
};

const dog: Scene = ({ p, chance, y }) => {
  const coat = mix(p.pop, p.light, 0.3);
  const art =
    fill(p.mid) +
    circle(100, y - 4, 86, mix(p.mid, p.light, 0.35)) +
    path(`M46 ${y + 106}Q48 ${y + 54} 100 ${y + 50}T154 ${y + 106}Z`, p.night) +
    path(`M84 ${y + 54}L100 ${y + 82}L116 ${y + 54}Z`, "#ffffff") +
    path(`M100 ${y + 62}L74 ${y + 50}V${y + 76}ZM100 ${y + 62}L126 ${y + 50}V${y + 76}Z`, p.deep) +
    path(`M58 ${y - 46}Q24 ${y - 40} 30 ${y + 26}Q46 ${y + 34} 62 ${y - 4}ZM142 ${y - 46}Q176 ${y - 40} 170 ${y + 26}Q154 ${y + 34} 138 ${y - 4}Z`, p.deep) +
    path(`M100 ${y - 64}Q150 ${y - 64} 146 ${y - 4}Q148 ${y + 52} 100 ${y + 54}T54 ${y - 4}Q50 ${y - 64} 100 ${y - 64}Z`, coat) +
    ellipse(100, y + 24, 30, 25, p.light) +
    ellipse(100, y + 8, 12, 8.5, p.night) +
    stroke(`M100 ${y + 16}v10M84 ${y + 28}q16 12 32 0`, p.night, 3, round) +
    path(`M96 ${y + 35}h14q4 18-7 20q-9-2-7-20Z`, "#ef5d6b") +
    circle(78, y - 14, 8, p.night) +
    circle(122, y - 14, 8, p.night) +
    circle(75, y - 17, 2.6, "#ffffff") +
    circle(119, y - 17, 2.6, "#ffffff") +
    (chance.likely(0.5)
      ? path(`M72 ${y - 58}h56l-3-42H75Z`, p.night) + rect(60, y - 64, 80, 8, p.night, { rx: 4 }) + rect(74, y - 74, 52, 9, p.deep)
      : path(`M74 ${y - 56}L100 ${y - 118}L126 ${y - 56}Q100 ${y - 66} 74 ${y - 56}Z`, p.deep) + circle(100, y - 118, 7, p.light) + circle(96, y - 82, 4, p.light) + circle(108, y - 70, 4, p.light));
  return { art, sky: p.mid, ground: p.mid };
};

const googly: Scene = ({ p, chance, y }) => {
  const bread = (x: number): string => path(`M${x - 20} ${y - 30}V${y - 78}Q${x - 22} ${y - 92} ${x} ${y - 92}T${x + 20} ${y - 78}V${y - 30}Z`, "#e8b05a") + path(`M${x - 15} ${y - 30}V${y - 76}Q${x - 15} ${y - 86} ${x} ${y - 86}T${x + 15} ${y - 76}V${y - 30}Z`, "#f9e2b0");
  const art =
    fill(p.light) +
    burst(100, y - 6, 14, 106, 74, p.pop) +
    bread(76) +
    bread(126) +
    path(`M28 ${y + 66}V${y - 20}Q28 ${y - 44} 54 ${y - 44}H146Q172 ${y - 44} 172 ${y - 20}V${y + 66}Q172 ${y + 78} 160 ${y + 78}H40Q28 ${y + 78} 28 ${y + 66}Z`, p.mid) +
    rect(50, y - 40, 50, 6, p.night, { rx: 3 }) +
    rect(104, y - 40, 50, 6, p.night, { rx: 3 }) +
    circle(72, y + 2, 22, "#ffffff") +
    circle(128, y + 2, 22, "#ffffff") +
    circle(72 + chance.between(-9, 9), y + 2 + chance.between(-8, 9), 11, p.night) +
    circle(128 + chance.between(-9, 9), y + 2 + chance.between(-8, 9), 11, p.night) +
    path(`M66 ${y + 40}H134Q128 ${y + 66} 100 ${y + 66}T66 ${y + 40}Z`, p.night) +
    path(`M84 ${y + 58}Q100 ${y + 48} 116 ${y + 58}Q108 ${y + 66} 100 ${y + 66}T84 ${y + 58}Z`, p.pop) +
    rect(170, y - 8, 14, 10, p.night, { rx: 4 }) +
    rect(0, y + 82, 200, 300, p.deep);
  return { art, sky: p.light, ground: p.deep };
};

const flamingo: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const bird =
    stroke("M-6 30V96M10 30L18 58L6 62", p.night, 4.5, round) +
    path("M-46 8Q-34-26 6-18Q34-10 30 14Q22 40-12 38Q-40 36-46 8Z", p.mid) +
    path("M-46 8Q-66 6-64 22Q-48 34-34 28Z", p.mid) +
    stroke("M22 0Q52-14 34-42Q16-64 30-78Q40-86 48-74", p.mid, 13, round) +
    path("M46-82Q62-78 60-58Q52-54 50-66Q44-66 44-74Z", p.night) +
    circle(42, -78, 3, p.night) +
    rect(30, -86, 18, 9, p.night, { rx: 4 }) +
    path("M24-88Q40-100 56-92L52-106Q42-116 34-108Z", p.light);
  const art =
    sky(p.pop, mix(p.pop, p.light, 0.6)) +
    circle(100, y, 80, p.light) +
    group(bird, { transform: `translate(${100 - side * 4} ${y})scale(${side} 1)` }) +
    path(`M0 ${y + 84}${"q12-9 25 0t25 0".repeat(4)}V300H0Z`, p.deep);
  return { art, sky: p.pop, ground: p.deep };
};

const fishbowl: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const fish =
    path("M-30 0Q-20-28 12-24Q40-20 40 2Q38 26 10 26Q-18 26-30 0Z", "#ff8a2b") +
    path("M-26 0L-58-24Q-50 0-58 24Z", "#ff6a1f") + path("M0-24Q8-42 26-34L20-22ZM2 26Q6 40 20 36L16 25Z", "#ff6a1f") +
    circle(14, -8, 13, "#ffffff") + circle(36, -10, 11, "#ffffff") + circle(17, -5, 6, p.night) + circle(36, -13, 5, p.night) +
    stroke("M20 14Q28 8 36 13", p.night, 3, round);
  const art =
    fill(p.pop) +
    burst(100, y, 16, 118, 92, mix(p.pop, p.light, 0.35)) +
    circle(100, y, 80, mix(p.light, "#8fd4ee", 0.5)) +
    path(`M26 ${y - 26}Q60 ${y - 38} 100 ${y - 26}T174 ${y - 26}A80 80 0 0 1 100 ${y + 80}A80 80 0 0 1 26 ${y - 26}Z`, "#4fb3dc") +
    rect(60, y - 88, 80, 14, mix(p.light, "#8fd4ee", 0.5), { rx: 7 }) +
    group(fish, { transform: `translate(${100 + side * 2} ${y + 12})scale(${side * 1.1} 1.1)` }) +
    many(3, (index) => circle(100 + side * (56 - index * 5), y - 6 - index * 13, 5 - index, "#ffffff", { opacity: 0.8 })) +
    stroke(`M46 ${y + 24}Q50 ${y + 54} 76 ${y + 66}`, "#ffffff", 5, { ...round, opacity: 0.6 }) +
    rect(0, y + 78, 200, 300, p.deep);
  return { art, sky: p.pop, ground: p.deep };
};

const prickly: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const plant =
    rect(-28, -52, 56, 116, "#3fa35f", { rx: 28 }) + path("M-28 10H-44Q-58 8-58-8V-20Q-58-30-48-30T-38-20V-10H-28ZM28 24H46Q60 22 60 6V-8Q60-18 50-18T40-8V4H28Z", "#3fa35f") +
    stroke(many(4, (index) => `M-14 ${-34 + index * 24}l-5-4m5 4l-5 4M12 ${-24 + index * 24}l5-4m-5 4l5 4`), "#1f5f3a", 2.4, round) +
    circle(-10, -22, 5, p.night) + circle(10, -22, 5, p.night) + stroke("M-9-8Q0 0 9-8", p.night, 3.4, round) +
    path("M-36 60H36L28 100H-28Z", p.mid) + rect(-40, 54, 80, 14, p.mid, { rx: 4 }) + path("M-18-50L0-96L18-50Z", p.deep) + circle(0, -96, 6, p.light);
  const art =
    fill(p.light) +
    many(22, () => rect(chance.between(4, 192), y + chance.between(-100, 80), 5, 9, chance.pick([p.mid, p.pop, p.deep]), { rx: 1 })) +
    stroke(`M${100 + side * 66} ${y - 22}Q${100 + side * 60} ${y + 40} ${100 + side * 74} ${y + 100}`, p.night, 1.6) +
    path(`M${100 + side * 66} ${y - 22}C${100 + side * 66 - 40} ${y - 52} ${100 + side * 66 - 28} ${y - 98} ${100 + side * 66} ${y - 98}S${100 + side * 66 + 40} ${y - 52} ${100 + side * 66} ${y - 22}Z`, p.pop) +
    group(plant, { transform: `translate(${100 - side * 24} ${y})scale(${side} 1)` }) +
    rect(0, y + 96, 200, 300, p.deep);
  return { art, sky: p.light, ground: p.deep };
};

const dropped: Scene = ({ p, chance, y }) => {
  const art =
    fill(p.mid) +
    circle(100, y, 92, mix(p.mid, p.light, 0.3)) +
    path(`M66 ${y - 2}L100 ${y - 112}L134 ${y - 2}Z`, "#e0a055") +
    stroke(`M76 ${y - 34}L112 ${y - 6}M88 ${y - 72}L128 ${y - 20}M124 ${y - 34}L88 ${y - 6}M112 ${y - 72}L72 ${y - 20}`, "#b8752e", 2.6) +
    path(`M50 ${y + 20}Q48 ${y - 20} 100 ${y - 22}T150 ${y + 20}Q164 ${y + 44} 184 ${y + 62}Q150 ${y + 88} 100 ${y + 82}T14 ${y + 66}Q40 ${y + 46} 50 ${y + 20}Z`, "#fff4ea") +
    path(`M50 ${y + 20}Q48 ${y - 20} 100 ${y - 22}T150 ${y + 20}Q138 ${y + 34} 126 ${y + 18}Q114 ${y + 40} 100 ${y + 20}Q84 ${y + 42} 74 ${y + 18}Q60 ${y + 34} 50 ${y + 20}Z`, p.pop) +
    circle(82, y + 42, 6, p.night) +
    circle(118, y + 42, 6, p.night) +
    stroke(`M88 ${y + 62}Q100 ${y + 52} 112 ${y + 62}`, p.night, 4, round) +
    many(9, () => rect(chance.between(56, 144), y + chance.between(-14, 10), 7, 3, chance.pick([p.deep, p.mid, "#ffffff"]), { rx: 1.5 })) +
    rect(0, y + 82, 200, 300, p.deep) +
    path(`M14 ${y + 66}Q100 ${y + 100} 184 ${y + 62}L176 ${y + 90}Q100 ${y + 108} 24 ${y + 90}Z`, "#fff4ea");
  return { art, sky: p.mid, ground: p.deep };
};

const llama: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const wool = "#fff6e6";
  const beast =
    path("M-34 112V10Q-40-20-30-44H32Q42-14 38 14V112Z", wool) + many(5, (index) => circle(-34 + (index % 2) * 3, -30 + index * 30, 13, wool) + circle(38 - (index % 2) * 3, -26 + index * 30, 13, wool)) +
    path("M-26-70L-32-106Q-16-104-12-76ZM28-70L34-106Q18-104 14-76Z", wool) + ellipse(0, -50, 36, 40, wool) + many(5, (index) => circle(-20 + index * 10, -84 - (index % 2) * 5, 11, wool)) +
    ellipse(0, -28, 23, 19, "#ead3b4") + path("M-7-34H7L0-26Z", p.night) + stroke("M0-26V-19M-9-16Q0-10 12-18", p.night, 3, round) +
    rect(-34, -66, 30, 20, p.night, { rx: 8 }) + rect(4, -66, 30, 20, p.night, { rx: 8 }) + stroke("M-6-60H6M-40-62h80", p.night, 4) + path("M-28-63h10l-8 12h-3ZM10-63h10l-8 12h-3Z", p.light, { opacity: 0.7 }) +
    path("M-38 22Q0 40 42 22L40 44Q0 60-37 44Z", p.mid) + many(6, (index) => path(`M${-30 + index * 12} 48l4 14l4-14Z`, p.deep));
  return {
    art: fill(p.pop) + rays(100, y, 16, mix(p.pop, p.light, 0.35), 0.5) + group(beast, { transform: `translate(100 ${y + 2})scale(${side} 1)` }) + rect(0, y + 100, 200, 300, p.deep),
    sky: p.pop,
    ground: p.deep,
  };
};

export const comedy: readonly Scene[] = [
  disguise, banana, duck, legsUp, pie, grin, trenchCoat, dog, googly, flamingo, fishbowl, prickly, dropped, llama,
];

const guitar: Scene = ({ p, chance, y }) => {
  const body =
    rect(-6, -104, 12, 96, p.night) + path("M-11-124H11L8-98H-8Z", p.night) + stroke("M-14-118h28M-14-108h28", p.light, 3) +
    path("M0-22C30-26 32 2 26 14C48 30 42 76 0 76S-48 30-26 14C-32 2-30-26 0-22Z", p.mid) +
    path("M0-22C30-26 32 2 26 14C48 30 42 76 0 76Z", mix(p.mid, p.night, 0.18)) +
    circle(0, 16, 14, p.night) + rect(-16, 50, 32, 6, p.night, { rx: 2 }) + stroke("M-3-100V50M0-100V50M3-100V50", p.light, 0.8);
  const art =
    fill(p.deep) +
    rays(100, y, 18, mix(p.deep, p.pop, 0.85), 0.5) +
    circle(100, y + 8, 62, p.pop) +
    at(100, y + 14, body, 1.02, chance.likely(0.5) ? 28 : -28);
  return { art, sky: mix(p.deep, p.pop, 0.3), ground: mix(p.deep, p.pop, 0.3) };
};

const vinyl: Scene = ({ p, chance, y }) => {
  const x = chance.likely(0.5) ? 60 : 140;
  const art =
    fill(p.pop) +
    circle(x, y, 100, p.night) +
    many(7, (index) => circle(x, y, 92 - index * 8, "none", { stroke: mix(p.night, p.light, 0.22), "stroke-width": 1 })) +
    path(`M${x} ${y}L${x + 84} ${y - 54}A100 100 0 0 1 ${x + 98} ${y - 16}ZM${x} ${y}L${x - 84} ${y + 54}A100 100 0 0 1 ${x - 98} ${y + 16}Z`, p.light, { opacity: 0.2 }) +
    circle(x, y, 34, p.mid) +
    circle(x, y, 22, p.light) +
    person(x, y + 17, 34, p.night, poses.arms) +
    stroke(`M${200 - x + (x < 100 ? 44 : -44)} ${y - 96}L${200 - x + (x < 100 ? 26 : -26)} ${y + 20}L${100 + (x < 100 ? -2 : 2)} ${y + 52}`, p.deep, 7, round) +
    circle(200 - x + (x < 100 ? 44 : -44), y - 92, 13, p.deep);
  return { art, sky: p.pop, ground: p.pop };
};

const microphone: Scene = ({ p, chance, y }) => {
  const art =
    sky(p.night, p.deep) +
    path(`M-20 ${y - 140}H30L130 ${y + 110}H20ZM220 ${y - 140}H170L70 ${y + 110}H180Z`, p.mid, { opacity: 0.45 }) +
    many(4, (index) => circle(100, y - 22, 56 + index * 20, "none", { stroke: p.pop, "stroke-width": 4 - index * 0.8, opacity: 0.9 - index * 0.2 })) +
    rect(64, y - 84, 72, 96, p.light, { rx: 36 }) +
    path(`M64 ${y - 32}H136V${y - 22}H64Z`, p.night) +
    stroke(many(4, (index) => `M70 ${y - 72 + index * 10}h60`), p.night, 3) +
    stroke(many(3, (index) => `M${82 + index * 18} ${y - 16}v22`), p.night, 4) +
    stroke(`M56 ${y - 20}V${y - 10}Q56 ${y + 28} 100 ${y + 28}T144 ${y - 10}V${y - 20}M100 ${y + 28}V${y + 110}`, p.pop, 6, round) +
    many(5, (index) => circle(20 + index * 40, y + 120 + (index % 2) * 5, 24, p.night)) +
    rect(0, y + 116, 200, 300, p.night) +
    stars(chance, 12, y, p.light);
  return { art, sky: p.night, ground: p.night };
};

const keys: Scene = ({ p, chance, y }) => {
  const art =
    sky(p.deep, p.mid) +
    circle(100 + chance.between(-30, 30), y - 34, 44, p.pop) +
    path(`M100 ${y - 12}L230 300H-30Z`, p.light) +
    stroke(many(9, (index) => `M100 ${y - 12}L${-110 + index * 52} 300`), p.night, 1.2) +
    path(many(8, (index) => `M100 ${y - 12}L${-100 + index * 52 + 8} 262h28Z`), p.night) +
    person(100, y + 40, 62, p.deep, poses.walking) +
    rect(0, y + 92, 200, 300, p.night);
  return { art, sky: p.deep, ground: p.night };
};

const trumpet: Scene = ({ p, chance, y }) => {
  const note = (x: number, top: number, s: number): string => at(x, top, ellipse(0, 0, 8, 6, p.night) + stroke("M7-2V-34Q20-30 18-16", p.night, 3.4), s);
  const horn = path("M-84-7H16Q48-12 66-44Q76-42 76-30V30Q76 42 66 44Q48 12 16 7H-84Z", p.pop) + rect(-92, -11, 12, 22, p.pop, { rx: 4 }) +
    many(3, (index) => rect(-38 + index * 18, -28, 10, 56, mix(p.pop, p.night, 0.24), { rx: 3 }) + rect(-40 + index * 18, -36, 14, 8, p.light, { rx: 3 })) + stroke("M-56 7Q-66 32-40 32H10Q30 30 26 8", p.pop, 7);
  const art =
    fill(p.light) +
    path(`M0 0H200V${y - 40}L0 ${y + 50}Z`, p.mid) +
    at(96, y + 6, horn, 1.04, -28) +
    note(150, y - 74, 1) +
    note(178, y - 36, 0.8) +
    note(120 + chance.between(-8, 8), y - 92, 0.7) +
    rect(0, y + 104, 200, 300, p.deep);
  return { art, sky: p.mid, ground: p.deep };
};

export const music: readonly Scene[] = [guitar, vinyl, microphone, keys, trumpet];

const floodlights: Scene = ({ p, chance, y }) => {
  const mast = (x: number): string => stroke(`M${x} ${y + 70}V${y - 60}`, p.night, 4) + rect(x - 20, y - 86, 40, 28, p.night, { rx: 3 }) + many(6, (index) => circle(x - 12 + (index % 3) * 12, y - 78 + Math.floor(index / 3) * 12, 4.4, p.light));
  const art =
    sky(p.night, p.deep, p.mid) +
    path(`M30 ${y - 72}L-40 300H140ZM170 ${y - 72}L240 300H60Z`, p.light, { opacity: 0.2 }) +
    mast(30) +
    mast(170) +
    path(`M0 ${y + 30}Q100 ${y + 8} 200 ${y + 30}V300H0Z`, mix(p.deep, p.night, 0.4)) +
    many(26, (index) => circle(4 + index * 8, y + 40 + (index % 3) * 7, 3, mix(p.mid, p.night, 0.3))) +
    path(`M0 ${y + 64}H200V300H0Z`, p.pop) +
    stroke(`M-20 ${y + 108}L60 ${y + 64}M220 ${y + 108}L140 ${y + 64}`, p.light, 3) +
    person(100, y + 92, 104, p.night, poses.arms) +
    circle(100 + chance.between(-3, 3), y - 56, 13, p.light) +
    path(`M0 ${y + 96}H200V300H0Z`, mix(p.pop, p.night, 0.55));
  return { art, sky: p.night, ground: mix(p.pop, p.night, 0.55) };
};

const boxing: Scene = ({ p, chance, y }) => {
  const glove = path("M-30 44V20Q-52 4-46-22Q-38-56 2-54Q40-52 42-16Q42 6 26 20V44Z", p.mid) + path("M-34 14Q-56 8-54-14Q-50-30-34-22Q-26-10-30 6Z", p.mid) + stroke("M-30 6Q-24-10-34-22M-18-38Q4-46 28-34", p.night, 3, round) + rect(-34, 42, 64, 24, p.light, { rx: 4 }) + stroke("M-2 44v20", p.night, 2);
  const art =
    fill(p.deep) +
    burst(100, y - 8, 16, 120, 70, p.pop) +
    burst(100, y - 8, 12, 60, 38, p.light) +
    group(glove, { transform: `translate(52 ${y + 4})rotate(${n(62 + chance.between(-8, 8))})scale(1.05)` }) +
    group(glove.replaceAll(p.mid, p.night).replaceAll(`stroke="${p.night}"`, `stroke="${p.light}"`), { transform: `translate(150 ${y + 4})scale(-1 1)rotate(${n(62 + chance.between(-8, 8))})scale(1.05)` });
  return { art, sky: p.deep, ground: p.deep };
};

const track: Scene = ({ p, chance, y }) => {
  const x = chance.likely(0.5) ? 92 : 108;
  const art =
    sky(p.pop, p.light) +
    path(`M0 ${y - 20}Q100 ${y - 34} 200 ${y - 20}V${y + 10}H0Z`, p.deep) +
    path(`M-10 300L80 ${y + 4}H120L210 300Z`, p.mid) +
    rect(0, y + 2, 200, 4, p.deep) +
    path(`M0 ${y + 4}H80L-60 300H0ZM200 ${y + 4}H120L260 300H200Z`, mix(p.mid, p.night, 0.3)) +
    stroke(many(5, (index) => `M${84 + index * 8} ${y + 4}L${-20 + index * 60} 300`), p.light, 2.4) +
    stroke(`M30 ${y - 14}H170`, p.light, 5) +
    person(x, y + 84, 128, p.night, poses.running) +
    rect(0, y + 98, 200, 300, p.night);
  return { art, sky: p.pop, ground: p.night };
};

const racket: Scene = ({ p, chance, y }) => {
  const hoop = chance.likely(0.45);
  const ball = (x: number, top: number, r: number): string =>
    circle(x, top, r, hoop ? "#e9772e" : "#d9ef3f") +
    (hoop
      ? stroke(`M${x - r} ${top}H${x + r}M${x} ${top - r}V${top + r}M${x - r * 0.75} ${top - r * 0.66}Q${x - r * 0.2} ${top} ${x - r * 0.75} ${top + r * 0.66}M${x + r * 0.75} ${top - r * 0.66}Q${x + r * 0.2} ${top} ${x + r * 0.75} ${top + r * 0.66}`, p.night, 2.4)
      : stroke(`M${x - r * 0.8} ${top - r * 0.6}Q${x} ${top} ${x - r * 0.8} ${top + r * 0.6}M${x + r * 0.8} ${top - r * 0.6}Q${x} ${top} ${x + r * 0.8} ${top + r * 0.6}`, "#ffffff", 3));
  const net = stroke(many(7, (index) => `M${-28 + index * 9}-50V50M-34 ${-42 + index * 14}H34`), p.light, 1.2);
  const art =
    fill(p.mid) +
    path(`M0 ${y + 60}L200 ${y - 40}V300H0Z`, p.deep) +
    stroke(`M0 ${y + 76}L200 ${y - 24}`, p.light, 4) +
    (hoop
      ? rect(40, y - 90, 120, 82, p.light, { rx: 4 }) + rect(76, y - 54, 48, 36, "none", { stroke: p.night, "stroke-width": 4 }) + ellipse(100, y - 4, 32, 8, "none", { stroke: p.pop, "stroke-width": 6 }) + stroke(many(6, (index) => `M${70 + index * 12} ${y - 2}L${80 + index * 8} ${y + 40}`), p.light, 2) + ball(122, y + 62, 30)
      : group(ellipse(0, 0, 38, 54, "none", { stroke: p.night, "stroke-width": 9 }) + net + rect(-6, 54, 12, 66, p.night, { rx: 5 }) + stroke("M-14 50L0 68L14 50", p.night, 6), { transform: `translate(76 ${y - 12})rotate(28)` }) + ball(150, y + 34, 27));
  return { art, sky: p.mid, ground: p.deep };
};

const trophy: Scene = ({ p, y }) => {
  const art =
    fill(p.deep) +
    rays(100, y - 10, 20, mix(p.deep, p.mid, 0.6), 0.5) +
    circle(100, y - 14, 76, p.mid) +
    stroke(`M62 ${y - 52}Q22 ${y - 54} 32 ${y - 20}Q40 ${y + 4} 74 ${y + 2}M138 ${y - 52}Q178 ${y - 54} 168 ${y - 20}Q160 ${y + 4} 126 ${y + 2}`, p.pop, 8) +
    path(`M56 ${y - 70}H144Q146 ${y + 20} 110 ${y + 30}V${y + 52}H128V${y + 66}H72V${y + 52}H90V${y + 30}Q54 ${y + 20} 56 ${y - 70}Z`, p.pop) +
    path(`M100 ${y - 70}H144Q146 ${y + 20} 110 ${y + 30}V${y + 66}H100Z`, mix(p.pop, p.night, 0.16)) +
    burst(100, y - 26, 5, 24, 10, p.light) +
    rect(56, y + 66, 88, 30, p.night, { rx: 3 }) +
    rect(0, y + 94, 200, 300, p.night);
  return { art, sky: p.deep, ground: p.night };
};

export const sport: readonly Scene[] = [floodlights, boxing, track, racket, trophy];
