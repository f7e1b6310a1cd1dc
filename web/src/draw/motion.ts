// Whether the system asks for no motion.
const wish = globalThis.matchMedia?.("(prefers-reduced-motion: reduce)");

export const stillness = (): boolean => wish?.matches ?? true;
