// The browser of the tests and of the drawing of icons: Chromium without a window, with nothing that talks to
// a network by itself.

import { chromium } from "playwright-core";

const flags = [
  "--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
  "--disable-background-networking", "--disable-component-update", "--disable-sync",
];

export function launchChromium() {
  return chromium.launch({ executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium", args: flags });
}
