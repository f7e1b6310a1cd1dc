// Headless Chromium for tests and icons, without background network requests.

import { chromium } from "playwright-core";

export const flags = [
  "--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
  "--disable-background-networking", "--disable-component-update", "--disable-sync",
];

export const executable = process.env.CHROMIUM ?? "/usr/bin/chromium";

export function launchChromium() {
  return chromium.launch({ executablePath: executable, args: flags });
}
