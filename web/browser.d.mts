import type { Browser } from "playwright-core";

export const executable: string;
export const flags: string[];

export function launchChromium(): Promise<Browser>;
