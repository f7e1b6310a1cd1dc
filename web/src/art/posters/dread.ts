// Scenes of thrillers, horror films, crime stories and mysteries.

import { circle, ellipse, group, many, mix, n, path, rect, stroke } from "../svg";
import { at, burst, fill, firs, hills, moon, peaks, person, poses, round, shadow, sky, skyline, stars } from "./stage";
import type { Scene } from "./stage";

const crosshair: Scene = ({ p, chance, y }) => {
  const art =
    fill(p.night) +
    circle(100, y, 78, p.pop) +
    path(`M28 ${y + 30}H172A78 78 0 0 1 28 ${y + 30}Z`, mix(p.pop, p.deep, 0.55)) +
    group(person(0, 0, 74, p.night, poses.running), { transform: `translate(${96 + chance.between(-8, 8)} ${y + 44})scale(${chance.likely(0.5) ? 1 : -1} 1)` }) +
    circle(100, y, 78, "none", { stroke: p.light, "stroke-width": 4 }) +
    circle(100, y, 40, "none", { stroke: p.light, "stroke-width": 1.4 }) +
    stroke(`M100 ${y - 96}V${y - 22}M100 ${y + 96}V${y + 22}M4 ${y}H78M196 ${y}H122`, p.light, 2.6) +
    circle(100, y, 3, p.light);
  return { art, sky: p.night, ground: p.night };
};

const spiral: Scene = ({ p, chance, y }) => {
  const turn = chance.between(0, 360);
  const arms = many(6, (arm) => {
    const points = (offset: number): string[] =>
      Array.from({ length: 22 }, (_, index) => {
        const angle = arm * 1.047 + offset + index * 0.2;
        const r = 4 * 1.28 ** index;
        return `${n(Math.cos(angle) * r)} ${n(Math.sin(angle) * r)}`;
      });
    return path(`M${points(0).join("L")}L${points(0.5).reverse().join("L")}Z`, p.pop);
  });
  const art =
    fill(p.night) +
    group(arms, { transform: `translate(100 ${y})rotate(${n(turn)})` }) +
    at(100, y + 26, person(0, 0, 66, p.light, poses.falling), 1, chance.between(-30, 30));
  return { art, sky: mix(p.night, p.pop, 0.3), ground: mix(p.night, p.pop, 0.3) };
};

const corridor: Scene = ({ p, y }) => {
  const art =
    fill(p.night) +
    path(`M0 ${y - 150}L74 ${y - 44}V${y + 32}L0 300Z`, p.deep) +
    path(`M200 ${y - 150}L126 ${y - 44}V${y + 32}L200 300Z`, mix(p.deep, p.night, 0.45)) +
    path(`M0 300L74 ${y + 32}H126L200 300Z`, mix(p.deep, p.mid, 0.4)) +
    many(3, (index) => path(`M${58 - index * 22} ${y - 26 - index * 26}l-${9 + index * 3}-${10 + index * 5}V${y + 52 + index * 46}l${9 + index * 3}-${12 + index * 10}Z`, p.night)) +
    many(3, (index) => path(`M${142 + index * 22} ${y - 26 - index * 26}l${9 + index * 3}-${10 + index * 5}V${y + 52 + index * 46}l-${9 + index * 3}-${12 + index * 10}Z`, p.night)) +
    rect(74, y - 44, 52, 76, p.pop) +
    shadow(100, y + 32, 4, 120, 0, p.night) +
    person(100, y + 33, 56, p.night, poses.coat);
  return { art, sky: p.night, ground: mix(p.deep, p.night, 0.5) };
};

