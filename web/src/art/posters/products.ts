// Products in commercials: centered at 0, 0, about 110 wide, bottom at y = 60.

import type { Palette } from "../palettes";
import { kindIn } from "../names";
import type { Chance } from "../random";
import { circle, ellipse, many, mix, path, rect, stroke } from "../svg";
import { heart, round } from "./stage";

type Product = (p: Palette) => string;

const cereal: Product = (p) =>
  path("M-36-50L-26-60H40L34-50Z", mix(p.mid, p.night, 0.3)) + path("M34-50L40-60V50L34 60Z", mix(p.mid, p.night, 0.45)) + rect(-36, -50, 70, 110, p.mid) + circle(-1, -18, 22, p.pop) + path("M-26 14H24Q22 42-1 42T-26 14Z", p.light) + many(5, (index) => circle(-18 + index * 9, 12 - (index % 2) * 4, 4.6, "none", { stroke: p.deep, "stroke-width": 2.4 }));
const boots: Product = (p) =>
  many(2, (index) => path("M-14-56H14V20Q34 24 36 44V52H-14Z", index === 0 ? p.mid : p.pop, { transform: `translate(${-30 + index * 34} ${index * 8})` }) + rect(-44 + index * 34, -56 + index * 8, 28, 9, p.light) + rect(-46 + index * 34, 50 + index * 8, 54, 8, p.night, { rx: 3 }));
const mattress: Product = (p) =>
  rect(-62, 4, 124, 34, p.light, { rx: 8 }) + rect(-62, 22, 124, 16, p.mid, { rx: 6 }) + path("M-56 6Q-54-14-34-14T-12 6Z", "#ffffff") + path("M-8 6Q4-18 40-12Q62-8 62 8V16H-8Z", p.deep) + rect(-62, -40, 9, 98, p.night, { rx: 3 }) + rect(-62, 38, 124, 9, p.night) + rect(54, 30, 8, 28, p.night) + path("M22-56h16l-16 16h16M44-38h10l-10 10h10", "none", { stroke: p.light, "stroke-width": 4 });
const toothpaste: Product = (p) =>
  path("M-58 8L38-30L50 2L-50 34Z", p.light) + path("M-30-2L14-20L24 10L-20 26Z", p.mid) + path("M38-30L52-32L60-4L50 2Z", p.deep) + path("M60-22Q76-26 72-10Q66-6 62-12Z", p.pop) + path("M-62 6L-48 36L-54 38L-68 10Z", p.mid) + path("M-20-56Q0-40 22-56Q26-36 0-34T-20-56Z", "#ffffff");
const tire: Product = (p) =>
  circle(0, 0, 58, p.night) + many(16, (index) => rect(-5, -64, 10, 12, p.night, { transform: `rotate(${index * 22.5})` })) + circle(0, 0, 36, p.light) + circle(0, 0, 30, mix(p.light, p.night, 0.3)) + many(5, (index) => path("M-5-6L-9-29H9L5-6Z", p.light, { transform: `rotate(${index * 72})` })) + circle(0, 0, 10, p.pop);
const phone: Product = (p) =>
  rect(-28, -58, 56, 116, p.night, { rx: 10 }) + rect(-23, -48, 46, 92, p.mid, { rx: 3 }) + circle(0, 51, 4, p.light) + path("M-14-20H14Q20-20 20-14V4Q20 10 14 10H2L-8 20V10H-14Q-20 10-20 4V-14Q-20-20-14-20Z", p.light) + stroke("M40-40Q58-20 40 0M50-52Q78-20 50 12M-40-40Q-58-20-40 0M-50-52Q-78-20-50 12", p.pop, 5, round);
const shelter: Product = (p) =>
  path("M-32 60V16L0-12L32 16V60Z", p.light) + rect(-8, 30, 16, 30, p.deep) + rect(14, 26, 10, 10, p.pop) + path("M-70-2Q-64-62 0-64T70-2q-12-9-23 0q-12-9-24 0q-11-9-23 0q-12-9-24 0q-11-9-23 0q-12-9-23 0Z", p.mid) + stroke("M0-72V-60M0-4V10", p.night, 4, round);
const can: Product = (p) =>
  path("M-30-48L-24-60H24L30-48V50L24 60H-24L-30 50Z", p.mid) + rect(-24, -61, 48, 5, p.light) + path("M-30 10L30-24V12L-30 44Z", p.light) + path("M12-48H20V50H12Z", "#ffffff", { opacity: 0.4 }) + many(6, (index) => circle([-52, -44, 48, 54, 42, -40][index]!, [-30, 6, -44, -8, 26, 40][index]!, [7, 4, 5, 8, 4, 5][index]!, p.light)) + circle(-8, -8, 9, p.pop);
