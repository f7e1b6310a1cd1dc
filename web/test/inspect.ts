// A look at a page as everybody has to be able to use it, by an accessibility checker. With SCREENSHOTS=<folder>
// it also keeps a picture of each page.

import assert from "node:assert/strict";
import { mkdirSync, readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { join } from "node:path";
import type { Page } from "playwright-core";

const checker = readFileSync(createRequire(join(process.cwd(), "package.json")).resolve("axe-core/axe.min.js"), "utf8");
const pictures = process.env["SCREENSHOTS"];

const phone = { width: 390, height: 844 };
if (pictures) mkdirSync(pictures, { recursive: true });

interface Violation {
  id: string;
  nodes: { html: string }[];
}

// The page as it is now, in both themes: no violation, and nothing wider than the screen.
export async function inspect(page: Page, name: string): Promise<void> {
  for (const theme of ["light", "dark"] as const) {
    await page.emulateMedia({ colorScheme: theme, reducedMotion: "reduce" });
    // As high as the page is: a button that stays in reach of the thumb would cover a part of what is below it.
    const height = await page.evaluate(() => document.documentElement.scrollHeight);
    await page.setViewportSize({ width: phone.width, height: Math.max(height, phone.height) });
    // The page's policy lets no script in but its own; the checker comes in by the debugger.
    await page.evaluate(checker);
    const violations = await page.evaluate<Violation[]>(
      "axe.run({ runOnly: ['wcag2a', 'wcag2aa', 'wcag21a', 'wcag21aa', 'wcag22aa', 'best-practice'] }).then((run) => run.violations)",
    );
    assert.deepEqual(violations.map(({ id, nodes }) => `${id}: ${nodes[0]?.html}`), [], `${name}, ${theme}`);
    const sideways = await page.evaluate(() => document.documentElement.scrollWidth - window.innerWidth);
    assert(sideways <= 0, `${name} is ${sideways} px too wide`);
    for (const size of pictures ? [{ width: 1280, height: 800 }, phone] : []) {
      await page.setViewportSize(size);
      await page.screenshot({ path: join(pictures ?? "", `${name}-${size.width}-${theme}.png`) });
    }
    await page.setViewportSize(phone);
  }
}
