import type * as View from "../view_types";
import { Words } from "./words";

// What came in and what went out. The heading above says which is which, and so does the colour.
export function Balance({ income, expenses }: View.Balance) {
  return (
    <p class="balance">
      <span class="balance-side">
        <Words text={income} />
      </span>
      {" | "}
      <span class="balance-side tone-warning">
        <Words text={expenses} />
      </span>
    </p>
  );
}
