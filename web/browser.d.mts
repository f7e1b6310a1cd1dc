import type { Browser } from "playwright-core";

export function launchChromium(): Promise<Browser>;
