// Archives of many saves. A script of its own, which the page imports when an archive is made or brought in.

import { unzipSync, zipSync } from "fflate";

import { backupFolder, type DocumentPlace, isSamePlace } from "../runtime/documents";

const mostBackups = 8; // as in src/core/save_backups.h

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

const isBackup = ({ folder }: DocumentPlace) => folder === backupFolder;

// The documents that come beside those that are known: none of the same place, and of the backups the newest, as many
// as there is room for beside a backup of the career in play.
export function fitting<T extends DocumentPlace>(documents: readonly T[], known: readonly DocumentPlace[]): T[] {
  const others = documents.filter((document) => !known.some((old) => isSamePlace(old, document)));
  const room = Math.max(mostBackups - 1 - known.filter(isBackup).length, 0);
  // Their names have the time.
  const backups = others.filter(isBackup).sort((one, other) => (one.name < other.name ? 1 : -1));
  return [...others.filter((document) => !isBackup(document)), ...backups.slice(0, room)];
}

// For the question whether an archive is brought in. `left`: how many stay in the archive only.
export function sentenceAbout(coming: number, left: number): string {
  const come = coming === 1 ? " 1 slot or backup comes with it." : ` ${coming} slots and backups come with it.`;
  const stay = ` ${left} more of them ${left === 1 ? "stays" : "stay"} in the file only: yours are kept, and the game keeps eight backups.`;
  return (coming > 0 ? come : "") + (left > 0 ? stay : "");
}
