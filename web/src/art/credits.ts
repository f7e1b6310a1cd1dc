// Art of others that the page shows, to be named where the player can see it: its licence asks for that.
export const artCredit = {
  text: "Avatars: Personas by Draftbit, CC BY 4.0",
  work: "https://personas.draftbit.com/",
  licence: "https://creativecommons.org/licenses/by/4.0/",
} as const;
