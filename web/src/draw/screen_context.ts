// Shared by a screen's components: its title, its actions, and the heading level.

import { createContext } from "preact";
import { useContext } from "preact/hooks";

import type { Actions } from "../runtime/actions";

export interface ScreenContext {
  readonly title: string;
  readonly actions: Actions;
  readonly headingLevel: number; // of the next heading, 2 to 6
}

export const ScreenContext = createContext<ScreenContext>({
  title: "",
  actions: { press() {}, type() {}, slide() {}, back() {} },
  headingLevel: 2,
});

export const useScreen = (): ScreenContext => useContext(ScreenContext);
