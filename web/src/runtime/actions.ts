// The interface between the runtime and the drawing code, which gets PageViewProps and reports the player's
// actions. The drawing code is independent of WebAssembly, storage and other tabs.

import type { ComponentChildren } from "preact";

import type { Page } from "../view_types";

// The player used the item with this handle. Each call is one saved action of the game, followed by a redraw.
export interface Actions {
  press(handle: number): void;
  type(handle: number, text: string): void;
  slide(handle: number, value: number): void;
  back(): void;
}

export interface PageViewProps {
  readonly page: Page;
  readonly actions: Actions;
  readonly banner: ComponentChildren; // notices about saving and updates, above the page's nodes
  readonly corner: ComponentChildren; // export and import of saves, after the last node of pages that offer it
}
