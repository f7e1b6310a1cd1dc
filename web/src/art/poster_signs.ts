// Posters that show a sign: cut paper, circles, faces and things. 200 by 300.

import type { SceneArtist } from "./poster";
import { figure } from "./poster_scenes";
import { things } from "./poster_things";
import { circle, fall, group, many, mix, n, path, polygon, rect, stroke, turned } from "./svg";

const foot = { x: 16, y: 208, width: 168, height: 62 };

const spiral: SceneArtist = (chance, p) => {
  const [dark, bright] = chance.likely(0.5) ? [p.deep, p.pop] : [p.night, p.mid];
  const x = chance.between(80, 120);
  const rings = many(11, (index) =>
    circle(x + index * chance.between(-1, 1), 116, 150 - index * 13.5, index % 2 === 0 ? bright : dark),
  );
  return {
    art:
      rect(0, 0, 200, 300, dark) +
      rings +
      turned(chance.between(-40, 40), x, 116, figure(x, 134, 36, p.light)) +
      rect(0, 206, 200, 94, dark),
    title: foot,
    ink: p.light,
    ground: dark,
  };
};

const thing: SceneArtist = (chance, p) => {
  const paper = chance.pick([p.pop, p.mid, p.light]);
  const ink = paper === p.light ? p.deep : p.night;
  const cut = polygon([
    [chance.between(14, 34), chance.between(30, 44)],
    [chance.between(150, 188), chance.between(24, 52)],
    [chance.between(160, 186), chance.between(170, 196)],
    [chance.between(18, 40), chance.between(176, 200)],
  ]);
  const shown = chance.pick(things)(paper === p.light ? p.pop : p.light, ink);
  const place = group(shown, {
    transform: `translate(100 112) rotate(${n(chance.between(-14, 14))}) scale(1.15)`,
  });
  return { art: rect(0, 0, 200, 300, paper) + path(cut, ink) + place, title: foot, ink, ground: paper };
};

// Half a face in profile, with a second picture in it.
const profile: SceneArtist = (chance, p, id) => {
  const face =
    "M70 206V176C50 160 44 132 46 108C50 62 84 40 118 46C146 52 156 78 152 98L166 122Q168 128 160 130L154 132L158 142L152 148L154 158Q152 168 138 168L124 170V206Z";
  const inside = fall(id, [p.pop, p.mid, p.deep]);
  const clip = `<clipPath id="${id}c"><path d="${face}"/></clipPath>`;
  const hills = many(3, (index) => {
    const y = 128 + index * 22;
    return path(
      `M0 ${n(y)}Q50 ${n(y - chance.between(14, 40))} 100 ${n(y)}T200 ${n(y)}V300H0Z`,
      mix(p.deep, p.night, 0.2 + index * 0.35),
    );
  });
  const picture = group(
    rect(0, 0, 200, 300, inside.paint) +
      circle(chance.between(80, 120), 98, 20, p.light) +
      hills +
      figure(104, 168, 22, p.light),
    { "clip-path": `url(#${id}c)` },
  );
  const ground = chance.likely(0.6) ? p.light : p.night;
  const flip = chance.likely(0.5) ? { transform: "translate(200 0) scale(-1 1)" } : {};
  return {
    art: inside.defs + clip + rect(0, 0, 200, 300, ground) + group(picture, flip),
    title: { ...foot, y: 214, height: 56 },
    ink: ground === p.light ? p.deep : p.pop,
    ground,
  };
};

