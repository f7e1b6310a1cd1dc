// Attribution of third-party work, which its licenses require to be visible to the player. build.mjs writes
// the licenses of the libraries into licenses.txt.

export const credits = [
  {
    use: "Portraits, adapted from",
    name: "Personas by Draftbit",
    work: "https://personas.draftbit.com/",
    licenseName: "CC BY 4.0",
    license: "https://creativecommons.org/licenses/by/4.0/",
  },
  {
    use: "Headings",
    name: "Barlow Condensed by the Barlow Project Authors",
    work: "https://github.com/jpt/barlow",
    licenseName: "SIL Open Font License 1.1",
    license: "barlow-condensed-license.txt",
  },
  {
    use: "Page",
    name: "Preact by Jason Miller",
    work: "https://preactjs.com/",
    licenseName: "MIT License",
    license: "licenses.txt",
  },
  {
    use: "Drawing of the portraits",
    name: "DiceBear by Florian Körner",
    work: "https://www.dicebear.com/",
    licenseName: "MIT License",
    license: "licenses.txt",
  },
  {
    use: "Storage",
    name: "idb by Jake Archibald",
    work: "https://github.com/jakearchibald/idb",
    licenseName: "ISC License",
    license: "licenses.txt",
  },
  {
    use: "Archives of saves",
    name: "fflate by Arjun Barrett",
    work: "https://github.com/101arrowz/fflate",
    licenseName: "MIT License",
    license: "licenses.txt",
  },
] as const;