const camera: Scene = ({ p, chance, y }) => {
  const x = chance.between(96, 126);
  const art =
    fill(p.deep) +
    path(`M52 ${y - 54}L${n(x - 52)} ${y + 92}H${n(x + 62)}Z`, p.pop, { opacity: 0.92 }) +
    at(44, y - 62, rect(-34, -44, 8, 40, p.night) + stroke("M-30-24L-12-10", p.night, 6) + rect(-26, -20, 56, 27, p.night, { rx: 4 }) + rect(28, -15, 12, 17, p.light) + circle(-14, -6, 3.4, p.pop), 1.05, 34) +
    path(`M0 ${y + 84}H200V300H0Z`, p.night) +
    shadow(x, y + 84, 3, 36, 30, mix(p.night, "#000000", 0.6)) +
    person(x, y + 88, 58, p.night, poses.walking);
  return { art, sky: p.deep, ground: p.night };
};

const shattered: Scene = ({ p, chance, y }) => {
  const x = chance.between(88, 112);
  const crack = (angle: number, length: number): string =>
    `M${n(x)} ${n(y - 12)}L${n(x + Math.cos(angle) * length * 0.4 + 5)} ${n(y - 12 + Math.sin(angle) * length * 0.4 - 5)}L${n(x + Math.cos(angle + 0.12) * length)} ${n(y - 12 + Math.sin(angle + 0.12) * length)}`;
  const art =
    fill(p.mid) +
    path(`M18 ${y}Q100 ${y - 96} 182 ${y}Q100 ${y + 96} 18 ${y}Z`, p.light) +
    circle(100, y, 45, p.deep) +
    circle(100, y, 45, "none", { stroke: p.night, "stroke-width": 6 }) +
    circle(100, y, 22, p.night) +
    person(100, y + 20, 36, p.pop, poses.standing) +
    stroke(`M10 ${y - 6}Q100 ${y - 112} 190 ${y - 6}`, p.night, 9, round) +
    stroke(many(11, (index) => crack(index * 0.571, 130)), p.night, 1.8) +
    path(`M${n(x)} ${n(y - 12)}l40-34l12 12ZM${n(x)} ${n(y - 12)}l-52 16l-4-12ZM${n(x)} ${n(y - 12)}l8 58l-12 2Z`, p.pop, { opacity: 0.9 }) +
    rect(0, y + 108, 200, 300, p.night);
  return { art, sky: p.mid, ground: p.night };
};

const stairs: Scene = ({ p, chance, y }) => {
  const flights = many(8, (index) => {
    const s = 118 - index * 14.5;
    return group(
      rect(-s, -s, 2 * s, 2 * s, index % 2 === 0 ? p.deep : mix(p.deep, p.mid, 0.4)) +
        path(`M${n(-s)} ${n(-s)}H${n(s)}L${n(s - 9)} ${n(-s + 9)}H${n(-s + 9)}Z`, p.light, { opacity: 0.5 }),
      { transform: `rotate(${index * 9})` },
    );
  });
  const art =
    fill(p.night) +
    at(100, y, flights, 1, chance.between(0, 40)) +
    circle(100, y, 12, p.pop) +
    at(100, y + 5, person(0, 0, 16, p.night, poses.falling)) +
    path(`M0 ${y - 112}V0H200V${y - 112}Q100 ${y - 90} 0 ${y - 112}ZM0 ${y + 112}V300H200V${y + 112}Q100 ${y + 90} 0 ${y + 112}Z`, p.night);
  return { art, sky: p.night, ground: p.night };
};

export const thriller: readonly Scene[] = [crosshair, spiral, corridor, camera, shattered, stairs];

const bat = (x: number, y: number, scale: number, colour: string): string =>
  at(x, y, path("M0 2Q-4-4-3-8L0-5L3-8Q4-4 0 2ZM-2-1Q-10-12-24-8Q-18-4-18 3Q-12-1-9 5Q-5 1 0 5Q5 1 9 5Q12-1 18 3Q18-4 24-8Q10-12 2-1Z", colour), scale);