const spotlight: SceneArtist = (chance, p, id) => {
  const beam = fall(id, [p.light, mix(p.pop, p.deep, 0.5)]);
  const x = chance.between(70, 130);
  const lamp = chance.between(10, 190);
  const folds = many(10, (index) => path(`M${index * 20} 0h12q4 120-4 206h-12q6-110 4-206Z`, p.deep));
  const light = path(`M${n(lamp - 4)} 0h8L${n(x + 46)} 196H${n(x - 46)}Z`, beam.paint, { opacity: 0.75 });
  const floor =
    path("M0 184Q100 172 200 184V300H0Z", p.night) +
    `<ellipse cx="${n(x)}" cy="194" rx="46" ry="9" fill="${p.light}"/>`;
  const microphone = stroke(`M${n(x + 17)} 196V146`, p.night, 1.6) + circle(x + 17, 143, 3.4, p.night);
  return {
    art:
      beam.defs +
      rect(0, 0, 200, 300, mix(p.deep, p.night, 0.45)) +
      folds +
      light +
      floor +
      figure(x, 196, 62, p.night) +
      microphone,
    title: foot,
    ink: p.light,
    ground: p.night,
  };
};

const couple: SceneArtist = (chance, p, id) => {
  const sky = fall(id, [p.pop, p.light]);
  const left = chance.between(66, 76);
  const petals = many(16, () => {
    const x = chance.between(0, 200);
    const y = chance.between(0, 206);
    return turned(
      chance.between(0, 180),
      x,
      y,
      `<ellipse cx="${n(x)}" cy="${n(y)}" rx="5" ry="2.6" fill="${p.mid}" opacity=".8"/>`,
    );
  });
  const discs =
    circle(left, 106, 52, p.mid, { opacity: 0.92 }) + circle(200 - left, 106, 52, p.deep, { opacity: 0.86 });
  const people = figure(92, 200, 62, p.night) + figure(108, 200, 57, p.light);
  return {
    art:
      sky.defs + rect(0, 0, 200, 300, sky.paint) + discs + petals + people + rect(0, 200, 200, 100, p.light),
    title: { ...foot, y: 212 },
    ink: p.deep,
    ground: p.light,
  };
};

// Blocks of colour, and the title as the picture.
const blocks: SceneArtist = (chance, p) => {
  const colours = [p.pop, p.mid, p.deep, p.light];
  const turn = chance.whole(0, 3);
  const stripes = many(6, (index) => rect(0, index * 36, 200, 36, colours[(index + turn) % 4]!));
  const bite = chance.likely(0.5)
    ? circle(chance.between(50, 150), 108, 56, p.night)
    : path(
        polygon([
          [100, 40],
          [164, 176],
          [36, 176],
        ]),
        p.night,
      );
  const eye =
    `<ellipse cx="100" cy="118" rx="26" ry="13" fill="${p.light}"/>` +
    circle(100, 118, 11, p.pop) +
    circle(100, 118, 5, p.night);
  return {
    art:
      stripes +
      bite +
      (chance.likely(0.6) ? eye : figure(100, 158, 66, p.light)) +
      rect(0, 206, 200, 94, p.night),
    title: foot,
    ink: p.light,
    ground: p.night,
  };
};

const rays: SceneArtist = (chance, p) => {
  const x = 100;
  const y = chance.between(120, 150);
  const count = chance.pick([14, 18, 22]);
  const sun = many(count, (index) => {
    const from = (index / count) * Math.PI * 2;
    const to = ((index + 0.5) / count) * Math.PI * 2;
    return path(
      polygon([
        [x, y],
        [x + Math.cos(from) * 300, y + Math.sin(from) * 300],
        [x + Math.cos(to) * 300, y + Math.sin(to) * 300],
      ]),
      p.pop,
    );
  });
  const hero =
    figure(100, 214, 118, p.night) +
    path(`M88 126Q66 170 52 206Q78 196 90 ${n(chance.between(188, 200))}Z`, p.deep);
  return {
    art:
      rect(0, 0, 200, 300, p.light) +
      sun +
      circle(x, y, 46, p.mid) +
      hero +
      path("M0 204l40-10 36 10 44-12 40 12 40-8v104H0Z", p.night),
    title: { ...foot, y: 220, height: 52 },
    ink: p.light,
    ground: p.night,
  };
};

export const signs: readonly SceneArtist[] = [spiral, thing, thing, profile, spotlight, couple, blocks, rays];
