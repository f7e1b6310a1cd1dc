// Checks a page by the automatic rules of WCAG 2.2 AA. With SCREENSHOTS=<folder> it also saves a screenshot
// of each page.

import assert from "node:assert/strict";
import { mkdirSync, readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { join } from "node:path";
import type { Page } from "playwright-core";

const checker = readFileSync(createRequire(join(process.cwd(), "package.json")).resolve("axe-core/axe.min.js"), "utf8");
const rules = ["wcag2a", "wcag2aa", "wcag21a", "wcag21aa", "wcag22aa", "best-practice"];
const pictures = process.env["SCREENSHOTS"];
if (pictures) mkdirSync(pictures, { recursive: true });

export interface Size {
  readonly width: number;
  readonly height: number;
}
export const phone = { width: 390, height: 844 };
export const narrow = { width: 320, height: 640 };
export const wide = { width: 1280, height: 800 };

interface Violation {
  readonly id: string;
  readonly nodes: readonly { readonly html: string; readonly failureSummary: string }[];
}

// Checks the current page in both themes for violations and horizontal overflow.
export async function inspect(page: Page, name: string, size: Size = phone): Promise<void> {
  for (const theme of ["light", "dark"] as const) {
    await page.emulateMedia({ colorScheme: theme, reducedMotion: "reduce" });
    await page.setViewportSize(size);
    // The viewport is as high as the page, because sticky elements would cover content. Not needed for a
    // dialog.
    const whole = await page.evaluate(() =>
      document.querySelector("dialog[open]") ? 0 : document.documentElement.scrollHeight,
    );
    await page.setViewportSize({ width: size.width, height: Math.max(size.height, whole) });
    // The page's policy blocks other scripts, so the checker is evaluated by the debugger.
    await page.evaluate(checker);
    const found = await page.evaluate<Violation[]>(
      `axe.run({ runOnly: ${JSON.stringify(rules)} }).then((run) => run.violations)`,
    );
    const violations = found.map(
      ({ id, nodes }) => `${id}: ${nodes[0]!.html.slice(0, 160)} ${nodes[0]!.failureSummary}`,
    );
    assert.deepEqual(violations, [], `${name}, ${size.width} px, ${theme}`);
    const sideways = await page.evaluate(() => document.documentElement.scrollWidth - window.innerWidth);
    assert(sideways <= 0, `${name} is ${sideways} px too wide`);
    for (const shot of pictures ? new Set([wide, size]) : []) {
      await page.setViewportSize(shot);
      await page.screenshot({ path: join(pictures!, `${name}-${shot.width}-${theme}.png`), fullPage: true });
    }
    await page.setViewportSize(size);
  }
}