const hauntedHouse: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const house =
    path("M-40 0V-40L-46-42L-24-74L-6-48V-64L-12-66L10-110L32-66L26-64V-34L36-54L56-28L50-26V0Z", p.night) +
    path("M-30-34h10v14h-10ZM4-84q6-8 12 0v12H4ZM34-22h8v11h-8ZM-2-34h11v16H-2Z", p.pop) +
    path("M6 0v-14q5-6 10 0V0Z", p.pop);
  const art =
    sky(p.night, p.deep, p.mid) +
    circle(100 - side * 18, y - 22, 56, p.light) +
    path(`M-10 ${y + 96}Q50 ${y + 60} ${100 + side * 10} ${y + 42}Q150 ${y + 58} 210 ${y + 96}V300H-10Z`, p.night) +
    group(house, { transform: `translate(${100 + side * 6} ${y + 50})scale(${side} 1)` }) +
    stroke(`M${100 - side * 66} ${y + 84}q${side * 6}-40-8-60q-10-6-14-20M${100 - side * 66} ${y + 50}q12-14 20-16`, p.night, 4, round) +
    bat(100 - side * 44, y - 46, 0.9, p.night) +
    bat(100 + side * 62, y - 62, 0.6, p.night) +
    bat(100 - side * 70, y - 76, 0.45, p.light);
  return { art, sky: p.night, ground: p.night };
};

const fromTheGrave: Scene = ({ p, chance, y }) => {
  const hand = path(
    "M-17 110V34L-35 8Q-43-4-34-8Q-27-10-21 0L-14 10L-17-44Q-16-53-10-52Q-5-51-5-44L-3-2L0-60Q1-68 6-67Q12-66 11-58L9-2L17-50Q19-58 25-56Q30-54 28-46L20 4L31-24Q35-31 40-28Q44-25 41-18L26 34L20 110Z",
    p.night,
  );
  const stone = path("M-26 0V-40Q-26-62 0-62T26-40V0Z", mix(p.deep, p.night, 0.5));
  const art =
    sky(p.deep, p.mid, p.pop) +
    moon(100, y - 6, 62, p.light, p.pop) +
    at(34, y + 78, stone, 0.9, -6) +
    at(172, y + 74, stone, 0.7, 7) +
    at(100, y + 26, hand, 1.05, chance.between(-10, 10)) +
    path(`M0 ${y + 76}Q40 ${y + 64} 74 ${y + 74}L84 ${y + 66}L96 ${y + 76}L112 ${y + 66}L124 ${y + 74}Q170 ${y + 62} 200 ${y + 78}V300H0Z`, mix(p.night, "#000000", 0.3));
  return { art, sky: p.deep, ground: mix(p.night, "#000000", 0.3) };
};

const eyes: Scene = ({ p, chance, y }) => {
  const pair = (x: number, top: number, s: number, colour: string): string =>
    at(x, top, path("M-12-3Q-5-9-2 1Q-10 4-12-3ZM12-3Q5-9 2 1Q10 4 12-3Z", colour) + ellipse(-6, -2, 1.1, 2.6, p.night) + ellipse(6, -2, 1.1, 2.6, p.night), s);
  const spots: readonly (readonly [number, number, number])[] = [
    [40, -58, 1.3], [112, -74, 1], [168, -44, 1.5], [76, -22, 0.9], [136, -12, 1.1], [26, 0, 1], [178, 14, 0.8],
  ];
  const art =
    fill(p.night) +
    firs(chance, y + 74, 170, mix(p.night, p.deep, 0.45)) +
    spots.map(([x, dy, s]) => pair(x, y + dy + chance.between(-6, 6), s, p.pop)).join("") +
    circle(108, y + 58, 34, p.pop, { opacity: 0.3 }) +
    circle(108, y + 58, 20, p.light, { opacity: 0.5 }) +
    path(`M0 ${y + 84}Q100 ${y + 74} 200 ${y + 84}V300H0Z`, mix(p.night, p.deep, 0.2)) +
    person(94, y + 86, 48, "#000000", poses.coat) +
    rect(104, y + 56, 7, 10, p.light, { rx: 2 });
  return { art, sky: p.night, ground: mix(p.night, p.deep, 0.2) };
};

