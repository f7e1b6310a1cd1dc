// Five matching colors from dark to light; `pop` is the accent.

export interface Palette {
  readonly night: string;
  readonly deep: string;
  readonly mid: string;
  readonly pop: string;
  readonly light: string;
}

const palette = (night: string, deep: string, mid: string, pop: string, light: string): Palette => ({
  night,
  deep,
  mid,
  pop,
  light,
});

export const palettes: readonly Palette[] = [
  palette("#2b1b3d", "#7a2e4d", "#e0603f", "#f8b04f", "#fdeccb"),
  palette("#0d2b33", "#14545c", "#2f8f8b", "#f2803a", "#f7e6c4"),
  palette("#14090d", "#4a0e1c", "#a3182b", "#e8472f", "#f4ddc7"),
  palette("#161339", "#33287a", "#6d4cc3", "#f25f8b", "#fbe3d0"),
  palette("#10231b", "#23493a", "#5b8a5a", "#e7b445", "#f3ecd3"),
  palette("#0e1e33", "#234a72", "#5d93bd", "#f1c84b", "#eef4f5"),
  palette("#2a2320", "#7b3f25", "#d08b2c", "#efc75e", "#f8efd6"),
  palette("#3a1428", "#8c2f53", "#d96a7f", "#f6b8a2", "#fdeee4"),
  palette("#13262b", "#1f6a6a", "#63c1a5", "#ff6b57", "#fbf3df"),
  palette("#0b1440", "#1c35a0", "#3f73e8", "#ffd03b", "#f5f2e6"),
  palette("#1e1024", "#4d2157", "#93408b", "#f0a93c", "#f9ecd9"),
  palette("#121214", "#3a3a40", "#85868c", "#e33b2e", "#f2efe8"),
];
