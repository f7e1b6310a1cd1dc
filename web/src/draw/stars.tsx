import type * as View from "../view_types";
import { Name } from "./words";

// In a square of 24.
const star = "M12 1.8l3.1 6.5 7.1 1-5.2 4.9 1.3 7.1L12 17.9l-6.3 3.4 1.3-7.1L1.8 9.3l7.1-1z";

const figure = new Intl.NumberFormat(undefined, { maximumFractionDigits: 1 });

// Stars out of `outOf`, rounded to halves.
export function Stars({ label, value, outOf }: View.Stars) {
  const filled = Math.round(Math.min(Math.max(value, 0), outOf) * 2) / 2;
  const words = `${figure.format(value)} of ${outOf} stars`;
  return (
    <div class="stars">
      {label !== "" && (
        <span class="stars-label">
          <Name text={label} />
        </span>
      )}
      <span class={`stars-row${outOf > 5 ? " stars-many" : ""}`} role="img" aria-label={words}>
        {Array.from({ length: outOf }, (_, index) => (
          <svg key={index} viewBox="0 0 24 24" class="star" aria-hidden="true">
            <path class="star-unlit" d={star} />
            {filled > index && (
              <path
                class="star-lit"
                d={star}
                style={filled - index < 1 ? { clipPath: "inset(0 50% 0 0)" } : {}}
              />
            )}
          </svg>
        ))}
        <span class="stars-text" aria-hidden="true">
          {figure.format(value)}
        </span>
      </span>
    </div>
  );
}
