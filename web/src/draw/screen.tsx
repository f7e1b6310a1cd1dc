// A whole page.

import type { RefObject } from "preact";
import { useEffect, useMemo, useRef } from "preact/hooks";

import type { PageViewProps } from "../runtime/actions";
import type { Page } from "../view_types";
import { partsOf } from "./columns";
import type { Parts } from "./columns";
import { Dialog } from "./dialog";
import { MomentOver } from "./moment";
import { Nodes } from "./node";
import { Bar, Foot, Masthead } from "./page_parts";
import { Passing } from "./passing";
import { screenOf } from "./places";
import { ScreenContext } from "./screen_context";

// While a message is open, the page below keeps its previous content, because its controls have no handles.
// Changes appear when the message is closed.
function usePageUnderDialog(page: Page): Page {
  const open = useRef(page);
  if (page.dialog.length === 0 || screenOf(page) !== screenOf(open.current)) open.current = page;
  return open.current;
}

function Content({ front, lead, columns }: Parts) {
  return (
    <div class="nodes">
      {lead.length > 0 && (
        <div class="opening" key="opening">
          <Nodes nodes={front} />
          <div class="lead">
            <Nodes nodes={lead} />
          </div>
        </div>
      )}
      {columns.length > 0 && (
        <div class="columns" key="columns">
          {columns.map((column, index) => (
            <div class="column" key={index}>
              <Nodes nodes={column} />
            </div>
          ))}
        </div>
      )}
    </div>
  );
}

// Sets a class when the title has scrolled out of view, so that the bar shows it.
function useScrolledTitle(root: RefObject<HTMLDivElement | null>, head: Page["head"]): void {
  useEffect(() => {
    const screen = root.current!;
    const title = screen.querySelector(".masthead h1");
    screen.toggleAttribute("data-scrolled", title === null);
    if (title === null) return;
    const watch = new IntersectionObserver(
      ([seen]) => screen.toggleAttribute("data-scrolled", !seen!.isIntersecting),
      {
        rootMargin: "-56px 0px 0px", // the bar's height
      },
    );
    watch.observe(title);
    return () => watch.disconnect();
  }, [head]);
}

// Sets the foot's height as a style variable, so that focused controls are scrolled above it.
function useFootHeight(root: RefObject<HTMLDivElement | null>, hasFoot: boolean): void {
  useEffect(() => {
    const foot = root.current!.querySelector<HTMLElement>(".foot");
    if (foot === null) return;
    const tell = () => document.documentElement.style.setProperty("--foot-height", `${foot.offsetHeight}px`);
    const watch = new ResizeObserver(tell);
    watch.observe(foot);
    return () => {
      watch.disconnect();
      document.documentElement.style.removeProperty("--foot-height");
    };
  }, [hasFoot]);
}

type ScreenProps = PageViewProps & { readonly root: RefObject<HTMLDivElement | null> };

export function Screen({ page, actions, banner, corner, root }: ScreenProps) {
  const under = usePageUnderDialog(page);
  useScrolledTitle(root, under.head);
  useFootHeight(root, under.tabs.length > 0 || under.main.length > 0);
  const context = useMemo(() => ({ title: under.title, actions, headingLevel: 2 }), [under.title, actions]);
  const parts = partsOf(under.nodes);
  const looks = [
    "screen",
    `head-${under.head}`,
    under.tabs.length > 0 && "has-tabs",
    parts.isNarrow && "is-narrow",
  ];
  const dialog = page.dialog[0];
  const isFirst = under.close.length === 0; // the new-career form, which comes before the saves
  return (
    <ScreenContext.Provider value={context}>
      <div class={looks.filter(Boolean).join(" ")} ref={root}>
        {under.tabs.some((tab) => !tab.isOff) && (
          <button type="button" class="skip" onClick={() => document.getElementById("tabs")?.focus()}>
            Skip to the tabs
          </button>
        )}
        <Bar page={under} />
        <main class="main">
          <Masthead page={under} />
          <div class="content">
            {banner}
            {under.offersSaves && !isFirst && corner}
            <Content key={screenOf(under)} {...parts} />
            {under.offersSaves && isFirst && corner}
          </div>
        </main>
        <Foot main={under.main} tabs={under.tabs} />
        <Passing passing={page.passing} place={screenOf(page)} />
        <p class="unseen" aria-live="polite" data-news />
        <MomentOver page={page} />
        {dialog !== undefined && <Dialog key={`${dialog.title} ${dialog.message}`} {...dialog} />}
      </div>
    </ScreenContext.Provider>
  );
}
