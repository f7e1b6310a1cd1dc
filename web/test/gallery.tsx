// The gallery: shows the page of gallery_pages.ts named after "#" in the address, and records actions.

import { render } from "preact";

import { pictureArt } from "../src/art/picture_art";
import { loadArt } from "../src/draw/drawn_pictures";
import { PageView } from "../src/draw/page_view";
import { loadFace } from "../src/runtime/face";
import "../src/style/index.css";
import type { Page } from "../src/view_types";
import { pages } from "./gallery_pages";

type Done = readonly [action: string, ...values: readonly (number | string)[]];

const done: Done[] = [];
const actions = {
  press: (handle: number) => void done.push(["press", handle]),
  type: (handle: number, text: string) => {
    done.push(["type", handle, text]);
    window.gallery.afterTyping(shown);
  },
  slide: (handle: number, value: number) => void done.push(["slide", handle, value]),
  back: () => void done.push(["back"]),
};

let shown: Page = pages["hub"]!;

function show(page: Page): void {
  shown = page;
  render(
    <PageView page={page} actions={actions} banner={null} corner={null} />,
    document.getElementById("app")!,
  );
}

declare global {
  interface Window {
    gallery: {
      readonly pages: typeof pages;
      readonly pictureArt: typeof pictureArt;
      readonly show: typeof show;
      readonly done: Done[];
      afterTyping: typeof show; // the response to an action; by default the same page
    };
  }
}
window.gallery = { pages, pictureArt, show, done, afterTyping: show };

const showNamed = (): void => show(pages[location.hash.slice(1)] ?? pages["hub"]!);
await Promise.all([loadArt(), loadFace()]);
window.addEventListener("hashchange", showNamed);
showNamed();
