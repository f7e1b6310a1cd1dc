// Where the points of a chart stand, in a square of 100 by 100 with the value axis upwards. The square is
// stretched to the plot; texts and markers are placed over it in percent.

import { area, curveMonotoneX, line, pie, arc } from "d3-shape";

import type { Chart, ChartPoint } from "../view_types";

export interface Bar {
  readonly x: number;
  readonly y: number;
  readonly width: number;
  readonly height: number;
}

export interface Plot {
  readonly across: (index: number) => number; // middle of a point's place, 0 to 100
  readonly up: (value: number) => number; // 0 at the bottom, 100 at the top
}

// Between two bars, as a share of a bar's place.
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

export function linePath(points: readonly ChartPoint[], plot: Plot): string {
  const shape = line<ChartPoint>(
    (_, index) => round(plot.across(index)),
    (point) => round(100 - plot.up(point.value)),
  );
  return shape.curve(curveMonotoneX)([...points]) ?? "";
}

export function areaPath(points: readonly ChartPoint[], plot: Plot): string {
  const shape = area<ChartPoint>(
    (_, index) => round(plot.across(index)),
    100,
    (point) => round(100 - plot.up(point.value)),
  );
  return shape.curve(curveMonotoneX)([...points]) ?? "";
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

// One path a point, in a square of 100 around the middle; empty for a point without a share.
export function slices(points: readonly ChartPoint[]): string[] {
  const shape = arc<{ startAngle: number; endAngle: number }>().innerRadius(27).outerRadius(49);
  const shares = pie<ChartPoint>()
    .sort(null)
    .value((point) => Math.max(point.value, 0))([...points]);
  return shares.map((share) => (share.endAngle > share.startAngle ? (shape(share) ?? "") : ""));
}
