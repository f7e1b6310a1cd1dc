// Headless Chromium for tests and icons, without background network requests.

import { chromium } from "playwright-core";

const flags = [
  "--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
  "--disable-background-networking", "--disable-component-update", "--disable-sync",
];

export function launchChromium() {
  return chromium.launch({ executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium", args: flags });
}