const skull: Scene = ({ p, chance, y }) => {
  const head = "M0-72C-46-72-62-40-58-8C-56 8-46 14-44 24Q-42 38-30 38V58Q-16 66 0 66T30 58V38Q42 38 44 24C46 14 56 8 58-8C62-40 46-72 0-72Z";
  const side = chance.likely(0.5) ? 1 : -1;
  const art =
    fill(p.deep) +
    circle(100, y - 4, 88, mix(p.deep, p.pop, 0.6)) +
    group(
      path(head, p.light) +
        path("M0-72C46-72 62-40 58-8C56 8 46 14 44 24Q42 38 30 38V58Q16 66 0 66Z", mix(p.light, p.night, 0.28)) +
        path("M-44-10Q-42-30-22-28Q-6-24-10-6Q-16 10-32 8Q-44 4-44-10ZM44-10Q42-30 22-28Q6-24 10-6Q16 10 32 8Q44 4 44-10Z", p.night) +
        path("M0 4L-9 24Q-4 28 0 22Q4 28 9 24Z", p.night) +
        stroke("M-18 42V60M-6 44V64M6 44V64M18 42V60M-26 42H26", p.night, 3) +
        circle(-26, -8, 4.4, p.pop),
      { transform: `translate(100 ${y})scale(${side * 1.08} 1.08)` },
    );
  return { art, sky: p.deep, ground: p.deep };
};

const doorAjar: Scene = ({ p, y }) => {
  const art =
    fill(p.night) +
    path(`M84 ${y + 58}H116L176 300H20Z`, p.pop) +
    rect(80, y - 70, 46, 130, p.pop) +
    path(`M126 ${y - 70}L156 ${y - 84}V${y + 76}L126 ${y + 60}Z`, p.deep) +
    circle(151, y + 2, 3, p.light) +
    person(103, y + 60, 106, p.night, poses.coat) +
    path(`M97 ${y - 40}l-9-14M109 ${y - 40}l9-14`, "none", { stroke: p.night, "stroke-width": 5 }) +
    stroke(`M82 ${y + 14}l-7 12l-4-2M75 ${y + 26}l2 7M75 ${y + 26}l-2 6M124 ${y + 14}l7 12l4-2M131 ${y + 26}l-2 7M131 ${y + 26}l2 6`, p.night, 2.6, round) +
    shadow(103, y + 60, 8, 120, 0, p.night) +
    circle(99, y - 37, 2, p.pop) +
    circle(107, y - 37, 2, p.pop);
  return { art, sky: p.night, ground: mix(p.night, p.pop, 0.3) };
};

const fangs: Scene = ({ p, y }) => {
  const tooth = (x: number, top: number, w: number, h: number): string => `M${x - w} ${top}Q${x} ${top + 3} ${x + w} ${top}L${x} ${top + h}Z`;
  const art =
    fill(p.night) +
    path(`M0 ${y - 64}Q100 ${y - 124} 200 ${y - 64}V${y + 74}Q100 ${y + 120} 0 ${y + 74}Z`, p.pop) +
    path(`M0 ${y - 50}Q100 ${y - 92} 200 ${y - 50}V${y + 60}Q100 ${y + 90} 0 ${y + 60}Z`, mix(p.night, p.pop, 0.14)) +
    path([14, 44, 72, 100, 128, 156, 186].map((x, index) => tooth(x, y - 74 + Math.abs(3 - index) * 6, 14, index === 1 || index === 5 ? 70 : 36)).join(""), p.light) +
    path([28, 58, 86, 114, 142, 172].map((x, index) => tooth(x, y + 84 - Math.abs(2.5 - index) * 5, 13, index === 1 || index === 4 ? -54 : -30)).join(""), p.light) +
    person(100, y + 50, 36, p.pop, poses.standing) +
    path(`M0 0H200V${y - 64}Q100 ${y - 124} 0 ${y - 64}Z`, p.night);
  return { art, sky: p.night, ground: p.night };
};

