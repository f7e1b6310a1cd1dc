// Whether reduced motion is requested.
const wish = globalThis.matchMedia?.("(prefers-reduced-motion: reduce)");

export const stillness = (): boolean => wish?.matches ?? true;
