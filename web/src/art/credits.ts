// Attribution of third-party work, which its licenses require to be visible to the player.

export const credits = [
  {
    text: "Avatars: Personas by Draftbit",
    work: "https://personas.draftbit.com/",
    licenseName: "CC BY 4.0",
    license: "https://creativecommons.org/licenses/by/4.0/",
  },
  {
    text: "Headings: Barlow Condensed by the Barlow Project Authors",
    work: "https://github.com/jpt/barlow",
    licenseName: "SIL Open Font License 1.1",
    license: "barlow-condensed-license.txt",
  },
] as const;