export const horror: readonly Scene[] = [hauntedHouse, fromTheGrave, eyes, skull, doorAjar, fangs];

const lineUp: Scene = ({ p, chance, y }) => {
  const foot = y + 74;
  const marked = chance.whole(0, 3);
  const art =
    fill(p.light) +
    many(8, (index) => rect(0, y - 92 + index * 22, 200, index % 2 === 0 ? 3 : 1.2, mix(p.light, p.night, 0.4))) +
    many(4, (index) =>
      person(31 + index * 46, foot, [118, 132, 106, 140][index]!, index === marked ? p.pop : p.night, index % 2 === 0 ? poses.coat : poses.standing, ["fedora", "", "", "fedora"][index]),
    ) +
    rect(0, foot - 2, 200, 300, p.deep);
  return { art, sky: p.light, ground: p.deep };
};

const fingerprint: Scene = ({ p, chance, y }) => {
  const ridges = many(8, (index) => {
    const r = 8 + index * 8.6;
    return `M${n(-r)} ${n(r * 0.5 + 14 + index * 3)}V${n(-4)}A${n(r)} ${n(r * 1.08)} 0 0 1 ${n(r)} -4V${n(r * 0.5 + 6 + index * 4)}`;
  });
  const art =
    fill(p.pop) +
    at(100, y, stroke(ridges, p.night, 4.6, { ...round, "stroke-dasharray": `${n(chance.between(46, 70))} 7 ${n(chance.between(18, 30))} 6` }), 1.05, chance.between(-14, 14)) +
    at(100, y, stroke("M-66 84Q-20 66 20 88M-50 96Q-14 84 24 100", p.night, 4.6, round)) +
    rect(0, y + 108, 200, 300, p.night);
  return { art, sky: p.pop, ground: p.night };
};

const handcuffs: Scene = ({ p, chance, y }) => {
  const cuff = (x: number, top: number, turn: number): string =>
    at(x, top, circle(0, 0, 38, "none", { stroke: p.light, "stroke-width": 13 }) + circle(0, 0, 38, "none", { stroke: mix(p.light, p.night, 0.35), "stroke-width": 3 }) + rect(-15, 30, 30, 20, p.light, { rx: 4 }) + circle(0, 38, 3.4, p.night) + rect(-1.4, 38, 2.8, 8, p.night), 1, turn);
  const art =
    fill(p.deep) +
    path(`M0 ${y + 100}L200 ${y - 110}V300H0Z`, p.night) +
    stroke(`M84 ${y - 4}l10 10M96 ${y + 8}l10 8M108 ${y + 18}l8 10`, p.pop, 7, round) +
    cuff(62, y - 34, -46 + chance.between(-8, 8)) +
    cuff(138, y + 42, 136 + chance.between(-8, 8));
  return { art, sky: p.deep, ground: p.night };
};

const burglar: Scene = ({ p, y }) => {
  const art =
    fill(p.pop) +
    path(`M38 ${y + 104}V${y - 14}Q40 ${y - 84} 100 ${y - 84}T162 ${y - 14}V${y + 104}Z`, p.night) +
    path(`M50 ${y - 20}Q100 ${y - 42} 150 ${y - 20}Q152 ${y + 8} 100 ${y + 2}Q48 ${y + 8} 50 ${y - 20}Z`, p.light) +
    circle(77, y - 12, 9, p.night) +
    circle(123, y - 12, 9, p.night) +
    circle(80, y - 15, 2.6, p.light) +
    circle(126, y - 15, 2.6, p.light) +
    stroke(`M58 ${y - 28}L90 ${y - 22}M142 ${y - 28}L110 ${y - 22}`, p.night, 5, round) +
    path(`M76 ${y + 38}Q100 ${y + 28} 124 ${y + 38}Q100 ${y + 52} 76 ${y + 38}Z`, p.light) +
    stroke(`M80 ${y + 39}h40`, p.night, 1.6) +
    stroke(`M46 ${y + 66}H154M44 ${y + 82}H156`, p.deep, 5) +
    rect(0, y + 98, 200, 300, p.deep);
  return { art, sky: p.pop, ground: p.deep };
};

