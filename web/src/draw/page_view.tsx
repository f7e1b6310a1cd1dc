// Draws a page: the one way in for whoever holds it.
//
// A page is drawn over the one before. On the same screen everything keeps its place: the scroll, the focus,
// a text that is being typed. Another screen starts at its top, with the focus on its heading; one that is
// come back to is found where it was left.

import { Component, createRef } from "preact";

import type { PageViewProps } from "../runtime/actions";
import type { Page } from "../view_types";
import { newsBetween } from "./news";
import { focusNow, keepFocus, Places, screenOf } from "./places";
import type { Focus } from "./places";
import { cameUp, pressAfterTyping } from "./pressing";
import { Screen } from "./screen";

const product = document.title;

// What a press meets: the screen, or the message over it.
const placeOf = (page: Page): string => `${screenOf(page)} ${page.dialog[0]?.title ?? ""}`;

export class PageView extends Component<PageViewProps> {
  private readonly root = createRef<HTMLDivElement>();
  private readonly places = new Places();
  private focus: Focus | null = null; // the last one on the page itself, while a dialog has it

  override componentDidMount(): void {
    this.nameTab();
    addEventListener("keydown", this.onKeyDown);
  }

  override componentWillUnmount(): void {
    removeEventListener("keydown", this.onKeyDown);
  }

  // Escape goes back. In a field it only ends the typing, and a message has its own answer to it.
  private readonly onKeyDown = (event: KeyboardEvent): void => {
    if (event.key !== "Escape" || event.defaultPrevented || document.querySelector("dialog[open]") !== null) return;
    const control = document.activeElement;
    if (control instanceof HTMLElement && control.matches("input:not([type=radio], [type=checkbox]), textarea"))
      return control.blur();
    this.props.actions.back();
  };

  // The page before is still on show.
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
