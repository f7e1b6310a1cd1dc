// A choice of one or several options, implemented as radio buttons or check boxes in all styles.

import { useId, useLayoutEffect, useRef } from "preact/hooks";

import type * as View from "../view_types";
import { numbered } from "./keys";
import { Picture } from "./picture";
import { usePress } from "./pressing";
import { Check } from "./signs";
import { Words } from "./words";

const fitsSideBySide = 22; // total characters of the options, on a small phone
const fitsAChip = 6; // characters of the longest option
const fitsALabel = 18;
const mostLabels = 8; // more options are shown as a list

type Looks = "pictures" | "side-by-side" | "chips" | "labels" | "list";

function looksOf({ options, several }: View.Choice): Looks {
  if (options.some((option) => option.picture.length > 0)) return "pictures";
  const letters = options.map((option) => option.label.length);
  if (several) return "list";
  const longest = Math.max(...letters);
  if (letters.length > 4 && longest <= fitsAChip) return "chips";
  const together = letters.reduce((sum, more) => sum + more, 0);
  if (letters.length <= 4 && together <= fitsSideBySide) return "side-by-side";
  return letters.length <= mostLabels && longest <= fitsALabel ? "labels" : "list";
}

export function Choice(choice: View.Choice) {
  const name = useId();
  const press = usePress();
  const fieldset = useRef<HTMLFieldSetElement>(null);
  const chosen = useRef<readonly boolean[]>([]);
  chosen.current = choice.options.map((option) => option.chosen);

  // Undoes the browser's own check mark: the game decides what is chosen.
  const showChosen = () => {
    fieldset.current?.querySelectorAll("input").forEach((input, index) => {
      input.checked = chosen.current[index] ?? false;
    });
  };
  useLayoutEffect(showChosen);
  const choose = (event: Event) => {
    press(event);
    showChosen();
  };

  const looks = looksOf(choice);
  const keys = numbered(choice.options.map((option) => option.label));
  return (
    <fieldset class={`choice choice-${looks}`} ref={fieldset}>
      <legend class={choice.label === "" ? "unseen" : "field-label"}>
        <Words text={choice.label === "" ? "Options" : choice.label} />
      </legend>
      <div class="options">
        {choice.options.map((option, index) => (
          <label class={`option${option.chosen ? " is-chosen" : ""}`} key={keys[index]!}>
            <input
              type={choice.several ? "checkbox" : "radio"}
              class="option-control"
              name={name}
              data-handle={option.handle}
              onChange={choose}
            />
            {option.picture.map((shown) => (
              <Picture key={shown.name} {...shown} size="option" />
            ))}
            <span class="option-mark" aria-hidden="true">
              <Check />
            </span>
            <span class="option-label">
              <Words text={option.label} />
            </span>
          </label>
        ))}
      </div>
    </fieldset>
  );
}