const revolver: Scene = ({ p, chance, y }) => {
  const gun =
    path("M-78-30H52Q60-30 60-22V-10H14Q16 4 2 8L-8 6Q-16 6-18 12L-36 62Q-40 70-50 68L-66 64Q-74 60-70 52L-48 0Q-56-8-70-10L-82-20Q-84-30-78-30Z", p.night) +
    rect(-28, -26, 34, 18, p.pop, { rx: 3 }) +
    stroke("M-20-22V-12M-11-22V-12M-2-22V-12", p.night, 2.6) +
    stroke("M-10 8Q-8 26 6 24Q14 18 6 8", p.night, 4) +
    rect(48, -36, 7, 7, p.night);
  const art =
    fill(p.light) +
    burst(168, y - 22, 11, 62, 26, p.pop) +
    burst(168, y - 22, 9, 34, 15, p.mid) +
    at(84, y, gun, 1.12, chance.between(-4, 4)) +
    rect(0, y + 100, 200, 300, p.deep);
  return { art, sky: p.light, ground: p.deep };
};

const outline: Scene = ({ p, chance, y }) => {
  const pose = chance.likely(0.5) ? poses.falling : poses.arms;
  const shape = (colour: string, more: number): string =>
    circle(pose.lean, -9.15, 0.95 + more / 2, colour) +
    path(pose.trunk, colour, { stroke: colour, "stroke-width": more, "stroke-linejoin": "round" }) +
    stroke(pose.legs, colour, 1.2 + more, round) +
    stroke(pose.arms, colour, 0.9 + more, round);
  const tape = (top: number, turn: number): string =>
    at(100, top, rect(-150, -9, 300, 19, p.pop) + path(many(12, (index) => `M${-150 + index * 26}-9h12l-8 19h-12Z`), p.night), 1, turn);
  const art =
    fill(p.deep) +
    many(7, (index) => rect(0, y - 100 + index * 32, 200, 1.4, mix(p.deep, p.night, 0.5))) +
    group(shape(p.light, 0.75) + shape(p.deep, 0), { transform: `translate(96 ${y + 56})scale(11.5)` }) +
    tape(y - 74, -9) +
    tape(y + 86, 6) +
    at(158, y + 44, path("M-12 10L-8-14H8L12 10Z", p.pop) + rect(-3, -9, 6, 13, p.night));
  return { art, sky: p.deep, ground: p.deep };
};

const heist: Scene = ({ p, chance, y }) => {
  const art =
    fill(p.night) +
    path(`M60 ${y + 96}L100 ${y - 120}L140 ${y + 96}Z`, mix(p.night, p.deep, 0.8)) +
    stroke(many(7, () => `M${chance.between(-10, 20)} ${n(y + chance.between(-90, 80))}L210 ${n(y + chance.between(-90, 80))}`), p.mid, 1.8) +
    at(100, y - 2, path("M-46-18L-28-42H28L46-18L0 42Z", p.light) + path("M-46-18H46L0 42Z", p.pop) + path("M-16-18L0 42L16-18L28-42H10L0-18L-10-42H-28Z", mix(p.pop, p.light, 0.55)) + path("M-16-18H16L0 42Z", p.light), 1.05) +
    path(`M62 ${y + 62}h76l8 12H54ZM58 ${y + 78}h84v60H58Z`, p.deep) +
    stroke(`M100 ${y - 140}V${y - 86}`, p.light, 1.4) +
    group(person(0, 0, 46, p.mid === p.night ? p.pop : p.light, poses.falling), { transform: `translate(100 ${y - 98})rotate(180)` });
  return { art, sky: p.night, ground: p.night };
};

