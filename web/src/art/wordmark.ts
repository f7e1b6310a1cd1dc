// The name of the game as its own marquee.

import { hands, lettering } from "./lettering";
import { picture } from "./svg";

const width = 209;
const height = 30;

export function wordmark(): string {
  return picture(
    width,
    height,
    lettering("Top Billing", { x: 0, y: 0, width, height }, hands.inline, "#ffc44d", "#54102a"),
  );
}
