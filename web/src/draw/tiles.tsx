// Large figures side by side.

import { useRef } from "preact/hooks";

import type * as View from "../view_types";
import { useCounting } from "./counting";
import { numbered } from "./keys";
import { useScreen } from "./screen_context";
import { Icon } from "./signs";
import { Words } from "./words";

// Characters of a figure that fit at full size, by the number of tiles across a phone.
const fitsHalf = 8;
const fitsThird = 5;

// Characters of labels in a third of a phone's width.
const labelInThird = 12;
const detailInThird = 18;

const longestOf = (tiles: readonly View.StatTile[]): number =>
  Math.max(...tiles.map(({ value }) => value.length));

// Three short figures share a line. For other odd numbers the first tile gets its own line, so that the last
// one is not alone.
function layoutOf(tiles: readonly View.StatTile[]): "one" | "three" | "odd" | "even" {
  if (tiles.length === 1) return "one";
  if (tiles.length % 2 === 0) return "even";
  const short =
    longestOf(tiles) <= fitsHalf &&
    tiles.every(({ label, detail }) => label.length <= labelInThird && detail.length <= detailInThird);
  return tiles.length === 3 && short ? "three" : "odd";
}

// Figures side by side have the size that fits the longest; a tile on its own line is not considered.
function sizeOf(tiles: readonly View.StatTile[], layout: string): string {
  if (longestOf(tiles) > 2 * fitsHalf) return " figure-words";
  const longest = longestOf(layout === "odd" ? tiles.slice(1) : tiles);
  return longest > (layout === "three" ? fitsThird : fitsHalf) ? " figure-long" : "";
}

function Tile({ label, value, detail, tone, band, icon, size }: View.StatTile & { readonly size: string }) {
  const { title } = useScreen();
  const figure = useRef<HTMLElement>(null);
  useCounting(figure, `${title}|${label}`, value);
  return (
    <div class={`tile tone-${tone}`}>
      <dt class="tile-label">
        <Words text={label} />
      </dt>
      <dd class={`figure band-${band}${size}`} ref={figure}>
        <Icon name={icon} />
        <Words text={value} />
      </dd>
      {detail !== "" && (
        <dd class="tile-detail">
          <Words text={detail} />
        </dd>
      )}
    </div>
  );
}

export function Tiles({ tiles }: View.Tiles) {
  if (tiles.length === 0) return null;
  const keys = numbered(tiles.map((tile) => tile.label));
  const layout = layoutOf(tiles);
  const size = sizeOf(tiles, layout);
  return (
    <dl class={`tiles tiles-${layout}`}>
      {tiles.map((tile, index) => (
        <Tile key={keys[index]!} {...tile} size={size} />
      ))}
    </dl>
  );
}
