// A part of the page under its heading. Headings count down from the page's own, as parts stand within parts.

import type { ComponentChildren } from "preact";

import type * as View from "../view_types";
import { Nodes } from "./node";
import { ScreenContext, useScreen } from "./screen_context";
import { Words } from "./words";

interface HeadingProps {
  readonly class: string;
  readonly children: ComponentChildren;
}

export function Heading(props: HeadingProps) {
  const { headingLevel } = useScreen();
  const Tag = `h${headingLevel}` as "h2";
  return <Tag {...props} />;
}

// What stands under a heading: its own headings are one level down.
export function Under({ children }: { readonly children: ComponentChildren }) {
  const screen = useScreen();
  const below = { ...screen, headingLevel: Math.min(screen.headingLevel + 1, 6) };
  return <ScreenContext.Provider value={below}>{children}</ScreenContext.Provider>;
}

// Found by its heading; a landmark of its own for each part would be too many to go through.
export function Section({ heading, nodes }: View.Section) {
  if (heading === "") {
    return (
      <div class="section">
        <Nodes nodes={nodes} />
      </div>
    );
  }
  return (
    <section class="section">
      <Heading class="section-heading">
        <Words text={heading} />
      </Heading>
      <Under>
        <Nodes nodes={nodes} />
      </Under>
    </section>
  );
}
