// The page's own icons.

interface SignProps {
  readonly path: string;
  readonly name: string;
}

function Sign({ path, name }: SignProps) {
  return (
    <svg class={`sign sign-${name}`} viewBox="0 0 24 24" aria-hidden="true">
      <path d={path} />
    </svg>
  );
}

export const Chevron = () => <Sign name="on" path="M9 5l7 7-7 7" />;
export const Back = () => <Sign name="back" path="M15 5l-7 7 7 7" />;
export const Turn = () => <Sign name="turn" path="M5 9l7 7 7-7" />;
export const Check = () => <Sign name="check" path="M5 12.5l4.5 4.5L19 7.5" />;