const piggy: Product = (p) =>
  ellipse(0, 10, 52, 38, p.mid) + path("M-34-18L-40-40L-16-30ZM-30 36h14v22h-14ZM16 36h14v22H16Z", p.mid) + ellipse(-52, 12, 11, 14, mix(p.mid, p.light, 0.3)) + circle(-54, 8, 2.6, p.night) + circle(-54, 17, 2.6, p.night) + circle(-34, -2, 4, p.night) + stroke("M50 0q14-4 10-16q-10-2-6 8", p.mid, 4, round) + rect(-10, -29, 24, 5, p.night, { rx: 2 }) + circle(2, -46, 17, p.pop) + circle(2, -46, 11, mix(p.pop, p.light, 0.4));
const car: Product = (p) =>
  path("M-70 34Q-72 14-54 8L-36-20Q-32-28-20-28H18Q28-28 34-20L52 6Q70 10 70 34Z", p.mid) + path("M-40 4L-26-18H-4V4ZM4 4V-18H20L36 4Z", p.light) + rect(-70, 18, 140, 5, mix(p.mid, p.night, 0.3)) + many(2, (index) => circle(-40 + index * 80, 36, 18, p.night) + circle(-40 + index * 80, 36, 8, p.light)) + path("M62 10l8 3v7h-9Z", p.pop);
const petFood: Product = (p) =>
  path("M-34-28Q-40-62-22-58L-8-44H12L26-58Q44-62 38-28Q42 4 2 6T-34-28Z", p.night) + path("M-18-26q6-8 12 0q-6 6-12 0ZM10-26q6-8 12 0q-6 6-12 0Z", p.pop) + path("M2-14l-5-4h10Z", p.mid) + stroke("M-30-12L-56-18M-30-6L-56-2M34-12L60-18M34-6L60-2", p.night, 2) + path("M-58 12H62L48 60H-44Z", p.mid) + ellipse(2, 12, 60, 12, p.light) + ellipse(2, 12, 48, 8, p.deep);
const coffee: Product = (p) =>
  path("M-40-20H28V20Q28 56-6 56T-40 20Z", p.light) + stroke("M28-8Q56-12 54 10T26 30", p.light, 10) + ellipse(-6, -20, 34, 9, p.night) + ellipse(-6, 58, 52, 7, p.mid) + stroke("M-22-36q-10-12 0-22t0-20M-4-36q-10-12 0-22t0-20M14-36q-10-12 0-22t0-20", p.pop, 5, round) + heart(-6, 14, 0.3, p.mid);
const detergent: Product = (p) =>
  path("M-34 60V-16Q-34-34-14-38V-48H14V-38Q38-32 38-10V60Z", p.mid) + rect(-17, -62, 34, 17, p.pop, { rx: 4 }) + path("M14-20Q26-18 26-4V22H14Z", p.deep) + circle(-6, 20, 20, p.light) + path("M-6 2Q8 20-6 34Q-20 20-6 2Z", p.deep) + many(7, (index) => circle([-56, -48, 54, 60, 48, -62, 66][index]!, [-40, 0, -50, -18, 16, 26, 44][index]!, [9, 6, 7, 11, 5, 5, 7][index]!, "#ffffff", { opacity: 0.85 }));
const pie: Product = (p) =>
  path("M-62 12H62L48 50H-48Z", p.mid) + path("M-66 14Q-66 0-50 0Q-30-44 0-44T50 0Q66 0 66 14Z", "#e3a64f") + stroke("M-34-12L-18-30M-14-6L2-38M8-4L24-32M26-6L38-20", "#b4742c", 4, round) + many(7, (index) => circle(-54 + index * 18, 8, 9, "#f0bf6d")) + stroke("M-20-56q-8-10 0-18M2-60q-8-10 0-18M24-56q-8-10 0-18", p.light, 4, round);
const perfume: Product = (p) =>
  rect(-38, -16, 76, 76, p.light, { rx: 10 }) + rect(-30, 6, 60, 46, p.pop, { rx: 6 }) + rect(-13, -32, 26, 18, p.deep) + path("M-20-60H20L16-32H-16Z", p.mid) + path("M-30-8H-20V52H-30Z", "#ffffff", { opacity: 0.7 }) + circle(0, 28, 12, p.light);
const dumbbell: Product = (p) =>
  rect(-48, -7, 96, 14, p.night) + rect(-52, -38, 19, 76, p.mid, { rx: 5 }) + rect(33, -38, 19, 76, p.mid, { rx: 5 }) + rect(-68, -26, 15, 52, p.deep, { rx: 5 }) + rect(53, -26, 15, 52, p.deep, { rx: 5 }) + stroke("M-20-50L-28-62M0-54V-68M20-50L28-62", p.pop, 6, round);
