// What the runtime and the drawing of a page agree on. The drawing gets a PageViewProps and hands back what
// the player used; it knows nothing of WebAssembly, storage or other tabs.

import type { ComponentChildren } from "preact";

import type { Page } from "../view_types";

// The player used what stands under a handle. Each is one action of the game, saved as a whole, after which
// the page is drawn again.
export interface Actions {
  press(handle: number): void;
  type(handle: number, text: string): void;
  slide(handle: number, value: number): void;
  back(): void;
}

export interface PageViewProps {
  readonly page: Page;
  readonly actions: Actions;
  readonly banner: ComponentChildren; // notices about saving and updates: above the page's nodes
  readonly corner: ComponentChildren; // the way to the saves: after the last node of a page that offers it
}
