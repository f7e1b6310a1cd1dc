// Parses picture names, which are file names or titles: "imdbPearTv.png", "lake_house-3", "Night
// Train".

// The words of a name, without extension, numbers and prefix: in a camel-case name only capitalized words
// count.
export function wordsOf(name: string): string[] {
  const stem = name.replace(/\.\w{2,5}$/u, "");
  const words = stem
    .replace(/(\p{Ll})(\p{Lu})/gu, "$1 $2")
    .split(/[\s_\-–—.()/\\]+/u)
    .map((word) => (/\p{L}/u.test(word) && !/\s/u.test(stem) ? word.replace(/\d+$/u, "") : word))
    .filter((word) => /[\p{L}\p{N}]/u.test(word));
  const capital = words.filter((word) => /^\p{Lu}/u.test(word));
  return capital.length > 0 && !/\s/u.test(stem) ? capital : words;
}

// Whether a name is a title to be lettered, not a file name.
export function isTitle(name: string): boolean {
  return /^[\p{Lu}\p{Lo}\p{N}]/u.test(name) && !/\.\w{2,5}$/u.test(name);
}

// The first of the `kinds` whose words occur in the name.
export function kindIn<Kind extends string>(
  name: string,
  kinds: Readonly<Record<Kind, RegExp>>,
): Kind | undefined {
  return (Object.keys(kinds) as Kind[]).find((kind) => kinds[kind].test(name));
}