const home: Product = (p) =>
  path("M-46 60V0L0-40L46 0V60Z", p.light) + path("M-58 4L0-48L58 4L50 12L0-33L-50 12Z", p.mid) + rect(-11, 22, 22, 38, p.deep) + rect(-36, 14, 18, 18, p.pop) + rect(18, 14, 18, 18, p.pop) + stroke("M62 60V10", p.night, 4) + rect(46, 12, 34, 20, p.mid, { rx: 2 });
const burger: Product = (p) =>
  path("M-58-10Q-56-54 0-54T58-10Z", "#e2a04a") + many(7, (index) => ellipse(-34 + index * 11, -32 - (index % 2) * 9, 3, 2, "#fff0cf")) + path("M-62-8q10 14 21 0t21 0t20 0t21 0t21 0t20 0v8H-62Z", "#6cb04a") + rect(-56, 4, 112, 14, "#7a3f24", { rx: 7 }) + path("M-56 16H56L30 30L14 18L-8 28L-30 18Z", "#ffcf3f") + path("M-58 26H58Q58 52 40 52H-40Q-58 52-58 26Z", "#e2a04a") + stroke("M66-50V40", p.deep, 5);
const baby: Product = (p) =>
  rect(-24, -16, 48, 76, p.light, { rx: 14 }) + path("M-24 10H24V46Q24 60 10 60H-10Q-24 60-24 46Z", "#ffffff") + stroke("M-14 0h14M-14 14h14M-14 28h14", p.mid, 3) + rect(-28, -28, 56, 16, p.mid, { rx: 4 }) + path("M-16-28Q-14-42-6-46Q-10-62 0-62T6-46Q14-42 16-28Z", p.pop) + heart(6, 38, 0.26, p.mid) + circle(-54, -40, 9, p.pop) + circle(56, -16, 6, p.mid);
const plane: Product = (p) =>
  path("M-70 10L-78-22H-66L-48 0Q0-10 46-6Q72-2 76 8Q70 18 46 18H-40Q-62 18-70 10Z", p.light) + path("M-10 6L-40 50H-22L26 8ZM4-4L-14-38H-2L30-4Z", p.mid) + path("M-70 10L-78-22H-66L-54-4Z", p.pop) + many(7, (index) => circle(-30 + index * 12, 3, 3, p.deep)) + path("M52-3Q66-1 70 5H54Z", p.night);
const bottle: Product = (p) =>
  path("M-10-62H10V-34Q28-24 28-4V60H-28V-4Q-28-24-10-34Z", p.mid) + rect(-12, -64, 24, 12, p.night) + rect(-28, 4, 56, 34, p.light) + circle(0, 21, 11, p.pop) + path("M-22-4Q-22-18-10-24V56H-22Z", "#ffffff", { opacity: 0.35 });

const products = {
  cereal, boots, mattress, toothpaste, tire, phone, shelter, can, piggy, car, petFood, coffee, detergent, pie, perfume, dumbbell, home, burger, baby, plane, bottle,
} satisfies Record<string, Product>;
type Kind = keyof typeof products;

const named: Readonly<Record<Kind, RegExp>> = {
  cereal: /crunch|cereal|flakes|oats|bowl/iu,
  boots: /boot|shoe|sneaker/iu,
  mattress: /mattress|doze|sleep|bed\b|pillow/iu,
  toothpaste: /gleam|tooth|smile|dental/iu,
  tire: /tire|wheel/iu,
  phone: /wireless|phone|mobile|telecom|call/iu,
  shelter: /insurance|mutual|assurance/iu,
  can: /soda|cola|fizz|energy drink|tonic/iu,
  piggy: /saving|bank|credit|loan/iu,
  car: /hybrid|motor|auto|sedan|\bcar\b/iu,
  petFood: /whisker|cat\b|dog\b|pet\b|paw/iu,
  coffee: /coffee|espresso|tea\b/iu,
  detergent: /suds|soap|wash|clean|detergent/iu,
  pie: /pie\b|pies|bak(?:er|ing)|cake|bread/iu,
  perfume: /perfume|lumen|scent|jewel|watch/iu,
  dumbbell: /gym|fitness|muscle/iu,
  home: /nest|realt|home|house|furniture/iu,
  burger: /burger|grill|taco|pizza|diner/iu,
  baby: /baby|diaper|bramble/iu,
  plane: /airline|airways|travel|skyhop|hotel/iu,
  bottle: /water|sauce|shampoo/iu,
};

// The index of the product named in the title, or a random one.
export function productOf(title: string, chance: Chance): number {
  const kinds = Object.keys(products) as Kind[];
  return kinds.indexOf(kindIn(title, named) ?? chance.pick(kinds));
}

export const drawnProduct = (product: number, p: Palette): string => Object.values(products)[product]!(p);
