// The game's logo. It is on the first page, before the art is loaded, so the output of lettering.ts is copied
// here; test/draw_art.test.ts compares the two.

export const text = "Top Billing";
export const box = { x: 0, y: 0, width: 209, height: 30 };
export const ink = "#ffc44d";
export const ground = "#54102a";

const letters = [
  "M0 0H5.6M2.8 0V10",
  "M12.8 0C17.2 0 17.2 10 12.8 10S8.4 0 12.8 0Z",
  "M20 10V0H22.7C25.9 0 25.9 5.6 22.7 5.6H20",
  "M36.3 0V10H39.3C42.5 10 42.5 4.8 39.3 4.8H36.3M36.3 0H39.1C41.9 0 41.9 4.8 39.1 4.8",
  "M45.6 0V10",
  "M49.5 0V10H53.8",
  "M57.7 0V10H62",
  "M65.9 0V10",
  "M69.8 10V0L75.6 10V0",
  "M85.5 2C84.1 -0.8 79.5 -0.8 79.5 5S84.5 11 85.6 8V5.4H83",
]
  .map((d) => `<path d="${d}"/>`)
  .join("");

const line = (colour: string, width: number): string =>
  `<g stroke="${colour}" fill="none" stroke-width="${width}" stroke-linejoin="miter" stroke-linecap="butt" ` +
  `stroke-miterlimit="3">${letters}</g>`;

export const wordmark =
  `<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 ${box.width} ${box.height}" ` +
  `preserveAspectRatio="xMidYMid slice"><g transform="translate(3.4 3.19)scale(2.3622)">` +
  `${line(ink, 2.7)}${line(ground, 0.59)}</g></svg>`;
