// Scenes, colors and lettering of each genre.

import { hands } from "../lettering";
import type { Hand } from "../lettering";
import type { Palette } from "../palettes";
import { drama } from "./drama";
import { crime, horror, mystery, thriller } from "./dread";
import { family } from "./family";
import { action, adventure, history, war, western } from "./far";
import { comedy, music, sport } from "./mirth";
import { romance } from "./romance";
import type { Scene } from "./stage";
import { fantasy, sciFi } from "./wonder";

export interface Genre {
  readonly scenes: readonly Scene[];
  readonly palettes: readonly Palette[];
  readonly hands: readonly Hand[];
  // The seed, chosen so that no two titles of the catalogue look alike; a test says when it needs changing.
  readonly salt: number;
}

// Palettes from dark to light, without "#".
function genre(
  salt: number, scenes: readonly Scene[], theHands: readonly Hand[], ...colours: readonly string[]
): Genre {
  const palettes = colours.map((five): Palette => {
    const [night, deep, mid, pop, light] = five.split(" ").map((colour) => `#${colour}`);
    return { night: night!, deep: deep!, mid: mid!, pop: pop!, light: light! };
  });
  return { scenes, palettes, hands: theHands, salt };
}

const { slim, plain, heavy, tall, round, inline, racing, wide, roman, book, slab, italic, merry, claw, poster } = hands;