export const crime: readonly Scene[] = [lineUp, fingerprint, handcuffs, burglar, revolver, outline, heist];

const magnifier: Scene = ({ p, chance, y }) => {
  const foot = (x: number, top: number, turn: number, s: number, colour: string): string =>
    at(x, top, path("M-7-6Q-9-22 0-24Q9-22 7-6Q6 4 0 4T-7-6Z", colour) + ellipse(0, 13, 5.4, 6.4, colour), s, turn);
  const side = chance.likely(0.5) ? 1 : -1;
  const art =
    fill(p.deep) +
    many(6, (index) => foot(100 + side * (-66 + index * 26) + (index % 2) * 12, y + 96 - index * 34, side * 32, 0.8, mix(p.deep, p.night, 0.55))) +
    stroke(`M${100 + side * 38} ${y + 38}L${100 + side * 74} ${y + 82}`, p.night, 17, round) +
    circle(100, y - 8, 62, p.light) +
    foot(94, y - 8, side * 24, 2.1, p.pop) +
    circle(100, y - 8, 60, "none", { stroke: p.night, "stroke-width": 11 }) +
    stroke(`M62 ${y - 28}Q74 ${y - 54} 100 ${y - 56}`, "#ffffff", 5, { ...round, opacity: 0.8 });
  return { art, sky: p.deep, ground: p.deep };
};

const keyhole: Scene = ({ p, chance, y }) => {
  const hole = `M100 ${y - 78}a42 42 0 0 1 22 78l24 88H54l24-88a42 42 0 0 1 22-78Z`;
  const inside = chance.likely(0.5)
    ? path(`M60 ${y - 36}Q100 ${y - 66} 140 ${y - 36}Q100 ${y - 6} 60 ${y - 36}Z`, p.light) + circle(100, y - 36, 15, p.deep) + circle(100, y - 36, 6.5, p.night)
    : circle(100, y - 40, 26, p.light) + person(100, y + 88, 112, p.night, poses.coat, "fedora");
  const art =
    fill(p.night) +
    many(6, (index) => rect(index * 40 - 12, 0, 1.6, 300, mix(p.night, p.deep, 0.6))) +
    path(`M100 ${y - 102}Q160 ${y - 100} 158 ${y}T166 ${y + 104}H34Q44 ${y + 40} 42 ${y}T100 ${y - 102}Z`, mix(p.night, p.deep, 0.75)) +
    path(hole, p.pop) +
    inside;
  return { art, sky: p.night, ground: p.night };
};

const streetlamp: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const x = 100 - side * 44;
  const art =
    sky(p.night, p.deep, mix(p.deep, p.mid, 0.6)) +
    skyline(chance, y + 60, 50, 120, mix(p.night, p.deep, 0.55)) +
    path(`M${x + side * 26} ${y - 62}L${x - side * 4} ${y + 92}H${x + side * 104}Z`, p.pop, { opacity: 0.85 }) +
    stroke(`M${x} ${y + 92}V${y - 74}q0-12 ${side * 14}-12h${side * 12}`, p.night, 4.5, round) +
    path(`M${x + side * 14} ${y - 68}l6-14h12l6 14Z`, p.night, side === 1 ? {} : { transform: "translate(-38 0)" }) +
    path(`M0 ${y + 88}H200V300H0Z`, p.night) +
    ellipse(x + side * 50, y + 90, 56, 8, p.pop) +
    person(x + side * 52, y + 92, 104, p.night, poses.coat, "fedora") +
    many(3, (index) => rect(-20 + index * 70, y + 60 + index * 14, 120, 9, p.light, { rx: 5, opacity: 0.14 }));
  return { art, sky: p.night, ground: p.night };
};

