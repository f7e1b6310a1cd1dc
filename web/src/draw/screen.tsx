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
import { Bar, Masthead, Tabs } from "./page_parts";
import { screenOf } from "./places";
import { ScreenContext } from "./screen_context";

// While a message is up, nothing under it can be used and its controls have no handles. The page then stays
// as it was before the message came, and what has changed shows when the player has read why.
function usePageUnderDialog(page: Page): Page {
  const open = useRef(page);
  if (page.dialog.length === 0 || screenOf(page) !== screenOf(open.current)) open.current = page;
  return open.current;
}

function Content({ front, lead, columns, action }: Parts) {
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
      {action.length > 0 && (
        <div class="action" key="action">
          <Nodes nodes={action} />
        </div>
      )}
    </div>
  );
}

// Tells the style when the title has scrolled away, so that the bar shows it.
function useScrolledTitle(root: RefObject<HTMLDivElement | null>): void {
  useEffect(() => {
    const screen = root.current!;
    const watch = new IntersectionObserver(
      ([title]) => screen.toggleAttribute("data-scrolled", !title!.isIntersecting),
      {
        rootMargin: "-56px 0px 0px", // under the bar is out of sight
      },
    );
    watch.observe(screen.querySelector("h1")!);
    return () => watch.disconnect();
  }, []);
}

// Tells the style how high the tabs stand, which large text may break into two lines: what sticks does so
// above them.
function useTabsHeight(root: RefObject<HTMLDivElement | null>, count: number): void {
  useEffect(() => {
    const tabs = root.current!.querySelector<HTMLElement>(".tabs");
    if (tabs === null) return;
    const tell = () => document.documentElement.style.setProperty("--tabs-height", `${tabs.offsetHeight}px`);
    const watch = new ResizeObserver(tell);
    watch.observe(tabs);
    return () => {
      watch.disconnect();
      document.documentElement.style.removeProperty("--tabs-height");
    };
  }, [count > 0]);
}

type ScreenProps = PageViewProps & { readonly root: RefObject<HTMLDivElement | null> };

export function Screen({ page, actions, banner, corner, root }: ScreenProps) {
  const under = usePageUnderDialog(page);
  useScrolledTitle(root);
  useTabsHeight(root, under.tabs.length);
  const context = useMemo(() => ({ title: under.title, actions, headingLevel: 2 }), [under.title, actions]);
  const parts = partsOf(under.nodes);
  const looks = ["screen", under.tabs.length > 0 && "has-tabs", parts.isNarrow && "is-narrow"];
  const dialog = page.dialog[0];
  return (
    <ScreenContext.Provider value={context}>
      <div class={looks.filter(Boolean).join(" ")} ref={root}>
        {under.tabs.length > 0 && (
          <button type="button" class="skip" onClick={() => document.getElementById("tabs")?.focus()}>
            Skip to the tabs
          </button>
        )}
        <Bar page={under} />
        <main class="main">
          <Masthead title={under.title} subtitle={under.subtitle} />
          <div class="content">
            {banner}
            <Content key={screenOf(under)} {...parts} />
            {corner}
          </div>
        </main>
        <Tabs tabs={under.tabs} />
        <p class="unseen" aria-live="polite" data-news />
        <MomentOver page={page} />
        {dialog !== undefined && <Dialog key={`${dialog.title} ${dialog.message}`} {...dialog} />}
      </div>
    </ScreenContext.Provider>
  );
}
