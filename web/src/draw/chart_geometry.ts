// Positions of a chart's points in a square of 100 by 100 with the value axis upward. The square is stretched
// to the plot; texts and markers are positioned in percent.

import type { Chart, ChartPoint } from "../view_types";

export interface Bar {
  readonly x: number;
  readonly y: number;
  readonly width: number;
  readonly height: number;
}

export interface Plot {
  readonly across: (index: number) => number; // center of a point, 0 to 100
  readonly up: (value: number) => number; // 0 at the bottom, 100 at the top
}

// The gap between bars as a fraction of a bar's width.
const barGap: Readonly<Record<"bar" | "histogram", number>> = { bar: 0.34, histogram: 0.06 };

function extent(chart: Chart): [number, number] {
  const values = [...chart.points.map((point) => point.value), ...chart.scale.map((tick) => tick.value)];
  if (chart.kind !== "line") values.push(0);
  const least = Math.min(...values);
  const most = Math.max(...values);
  return least < most ? [least, most] : [least - 1, most + 1];
}

export function plotOf(chart: Chart): Plot {
  const [least, most] = extent(chart);
  const count = chart.points.length;
  return {
    across: (index) => {
      if (chart.kind !== "line") return ((index + 0.5) / count) * 100;
      return count === 1 ? 50 : (index / (count - 1)) * 100;
    },
    up: (value) => ((value - least) / (most - least)) * 100,
  };
}

const round = (figure: number): number => Math.round(figure * 100) / 100;

interface Place {
  readonly x: number;
  readonly y: number;
}

function placesOf(points: readonly ChartPoint[], plot: Plot): Place[] {
  return points.map((point, index) => ({ x: round(plot.across(index)), y: round(100 - plot.up(point.value)) }));
}

// Slopes for monotone cubic interpolation (M. Steffen, 1990).
function slopesOf(places: readonly Place[]): number[] {
  const last = places.length - 1;
  const width = (index: number) => places[index + 1]!.x - places[index]!.x;
  const steepness = (index: number) => (places[index + 1]!.y - places[index]!.y) / width(index);
  const inner = places.map((_, index) => {
    if (index === 0 || index === last) return 0;
    const before = steepness(index - 1);
    const after = steepness(index);
    const mean = (before * width(index) + after * width(index - 1)) / (width(index - 1) + width(index));
    return (Math.sign(before) + Math.sign(after)) * Math.min(Math.abs(before), Math.abs(after), Math.abs(mean) / 2);
  });
  const atEnd = (gap: number, neighbour: number) => (3 * steepness(gap) - inner[neighbour]!) / 2;
  return inner.map((slope, index) => {
    if (index === 0) return atEnd(0, 1);
    return index === last ? atEnd(last - 1, last - 1) : slope;
  });
}

// A curve through the points; a line for two, a dot for one.
function curveThrough(places: readonly Place[]): string {
  const [first, second] = places;
  if (!first) return "";
  const start = `M${first.x},${first.y}`;
  if (!second) return `${start}Z`;
  if (places.length === 2) return `${start}L${second.x},${second.y}`;
  const slopes = slopesOf(places);
  const pieces = places.slice(1).map((to, index) => {
    const from = places[index]!;
    const third = (to.x - from.x) / 3;
    const out = [from.x + third, from.y + third * slopes[index]!];
    const back = [to.x - third, to.y - third * slopes[index + 1]!];
    return `C${[...out, ...back].map(round).join(",")},${to.x},${to.y}`;
  });
  return start + pieces.join("");
}

export function linePath(points: readonly ChartPoint[], plot: Plot): string {
  return curveThrough(placesOf(points, plot));
}

// The area below the line.
export function areaPath(points: readonly ChartPoint[], plot: Plot): string {
  const places = placesOf(points, plot);
  const line = curveThrough(places).replace("Z", "");
  return line && `${line}L${places.at(-1)!.x},100L${places[0]!.x},100Z`;
}

export function bars(kind: "bar" | "histogram", points: readonly ChartPoint[], plot: Plot): Bar[] {
  const place = 100 / points.length;
  const width = place * (1 - barGap[kind]);
  const floor = plot.up(0);
  return points.map((point, index) => {
    const top = plot.up(point.value);
    return {
      x: round(plot.across(index) - width / 2),
      y: round(100 - Math.max(top, floor)),
      width: round(width),
      height: round(Math.abs(top - floor)),
    };
  });
}

const innerRadius = 27;
const outerRadius = 49;

// A ring segment between two fractions of a full turn, clockwise from the top.
function slice(from: number, to: number): string {
  if (to - from > 0.9999) return wholeRing;
  const at = (radius: number, share: number) =>
    [Math.sin(share * 2 * Math.PI), -Math.cos(share * 2 * Math.PI)].map((part) => round(radius * part)).join(",");
  const large = to - from > 0.5 ? 1 : 0;
  return (
    `M${at(outerRadius, from)}A${outerRadius},${outerRadius},0,${large},1,${at(outerRadius, to)}` +
    `L${at(innerRadius, to)}A${innerRadius},${innerRadius},0,${large},0,${at(innerRadius, from)}Z`
  );
}

// A full circle needs two arcs, because an arc that ends at its start is empty. The hole has the opposite
// direction.
const circle = (radius: number, sweep: 0 | 1): string => {
  const half = `A${radius},${radius},0,0,${sweep},0,`;
  return `M0,${-radius}${half}${radius}${half}${-radius}Z`;
};
const wholeRing = circle(outerRadius, 1) + circle(innerRadius, 0);

// One path per point, in a square of 100; empty for a point with no share.
export function slices(points: readonly ChartPoint[]): string[] {
  const values = points.map((point) => Math.max(point.value, 0));
  const whole = values.reduce((sum, value) => sum + value, 0);
  let before = 0;
  return values.map((value) => {
    const from = before / whole;
    before += value;
    return value > 0 ? slice(from, before / whole) : "";
  });
}
