// Things on posters, as if cut from paper: each around 0, 0, some 100 across.

import { circle, ellipse, many, n, path, rect, stroke } from "./svg";

type Thing = (paper: string, ink: string) => string;

const key: Thing = (paper, ink) =>
  circle(0, -36, 22, paper) +
  circle(0, -36, 9, ink) +
  rect(-6, -18, 12, 72, paper) +
  rect(4, 24, 18, 9, paper) +
  rect(4, 40, 13, 9, paper);

const door: Thing = (paper, ink) =>
  rect(-30, -60, 60, 118, paper) +
  path("M-30-60L14-44V68L-30 58Z", ink) +
  path("M-30-60L12-46V64L-30 56Z", paper, { opacity: 0.35 }) +
  circle(5, 8, 3, paper);

const eye: Thing = (paper, ink) =>
  path("M-62 0Q0-56 62 0Q0 56-62 0Z", paper) +
  circle(0, 0, 24, ink) +
  circle(0, 0, 11, paper) +
  circle(6, -7, 4, paper);

const rose: Thing = (paper, ink) =>
  stroke("M2 6C-4 30 6 44 0 66", paper, 5) +
  path("M0 40Q22 24 34 40Q16 54 0 40Z", paper) +
  circle(0, -20, 32, paper) +
  stroke("M-4-20a6 6 0 1 1 8 6a13 13 0 1 1 6-22a20 20 0 1 1-26 30", ink, 3.4, { "stroke-linecap": "round" });

const crown: Thing = (paper, ink) =>
  path("M-52 34L-58-26L-28 2L0-46L28 2L58-26L52 34Z", paper) +
  rect(-52, 40, 104, 10, paper) +
  many(3, (index) => circle(-30 + index * 30, 20, 5, ink));

const phone: Thing = (paper, ink) =>
  path("M-58-30C-50-62 50-62 58-30L56-14H30L28-30Q0-38-28-30L-30-14H-56Z", paper) +
  path("M-34-8H34L50 50H-50Z", paper) +
  circle(0, 22, 16, ink) +
  circle(0, 22, 6, paper);

const mask: Thing = (paper, ink) =>
  path("M-46-46Q0-34 46-46Q54 26 0 56Q-54 26-46-46Z", paper) +
  path("M-30-16q11-12 22 0q-11 7-22 0ZM8-16q11-12 22 0q-11 7-22 0Z", ink) +
  path("M-22 16Q0 44 22 16Q0 26-22 16Z", ink);

const heart: Thing = (paper, ink) =>
  path("M0 52C-72 4-52-50-24-50C-8-50 0-36 0-28C0-36 8-50 24-50C52-50 72 4 0 52Z", paper) +
  path("M2-30L-12-8L6 4L-8 26L-2 52L10 22L-2 10L14-6Z", ink);

const hand: Thing = (paper, ink) =>
  path(
    "M-22 60V10L-40-16q-4-10 6-12L-18-6V-46q6-10 12 0V-12V-56q6-10 12 0v44V-50q6-10 12 0v42V-34q6-10 12 0V14Q28 34 20 60Z",
    paper,
  ) + circle(2, 18, 9, ink);

const hourglass: Thing = (paper, ink) =>
  rect(-36, -62, 72, 9, paper) +
  rect(-36, 53, 72, 9, paper) +
  path("M-30-52H30Q30-16 5 0Q30 16 30 52H-30Q-30 16-5 0Q-30-16-30-52Z", paper) +
  path("M-20-34H20Q14-16 0-6Q-14-16-20-34ZM0 6L20 46H-20Z", ink);

const knife: Thing = (paper, ink) =>
  path("M-8 66V4H8V66Q0 74-8 66Z", ink, { stroke: paper, "stroke-width": 3 }) +
  path("M-11 2V-38Q-8-60 12-70V2Z", paper);

const lamp: Thing = (paper, ink) =>
  path("M-20-60H20L46-8H-46Z", paper) +
  rect(-4, -8, 8, 58, paper) +
  rect(-26, 50, 52, 9, paper) +
  stroke("M26-8v26", ink, 2) +
  circle(26, 20, 4, paper);

const trumpet: Thing = (paper, ink) =>
  path("M-60-6H10Q36-8 54-34V34Q36 8 10 6H-60Z", paper) +
  many(3, (index) => rect(-34 + index * 15, -26, 8, 50, paper)) +
  many(3, (index) => circle(-30 + index * 15, -28, 6, ink));

const clapper: Thing = (paper, ink) =>
  rect(-52, -14, 104, 66, paper) +
  path("M-54-24L44-54L50-36L-48-8Z", paper) +
  many(4, (index) => path(`M${n(-44 + index * 24)}-26l12-4l6 16l-12 4Z`, ink)) +
  many(3, (index) => rect(-40, 4 + index * 14, 80 - index * 22, 5, ink));

const moth: Thing = (paper, ink) =>
  path("M0-20C-20-60-66-54-60-20C-58 2-24 6 0 4C24 6 58 2 60-20C66-54 20-60 0-20Z", paper) +
  path("M0 2C-22 6-44 20-36 40C-28 58-6 40 0 18C6 40 28 58 36 40C44 20 22 6 0 2Z", paper) +
  ellipse(0, 2, 6, 30, ink) +
  circle(-34, -22, 9, ink) +
  circle(34, -22, 9, ink);

export const things: readonly Thing[] = [
  key,
  door,
  eye,
  rose,
  crown,
  phone,
  mask,
  heart,
  hand,
  hourglass,
  knife,
  lamp,
  trumpet,
  clapper,
  moth,
];
