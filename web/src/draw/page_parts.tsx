// What stands around a page: the bar over it, the title it opens with, the tabs under it.

import type * as View from "../view_types";
import { numbered } from "./keys";
import { usePress } from "./pressing";
import { Back } from "./signs";
import { Words } from "./words";
import { wordmark } from "../art/wordmark";

export function Bar({ page }: { readonly page: View.Page }) {
  const press = usePress();
  const keys = numbered(page.icons.map((icon) => icon.label));
  return (
    <header class="bar">
      <div class="bar-in">
        {page.close.length === 0 && (
          <span class="wordmark" aria-hidden="true" dangerouslySetInnerHTML={{ __html: wordmark() }} />
        )}
        {page.close.map((close) => (
          <button key="close" type="button" class="bar-back" data-handle={close.handle} onClick={press}>
            <Back />
            <Words text={close.label} />
          </button>
        ))}
        <span class="bar-title" aria-hidden="true">
          <Words text={page.title} />
        </span>
        {page.icons.length > 0 && (
          <div class="bar-icons">
            {page.icons.map((icon, index) => (
              <button
                key={keys[index]!}
                type="button"
                class="bar-icon"
                title={icon.label}
                aria-label={icon.label}
                aria-current={icon.current ? "page" : undefined}
                data-handle={icon.handle}
                onClick={press}
              >
                <Words text={icon.icon} />
              </button>
            ))}
          </div>
        )}
      </div>
    </header>
  );
}

// The heading takes the focus when a screen opens, so that its name is read and the keyboard starts from its
// top.
export function Masthead({ title, subtitle }: Pick<View.Page, "title" | "subtitle">) {
  return (
    <div class="masthead">
      <div class="masthead-in">
        <h1 class="page-title" tabIndex={-1}>
          <Words text={title} />
        </h1>
        {subtitle !== "" && (
          <p class="page-subtitle">
            <Words text={subtitle} />
          </p>
        )}
      </div>
    </div>
  );
}

export function Tabs({ tabs }: { readonly tabs: readonly View.Tab[] }) {
  const press = usePress();
  if (tabs.length === 0) return null;
  const keys = numbered(tabs.map((tab) => tab.label));
  return (
    <nav class="tabs" aria-label="Tabs" id="tabs" tabIndex={-1}>
      <ul class="tabs-in" role="list">
        {tabs.map((tab, index) => (
          <li class="tab-place" key={keys[index]!}>
            <button
              type="button"
              class="tab"
              aria-current={tab.current ? "page" : undefined}
              data-handle={tab.handle}
              onClick={press}
            >
              <span class="tab-icon" aria-hidden="true">
                <Words text={tab.icon} />
              </span>
              <span class="tab-label">
                <Words text={tab.label} />
              </span>
            </button>
          </li>
        ))}
      </ul>
    </nav>
  );
}
