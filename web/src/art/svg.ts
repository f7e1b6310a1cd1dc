// SVG as text. Uses attributes only, because the page's policy forbids inline styles.

export type Attributes = Readonly<Record<string, string | number>>;

// Rounds to two decimals; more are not visible.
export function n(figure: number): string {
  return String(Math.round(figure * 100) / 100);
}

function attributesOf(attributes: Attributes): string {
  return Object.entries(attributes)
    .map(([name, value]) => ` ${name}="${typeof value === "number" ? n(value) : value}"`)
    .join("");
}

export function element(name: string, attributes: Attributes, content = ""): string {
  return content === ""
    ? `<${name}${attributesOf(attributes)}/>`
    : `<${name}${attributesOf(attributes)}>${content}</${name}>`;
}

export const path = (d: string, fill: string, more: Attributes = {}): string =>
  element("path", { d, fill, ...more });

export const stroke = (d: string, colour: string, width: number, more: Attributes = {}): string =>
  element("path", { d, fill: "none", stroke: colour, "stroke-width": width, ...more });

export const rect = (
  x: number,
  y: number,
  width: number,
  height: number,
  fill: string,
  more: Attributes = {},
): string => element("rect", { x, y, width, height, fill, ...more });

export const circle = (cx: number, cy: number, r: number, fill: string, more: Attributes = {}): string =>
  element("circle", { cx, cy, r, fill, ...more });

export const ellipse = (
  cx: number,
  cy: number,
  rx: number,
  ry: number,
  fill: string,
  more: Attributes = {},
): string => element("ellipse", { cx, cy, rx, ry, fill, ...more });

export const group = (content: string, attributes: Attributes = {}): string =>
  element("g", attributes, content);

export const moved = (x: number, y: number, content: string): string =>
  group(content, { transform: `translate(${n(x)} ${n(y)})` });

export const turned = (degrees: number, x: number, y: number, content: string): string =>
  group(content, { transform: `rotate(${n(degrees)} ${n(x)} ${n(y)})` });

// Concatenates `count` pieces, each from its index.
export const many = (count: number, piece: (index: number) => string): string =>
  Array.from({ length: count }, (_, index) => piece(index)).join("");

export const polygon = (points: readonly (readonly [number, number])[]): string =>
  `M${points.map(([x, y]) => `${n(x)} ${n(y)}`).join("L")}Z`;

// A vertical gradient and the paint that uses it. Equal colors must have equal `id`s.
export function fall(
  id: string,
  colours: readonly string[],
  across = false,
): { readonly defs: string; readonly paint: string } {
  const stops = colours
    .map((colour, index) =>
      element("stop", { offset: index / Math.max(colours.length - 1, 1), "stop-color": colour }),
    )
    .join("");
  const direction = across ? { x1: 0, y1: 0, x2: 1, y2: 1 } : { x1: 0, y1: 0, x2: 0, y2: 1 };
  return {
    defs: element("defs", {}, element("linearGradient", { id, ...direction }, stops)),
    paint: `url(#${id})`,
  };
}

export function picture(width: number, height: number, content: string): string {
  return `<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 ${width} ${height}" preserveAspectRatio="xMidYMid slice">${content}</svg>`;
}

// Mixes two "#rrggbb" colors, with `share` of the second.
export function mix(first: string, second: string, share: number): string {
  const part = (colour: string, at: number): number => Number.parseInt(colour.slice(at, at + 2), 16);
  const mixed = [1, 3, 5].map((at) => Math.round(part(first, at) * (1 - share) + part(second, at) * share));
  return `#${mixed.map((value) => value.toString(16).padStart(2, "0")).join("")}`;
}
