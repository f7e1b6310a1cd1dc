// The entry point: starts the shell in an element of the page.

import { render } from "preact";

import { Shell } from "./runtime/shell";
import { ShellView } from "./runtime/shell_view";
import "./style/index.css";
import "./runtime/runtime.css";

const place = document.getElementById("app");
if (place) {
  const shell = new Shell();
  render(<ShellView shell={shell} />, place);
  void shell.start();
}
