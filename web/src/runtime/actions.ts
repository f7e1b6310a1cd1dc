// What a drawn page hands back: the player used what stands under a handle. Each is one action of the game,
// saved as a whole, after which the page is drawn again.

export interface Actions {
  press(handle: number): void;
  type(handle: number, text: string): void;
  slide(handle: number, value: number): void;
  back(): void;
}
