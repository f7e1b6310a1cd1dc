// The frame of a page: the bar, the masthead, and the foot with the main action and the tabs.

import type * as View from "../view_types";
import { PressButton } from "./button";
import { numbered } from "./keys";
import { usePress } from "./pressing";
import { Back, Icon } from "./signs";
import { Words } from "./words";
import { wordmark } from "../art/wordmark";

// Cash and energy, always visible.
function Figures({ figures }: Pick<View.Page, "figures">) {
  if (figures.length === 0) return null;
  return (
    <dl class="head-figures">
      {figures.map(({ label, value, detail, tone, icon }) => (
        <div key={label} class={`head-figure tone-${tone}`}>
          <dt class="unseen">{label}</dt>
          <dd>
            <Icon name={icon} />
            <Words text={value} />
            {detail !== "" && <span class="unseen"> {detail}</span>}
          </dd>
        </div>
      ))}
    </dl>
  );
}

// Whether the figures are in the masthead.
const isOpening = (page: View.Page): boolean => page.head === "full" && page.close.length === 0;

// The title in the bar, unless there is a masthead. The tab's heading is for screen readers.
function BarTitle({ title, subtitle, heading, head }: View.Page) {
  const words = <Words text={title} />;
  if (head === "full") {
    return (
      <span class="bar-title" aria-hidden="true">
        {words}
      </span>
    );
  }
  return (
    <div class="bar-words">
      {heading === "" ? (
        <h1 class="bar-name" tabIndex={-1}>
          {words}
        </h1>
      ) : (
        <p class="bar-name">{words}</p>
      )}
      {subtitle !== "" && (
        <p class="bar-more">
          <Words text={subtitle.replaceAll("\n", " ")} />
        </p>
      )}
    </div>
  );
}

export function Bar({ page }: { readonly page: View.Page }) {
  const press = usePress();
  const keys = numbered(page.icons.map((icon) => icon.label));
  return (
    <header class="bar">
      <div class="bar-in">
        {isOpening(page) && (
          <span class="wordmark" aria-hidden="true" dangerouslySetInnerHTML={{ __html: wordmark }} />
        )}
        {page.close.map((close) => (
          <button key="close" type="button" class="bar-back" data-handle={close.handle} onClick={press}>
            <Back />
            <Words text={close.label} />
          </button>
        ))}
        <BarTitle {...page} />
        {!isOpening(page) && <Figures figures={page.figures} />}
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
                <Icon name={icon.icon} />
              </button>
            ))}
          </div>
        )}
      </div>
    </header>
  );
}

// The heading gets the focus when a screen opens, so that it is announced and keyboard navigation starts at
// the top.
export function Masthead({ page }: { readonly page: View.Page }) {
  const { title, subtitle, heading, head } = page;
  if (head === "line") {
    return heading === "" ? null : (
      <h1 class="unseen" tabIndex={-1}>
        {heading}
      </h1>
    );
  }
  return (
    <div class="masthead">
      <div class="masthead-in">
        <div class="masthead-words">
          <h1 class="page-title" tabIndex={-1}>
            <Words text={title} />
          </h1>
          {subtitle !== "" && (
            <p class="page-subtitle">
              <Words text={isOpening(page) ? subtitle.replaceAll("\n", " ") : subtitle} />
            </p>
          )}
        </div>
        {isOpening(page) && <Figures figures={page.figures} />}
      </div>
    </div>
  );
}

function Tabs({ tabs }: { readonly tabs: readonly View.Tab[] }) {
  const press = usePress();
  if (tabs.length === 0) return null;
  const keys = numbered(tabs.map((tab) => tab.label));
  // Disabled tabs keep their space but are hidden, also from screen readers.
  const isOff = tabs.every((tab) => tab.isOff);
  return (
    <nav class={isOff ? "tabs is-off" : "tabs"} aria-label="Tabs" id="tabs" tabIndex={-1} inert={isOff}>
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
                <Icon name={tab.icon} />
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

// At the same position on every page: above the tabs on a phone, below them on a wide screen.
export function Foot({ main, tabs }: Pick<View.Page, "main" | "tabs">) {
  if (main.length === 0 && tabs.length === 0) return null;
  return (
    <footer class="foot">
      {main.map((button) => (
        <div class="foot-main" key="main">
          <PressButton {...button} />
        </div>
      ))}
      <Tabs tabs={tabs} />
    </footer>
  );
}
