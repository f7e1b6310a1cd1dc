// Large figures side by side, as on a letter board.

import { useRef } from "preact/hooks";

import type * as View from "../view_types";
import { useCounting } from "./counting";
import { numbered } from "./keys";
import { useScreen } from "./screen_context";
import { Words } from "./words";

const longFigure = 8; // characters that still fit half a phone's width at full size

function Tile({ label, value, detail, tone }: View.StatTile) {
  const { title } = useScreen();
  const figure = useRef<HTMLElement>(null);
  useCounting(figure, `${title}|${label}`, value);
  const size =
    value.length > 2 * longFigure ? " figure-words" : value.length > longFigure ? " figure-long" : "";
  return (
    <div class={`tile tone-${tone}`}>
      <dt class="tile-label">
        <Words text={label} />
      </dt>
      <dd class={`figure${size}`} ref={figure}>
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
  return (
    <dl class={tiles.length === 1 ? "tiles tiles-one" : "tiles"}>
      {tiles.map((tile, index) => (
        <Tile key={keys[index]!} {...tile} />
      ))}
    </dl>
  );
}
