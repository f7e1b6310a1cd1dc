// Attribution of third-party art, which its license requires to be visible to the player.
export const artCredit = {
  text: "Avatars: Personas by Draftbit",
  work: "https://personas.draftbit.com/",
  licenceName: "CC BY 4.0",
  licence: "https://creativecommons.org/licenses/by/4.0/",
} as const;
