// Art of others that the page shows, to be named where the player can see it: its licence asks for that.
export const artCredit = {
  text: "Avatars: Personas by Draftbit",
  work: "https://personas.draftbit.com/",
  licenceName: "CC BY 4.0",
  licence: "https://creativecommons.org/licenses/by/4.0/",
} as const;