// By the catalogue's genre names.
export const genres: Readonly<Record<string, Genre>> = {
  Action: genre(4, action, [racing, poster, heavy],
    "14121a 3a1a22 d6431f ff9d1e fff0c2", "0b1b24 12404f e5482b ffb02e fdf1d6", "1a1410 51220f e2571a ffc83d fff4d0", "10131f 27305c d13a3f ff8a3d ffe9c9", "18181b 3d3d42 c8321f ffb400 f6efe2"),
  Adventure: genre(8, adventure, [inline, slab, poster],
    "12302f 1f5f57 e08b3c f5c456 fdf2d3", "1d2b3a 2f5d74 d9733d f2b84b f9ecce", "2a2413 5c6b2f c96f32 edb84a f8eec8", "172a45 2b6c86 66b3a6 f4a742 fff3d6", "321f1a 7a4a2b d9832f f3c766 fbefd2"),
  Comedy: genre(1347, comedy, [merry, round, heavy],
    "2a1b3d 2f6fd0 ff5a6e ffd23f fff6d9", "1f2342 e8473f 38b6c9 ffcf33 fff8e2", "33203f 7a3fb8 ff7fa5 ffe14d fff4e0", "1d2f2b 1f8f76 ff7a45 ffd84f fdf7df", "2b1d1d d8365c 4fb8a8 ffb93a fff5d6", "1c2750 2d54c4 ff8fb0 8be0c4 fffbe8"),
  Crime: genre(32, crime, [tall, plain, poster],
    "15151a 2d3140 8f2d2d e8b23a efe6d2", "101820 24384a b83a2e e5d7b4 f4efe2", "17140f 4a3b22 a5472a e3a32f f0e4c3", "12161c 35404e 4f7d86 d9433b ece5d5", "1a1220 3c2a4c a33752 f0a63c f2e8da"),
  Drama: genre(1091, drama, [roman, slim, book],
    "1d2633 3d5168 8fa3ab d9a871 f4ead8", "2a2230 5b4258 a97a83 e0b08e f7ebdf", "20302e 4a6660 9bb3a2 d8b777 f3eddc", "2b2622 6a5544 b0977a d8784f f5ead6", "1b2440 3d4f86 8a96c4 e6a78f f6eee6", "262b2e 5b676b a5aeaa c9584a f0ece2"),
  Family: genre(0, family, [merry, round, heavy],
    "274060 3f8f5a 58b4d8 ffc845 fff6dc", "3a2a4d e2574c 5fbf9b ffd257 fff7e4", "2b4a3c 4fa35f f28a3c ffd75e fff6da", "30345e 4d74c9 f27a8a ffc94a fff4e2", "4a2b33 c8553d 6db8b0 f7b84b fff3dc"),
  Fantasy: genre(973, fantasy, [roman, book, slab],
    "160f2e 3a2a78 7b5cc4 f2c14e fbeecb", "0e1f2e 1f4f63 3f9d98 f0cf6a f4f3d8", "24102b 6a2459 b8478a ffc46b fdebd3", "10261f 2a5a3d 6aa35a f2d06b f5f2d2", "1a1238 40358c 5f8fe0 ffb5c8 f6efff"),
  History: genre(2, history, [roman, slab, book],
    "2b1d14 5c3a22 a8743f d9b36a f4e6c6", "1c2530 34506b 8a8f7a d9b877 f3e8cf", "2d1618 6b2b2b a8603f e0b56a f6e8cc", "20261a 4a5a38 98935a dcc07a f3ebcc"),
  Horror: genre(377, horror, [claw, tall, roman],
    "0b0709 3a0d12 7d1419 d8261f f2e3cf", "08100f 132b26 2f5e46 a8d84a eef2d2", "0d0814 2a1240 5b2470 e0403a efe2e8", "0c0c0d 2a2a2c 5e5a56 c8141c eee8dc", "120a06 4a1c08 94380c ff6a1a fbe6bf"),
  Music: genre(0, music, [inline, round, slab],
    "1a1033 4b1f7a c2338f ffb22e fff0d6", "0f1f3d 1f4fa0 e0436a 4fd6d0 fdf3e0", "2b1414 8a2331 e8632f ffc93c fff1d2", "10262b 146a6e f06a4a ffd35c fdf4dc", "1c1420 552b8c 2fa6c9 ff7ac0 fff0f4"),
  Mystery: genre(24, mystery, [slim, roman, book],
    "0f1a24 1f3f4f 4b7d83 e9c46a f3ead0", "1a1426 3b2f5a 6d5f99 e6b85c f1e8da", "121c16 274535 5d8562 e0c15a f0ecd2", "1d1718 4b3238 8a5a5c e3b678 f4e8d8", "0e1320 26335c 4f6aa8 f2d38a eef0ea"),
  Romance: genre(806, romance, [italic, book, slim],
    "43142d a83254 ef6f7f ffb199 fff1e6", "3a1a4a 8a3f86 e57fa8 ffc6a8 fff2ea", "5a1e22 c43b3b f58a6a ffd08a fff4e2", "2b2350 6a4fa3 e88fb5 ffd1dc fff6f6", "4a1f3c b03a6b f7a1a8 ffdf9e fff5e6"),
  "Sci-Fi": genre(882, sciFi, [wide, plain, tall],
    "080d24 15275c 2f6fd6 36e0e0 e8fbff", "120824 3a1466 c22fa8 ff5fa2 ffe9f5", "07161c 0f4450 1f8f96 ff8a3c f3f6e8", "0d0f1a 2b2f55 7a5cff 5cf2b8 f0f4ff", "140c14 4a1d3a d1483f ffc24a fff0d8", "0a1410 124a3c 2fa37a c6f24a f2fbe4"),
  Sport: genre(1, sport, [racing, poster, heavy],
    "101a2e 1f3f8f e5383b ffb703 f7f4ea", "0f2418 1c6b3c f25c2e ffd23f f6f7e8", "1b1420 6a1f5c ff6b35 ffd166 fff3e0", "0d1b26 0f5f7a e84a5f ffe14d f3f8f4"),
  Thriller: genre(770, thriller, [tall, slim, poster],
    "0a0f12 16303a 3f6a70 d7263d eef0e6", "0d0d10 2b2b33 6a6a72 e8c32f f4f1e6", "120a0a 4a1414 8f2a1f f05a28 f6e8d8", "081418 0f3f44 2f7f78 e6e04a eef5ea", "0f0b1a 2c1f4a 5a4a86 ff4f5e f0ecf4"),
  War: genre(2, war, [slab, poster, plain],
    "1d1c14 45452c 7d7443 c8402a efe4c4", "1a1a1a 4a4238 8a7a5c d9532c f0e6cf", "14201c 35493a 6f7d55 e0a23a ece6c8", "211512 5a2f22 a3602f e8a548 f5e5c2"),
  Western: genre(6, western, [slab, heavy, inline],
    "2a130c 7a3318 c8622a f0a83c fbe6b8", "24140f 6b2a1c b5482a e8873a f8ddb0", "1f1a22 54324a a8504f f29a52 fde3bd", "2b1a0e 8a4a1e d98a34 f6cd6b fff0cc"),
};
