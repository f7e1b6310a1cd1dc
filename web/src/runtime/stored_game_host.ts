// A storage as the game sees it.

import type { GameHost } from "./game";
import type { Storage } from "./storage";

// `answer` gets the content of a document that the game asked for; undefined when there is none.
export const storedGameHost = (
  storage: Storage,
  answer: (number: number, content: Uint8Array | undefined) => void,
): Required<GameHost> => ({
  commit: (changes) => storage.save(changes),
  documents: {
    summaries: () => storage.documents(),
    put: (document) => storage.changeDocument({ kind: "put", document }),
    remove: (document) => storage.changeDocument({ kind: "remove", document }),
    read: (number, place) => void storage.readDocument(place).then((content) => answer(number, content)),
  },
});
