// Archives of many saves. A script of its own, which the page imports when an archive is made or brought in.

import { unzipSync, zipSync } from "fflate";

const largestFile = 256 * 1024 * 1024; // bytes
const mostFiles = 100;

// Contents by their path.
export type Files = Readonly<Record<string, Uint8Array<ArrayBuffer>>>;

export const zipped = (files: Files) => zipSync(files, { level: 6 });

// The saves in an archive. Throws for what is no archive.
export function unzipped(archive: Uint8Array): Files {
  let count = 0;
  return unzipSync(archive, {
    filter: ({ name, originalSize }) => name.endsWith(".plist") && originalSize <= largestFile && (count += 1) <= mostFiles,
  }) as Files;
}
