// The entry point for drawing a page.
//
// A redraw of the same screen keeps scroll position, focus and typed text. Another screen starts at its top
// with the focus on its heading; a screen that the player returns to is restored.

import { Component, createRef } from "preact";

import type { PageViewProps } from "../runtime/actions";
import type { Page } from "../view_types";
import { newsBetween } from "./news";
import { focusNow, keepFocus, Places, screenOf } from "./places";
import type { Focus } from "./places";
import { cameUp, pressAfterTyping } from "./pressing";
import { Screen } from "./screen";

const product = document.title;

// Identifies the screen or the message over it.
const placeOf = (page: Page): string => `${screenOf(page)} ${page.dialog[0]?.title ?? ""}`;

export class PageView extends Component<PageViewProps> {
  private readonly root = createRef<HTMLDivElement>();
  private readonly places = new Places();
  private focus: Focus | null = null; // the page's last focus while a dialog is open

  override componentDidMount(): void {
    this.nameTab();
    window.scrollTo(0, 0); // a career that was brought in takes the place of a page that may have been scrolled
    addEventListener("keydown", this.onKeyDown);
  }

  override componentWillUnmount(): void {
    removeEventListener("keydown", this.onKeyDown);
  }

  // Escape goes back, except in fields, where it ends typing, and in messages.
  private readonly onKeyDown = (event: KeyboardEvent): void => {
    if (event.key !== "Escape" || event.defaultPrevented || document.querySelector("dialog[open]") !== null) return;
    const control = document.activeElement;
    if (control instanceof HTMLElement && control.matches("input:not([type=radio], [type=checkbox]), textarea"))
      return control.blur();
    this.props.actions.back();
  };

  // Runs while the previous page is still shown.
  override getSnapshotBeforeUpdate(before: PageViewProps): null {
    this.focus = focusNow(this.root.current!) ?? (before.page.dialog.length > 0 ? this.focus : null);
    if (screenOf(before.page) !== screenOf(this.props.page)) this.places.leave(before.page, this.focus);
    return null;
  }

  override componentDidUpdate(before: PageViewProps): void {
    const { page } = this.props;
    const root = this.root.current!;
    if (screenOf(before.page) === screenOf(page)) {
      const wasOnPage = this.focus !== null || before.page.dialog.length > 0;
      if (wasOnPage && page.dialog.length === 0) keepFocus(root, this.focus);
    } else {
      this.nameTab();
      this.focus = null;
      this.places.enter(root, page);
    }
    if (placeOf(before.page) !== placeOf(page)) cameUp();
    this.tell(newsBetween(before.page, page));
    pressAfterTyping();
  }

  override render() {
    return <Screen {...this.props} root={this.root} />;
  }

  private nameTab(): void {
    const { title: whole, heading } = this.props.page;
    const title = heading === "" ? whole : heading;
    document.title = title === "" || title === product ? product : `${title} · ${product}`;
  }

  private tell(news: readonly string[]): void {
    const region = this.root.current?.querySelector("[data-news]");
    const sentences = news.map((words) => (/[.!?…]\s*$/u.test(words) ? words : `${words}.`));
    if (region && sentences.length > 0) region.textContent = sentences.join(" ");
  }
}