const doors: Scene = ({ p, chance, y }) => {
  const open = chance.whole(0, 4);
  const art =
    fill(p.deep) +
    rect(0, y + 66, 200, 300, p.night) +
    many(5, (index) => {
      const x = 6 + index * 39;
      const lit = index === open;
      return (
        rect(x, y - 62, 32, 128, lit ? p.pop : p.mid) +
        (lit
          ? path(`M${x} ${y + 66}h32l${(2 - index) * 8 + 26} 60h-84Z`, p.pop) + person(x + 16, y + 68, 84, p.night, poses.coat)
          : rect(x + 6, y - 52, 20, 44, mix(p.mid, p.deep, 0.45)) + rect(x + 6, y + 2, 20, 54, mix(p.mid, p.deep, 0.45)) + circle(x + 27, y - 2, 2, p.light))
      );
    }) +
    rect(0, y - 72, 200, 5, p.light) +
    many(4, (index) => circle(42 + index * 39, y - 84, 3, p.light));
  return { art, sky: p.deep, ground: p.night };
};

// A road in the shape of a question mark, with a walker.
const question: Scene = ({ p, chance, y }) => {
  const art =
    sky(p.deep, mix(p.deep, p.night, 0.6)) +
    stars(chance, 30, 300, mix(p.deep, p.light, 0.6)) +
    stroke(`M64 ${y - 40}C64 ${y - 100} 142 ${y - 96} 140 ${y - 42}C138 ${y - 6} 100 ${y - 4} 100 ${y + 40}`, p.pop, 24, { "stroke-linejoin": "round" }) +
    stroke(`M64 ${y - 40}C64 ${y - 100} 142 ${y - 96} 140 ${y - 42}C138 ${y - 6} 100 ${y - 4} 100 ${y + 40}`, p.night, 2, { "stroke-dasharray": "8 8" }) +
    ellipse(100, y + 84, 22, 22, p.pop) +
    person(100, y + 98, 54, p.night, poses.coat, "fedora");
  return { art, sky: p.deep, ground: mix(p.deep, p.night, 0.6) };
};

// A dark house, and a glass that finds the one who is in it.
const manor: Scene = ({ p, chance, y }) => {
  const side = chance.likely(0.5) ? 1 : -1;
  const x = 100 + side * 34;
  const lit = chance.whole(0, 9);
  const house = rect(-62, -70, 124, 70, p.night) + path("M-70-70L-52-96H52L70-70Z", p.night) + path("M-16-96L0-118L16-96Z", p.night) + rect(-46, -112, 9, 30, p.night) + rect(36, -112, 9, 30, p.night) +
    many(10, (index) => rect(-53 + (index % 5) * 23, -62 + Math.floor(index / 5) * 28, 12, 17, index === lit ? p.pop : mix(p.night, p.deep, 0.7))) + rect(-8, -20, 16, 20, p.deep);
  const art =
    sky(p.deep, mix(p.deep, p.mid, 0.5), p.mid) +
    peaks(chance, y + 60, 40, mix(p.deep, p.night, 0.4)) +
    hills(chance, y + 58, 5, mix(p.night, p.deep, 0.3)) +
    at(100, y + 58, house, 1.06) +
    path(`M92 ${y + 56}h16l40 100H52Z`, mix(p.night, p.deep, 0.7)) +
    stroke(`M${x - side * 26} ${y + 56}L${x - side * 62} ${y + 106}`, p.light, 13, round) +
    circle(x, y + 20, 42, p.pop) +
    person(x, y + 56, 62, p.night, poses.coat, "fedora") +
    circle(x, y + 20, 42, "none", { stroke: p.light, "stroke-width": 8 });
  return { art, sky: p.deep, ground: mix(p.night, p.deep, 0.3) };
};

export const mystery: readonly Scene[] = [magnifier, keyhole, streetlamp, doors, question, manor];
