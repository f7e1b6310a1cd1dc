// A news item with stamp, text and an optional press. The lead is drawn as a front page, others as lines of a
// list.

import type { ComponentChildren } from "preact";

import type * as View from "../view_types";
import { Picture } from "./picture";
import { usePress } from "./pressing";
import { Chevron } from "./signs";
import { Words } from "./words";

export function Headlines({ children }: { readonly children?: ComponentChildren }) {
  return (
    <ul class="headlines" role="list">
      {children}
    </ul>
  );
}

function HeadlineContent({ stamp, text, detail, value, picture, isLead }: View.Headline) {
  return (
    <>
      {picture.map((shown) => (
        <Picture key={shown.name} {...shown} size={isLead ? "lead" : "row"} />
      ))}
      <span class="headline-words">
        {(stamp !== "" || value !== "") && (
          <span class="headline-top">
            {stamp !== "" && (
              <span class="stamp">
                <Words text={stamp} />
                <span class="unseen">: </span>
              </span>
            )}
            {value !== "" && (
              <span class="headline-value">
                <Words text={value} />
                <span class="unseen">, </span>
              </span>
            )}
          </span>
        )}
        <span class="headline-text">
          <Words text={text} />
        </span>
        {detail !== "" && (
          <span class="headline-detail">
            <span class="unseen">, </span>
            <Words text={detail} />
          </span>
        )}
      </span>
    </>
  );
}

export function Headline(headline: View.Headline) {
  const press = usePress();
  const look = `headline ${headline.isLead ? "headline-lead" : "headline-brief"} tone-${headline.tone}`;
  return (
    <li class={`headline-place${headline.isLead ? " is-lead" : ""}`}>
      {headline.handle === 0 ? (
        <div class={look}>
          <HeadlineContent {...headline} />
        </div>
      ) : (
        <button type="button" class={`${look} headline-press`} data-handle={headline.handle} onClick={press}>
          <HeadlineContent {...headline} />
          <Chevron />
        </button>
      )}
    </li>
  );
}
