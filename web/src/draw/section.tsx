// A section with a heading, whose level depends on its nesting.

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

// Content below a heading, with headings one level lower.
export function Under({ children }: { readonly children: ComponentChildren }) {
  const screen = useScreen();
  const below = { ...screen, headingLevel: Math.min(screen.headingLevel + 1, 6) };
  return <ScreenContext.Provider value={below}>{children}</ScreenContext.Provider>;
}

// Not a landmark, because a page would have too many.
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
