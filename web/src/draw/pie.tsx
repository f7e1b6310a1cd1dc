// A pie chart with a legend, which has all figures.

import type * as View from "../view_types";
import { slices } from "./chart_geometry";
import { Words } from "./words";

const colours = 8; // slice colors in the style; a ninth slice reuses the first

const colourOf = (index: number): string => `slice-${(index % colours) + 1}`;

export function Pie({ points, summary }: View.Chart) {
  return (
    <div class="pie">
      <svg class="pie-plot" viewBox="-50 -50 100 100" role="img" aria-label={summary}>
        <circle class="pie-empty" r="38" />
        {slices(points).map(
          (path, index) => path !== "" && <path key={index} class={colourOf(index)} d={path} />,
        )}
      </svg>
      <ul class="legend" role="list">
        {points.map((point, index) => (
          <li key={index} class="legend-entry">
            <span class={`legend-colour ${colourOf(index)}`} aria-hidden="true" />
            <span class="legend-label">
              <Words text={point.label} />
              <span class="unseen">: </span>
            </span>
            <span class="legend-text">{point.text}</span>
          </li>
        ))}
      </ul>
    </div>
  );
}
