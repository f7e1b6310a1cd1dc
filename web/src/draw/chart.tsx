// Charts. The plot is an image named by the summary. An invisible slider over it lets arrow keys, a finger or
// the mouse select a point, whose value is shown above the plot.

import { useId, useState } from "preact/hooks";

import type * as View from "../view_types";
import { areaPath, bars, linePath, plotOf } from "./chart_geometry";
import type { Plot } from "./chart_geometry";
import { Pie } from "./pie";
import { Words } from "./words";

const smallTable = 24; // points; larger tables are omitted for screen readers
const fitsUnderPlot = 40; // total characters of the labels, on a phone

export function Chart(chart: View.Chart) {
  const empty = chart.points.length === 0;
  return (
    <figure class={`chart chart-${chart.kind}`}>
      {chart.title !== "" && (
        <figcaption class="chart-title">
          <Words text={chart.title} />
        </figcaption>
      )}
      {empty && (
        <p class="text tone-quiet">
          <Words text={chart.summary} />
        </p>
      )}
      {!empty && (chart.kind === "pie" ? <Pie {...chart} /> : <Plotted {...chart} />)}
    </figure>
  );
}

// The initially selected point: the latest of a line, the highest bar.
function telling({ kind, points }: View.Chart): number {
  if (kind === "line") return points.length - 1;
  return points.reduce((best, point, index) => (point.value > points[best]!.value ? index : best), 0);
}

function Plotted(chart: View.Chart) {
  const [asked, setAsked] = useState(-1);
  const shown = asked >= 0 && asked < chart.points.length ? asked : telling(chart);
  const point = chart.points[shown]!;
  const plot = plotOf(chart);
  return (
    <>
      <p class="chart-readout" aria-hidden="true">
        <span class="chart-figure">
          <Words text={point.text} />
        </span>
        <span class="chart-place">
          <Words text={point.label} />
        </span>
      </p>
      <div class="chart-frame">
        <Scale scale={chart.scale} plot={plot} />
        <div class="chart-plot">
          <Marks chart={chart} plot={plot} shown={shown} />
          {chart.kind === "line" && (
            <span
              class="chart-marker"
              style={{ left: `${plot.across(shown)}%`, bottom: `${plot.up(point.value)}%` }}
              aria-hidden="true"
            />
          )}
          {chart.points.length > 1 && <Scrub chart={chart} shown={shown} ask={setAsked} />}
        </div>
        <Labels chart={chart} />
      </div>
      {chart.points.length <= smallTable && <Table {...chart} />}
    </>
  );
}

function Marks({
  chart,
  plot,
  shown,
}: {
  readonly chart: View.Chart;
  readonly plot: Plot;
  readonly shown: number;
}) {
  const shade = useId();
  const { kind, points, scale, summary } = chart;
  return (
    <svg class="chart-marks" viewBox="0 0 100 100" preserveAspectRatio="none" role="img" aria-label={summary}>
      {scale.map((tick) => (
        <line
          key={tick.value}
          class="chart-grid"
          x1="0"
          x2="100"
          y1={100 - plot.up(tick.value)}
          y2={100 - plot.up(tick.value)}
        />
      ))}
      {kind === "line" && (
        <>
          <linearGradient id={shade} x1="0" y1="0" x2="0" y2="1">
            <stop class="chart-shade-top" offset="0" />
            <stop class="chart-shade-foot" offset="1" />
          </linearGradient>
          <path fill={`url(#${shade})`} d={areaPath(points, plot)} />
          <path class="chart-line-path" d={linePath(points, plot)} />
        </>
      )}
      {(kind === "bar" || kind === "histogram") &&
        bars(kind, points, plot).map((bar, index) => (
          <rect key={index} class={`chart-bar-mark${index === shown ? " is-shown" : ""}`} {...bar} />
        ))}
    </svg>
  );
}

function Scale({ scale, plot }: { readonly scale: readonly View.ChartTick[]; readonly plot: Plot }) {
  const widest = scale.reduce((text, tick) => (tick.text.length > text.length ? tick.text : text), "");
  return (
    <div class="chart-scale" aria-hidden="true">
      <span class="chart-scale-room">{widest}</span>
      {scale.map((tick) => (
        <span key={tick.value} class="chart-tick" style={{ bottom: `${plot.up(tick.value)}%` }}>
          {tick.text}
        </span>
      ))}
    </div>
  );
}

// All labels if they fit, else the first and the last.
function Labels({ chart: { kind, points } }: { readonly chart: View.Chart }) {
  const letters = points.reduce((sum, point) => sum + point.label.length + 2, 0);
  const all = letters <= fitsUnderPlot;
  const shown = all || points.length < 2 ? points : [points[0]!, points[points.length - 1]!];
  const placing = all && kind !== "line" ? "chart-labels chart-labels-centred" : "chart-labels";
  return (
    <div class={placing} aria-hidden="true">
      {shown.map((point, index) => (
        <span key={index}>{point.label}</span>
      ))}
    </div>
  );
}

interface ScrubProps {
  readonly chart: View.Chart;
  readonly shown: number;
  readonly ask: (index: number) => void;
}

function Scrub({ chart: { kind, title, points }, shown, ask }: ScrubProps) {
  const under = (event: PointerEvent) => {
    if (event.pointerType !== "mouse") return;
    const box = (event.currentTarget as Element).getBoundingClientRect();
    const share = Math.min(Math.max((event.clientX - box.left) / box.width, 0), 1);
    ask(
      kind === "line"
        ? Math.round(share * (points.length - 1))
        : Math.min(Math.floor(share * points.length), points.length - 1),
    );
  };
  return (
    <input
      type="range"
      class="chart-scrub"
      min={0}
      max={points.length - 1}
      step={1}
      value={shown}
      aria-label={title === "" ? "Points" : `${title}, points`}
      aria-valuetext={`${points[shown]!.label}: ${points[shown]!.text}`}
      onInput={(event) => ask(event.currentTarget.valueAsNumber)}
      onPointerMove={under}
      onPointerLeave={(event) => {
        if (event.pointerType === "mouse") ask(-1);
      }}
    />
  );
}

// A table of all values. It is visible for a histogram.
function Table({ kind, title, points }: View.Chart) {
  return (
    <div class={kind === "histogram" ? "chart-shares" : "unseen"}>
      <table>
        <caption class="unseen">{title}</caption>
        <tbody>
          {points.map((point, index) => (
            <tr key={index}>
              <th scope="row">{point.label}</th>
              <td>{point.text}</td>
            </tr>
          ))}
        </tbody>
      </table>
    </div>
  );
}
