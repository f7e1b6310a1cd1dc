// The page's own icons: lines of one width with round ends, in the color of the text beside them.

import type * as View from "../view_types";

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

export const Verified = () => <Sign name="verified" path="M12 2.8l2.6 1.9 3.2 0 1 3 2.6 1.9-1 3 1 3-2.6 1.9-1 3-3.2 0L12 21.4l-2.6-1.9-3.2 0-1-3-2.6-1.9 1-3-1-3 2.6-1.9 1-3 3.2 0zM8 12.2l2.8 2.8L16 9.6" />;
export const Comment = () => <Sign name="comment" path="M4 5h16v11h-8l-4.500 4v-4H4z" />;
export const Repost = () => <Sign name="repost" path="M4 10V7h13M14 4l3 3-3 3M20 14v3H7M10 20l-3-3 3-3" />;
export const Like = () => <Sign name="like" path="M12 19.500C3 13 4 5.500 8.500 5.500c2 0 3 1.200 3.500 2.500c.5-1.300 1.500-2.500 3.500-2.500c4.500 0 5.500 7.500-3.500 14z" />;

const bolt = "M13.5 2.5L5 13.5h6L10 21.5l9-11.5h-6.2z";

// In a field of 24 by 24.
const icons: Readonly<Record<Exclude<View.Icon, "none">, string>> = {
  home: "M4 11L12 4l8 7M6 9.5V20h12V9.5M10 20v-5.5h4V20",
  work: "M4 10.5h16V19.5H4zM4 10.5L3.3 7 18.6 4l.7 3.4L4 10.5M8.2 6l2.5 3.2M13 5.1l2.5 3.2",
  social: "M3.5 4.5h12v8.5H9L5.5 16v-3h-2zM18.5 8.5h2V17h-2v3L15 17h-4.5",
  life: bolt,
  wealth: "M4 8h14.5a1.5 1.5 0 0 1 1.5 1.5v9a1.5 1.5 0 0 1-1.5 1.5H5.5A1.5 1.5 0 0 1 4 18.5zV7L15.5 4v4M20 12h-4a2 2 0 0 0 0 4h4",
  backstage: "M8 4.5h4.8a3.6 3.6 0 0 1 0 7.2H8zM8 11.7h5.6a3.9 3.9 0 0 1 0 7.8H8z",
  settings: "M10.3 5.2L10.7 2.7L13.3 2.7L13.7 5.2L15.6 6L17.6 4.5L19.5 6.4L18 8.4L18.8 10.3L21.3 10.7L21.3 13.3L18.8 13.7L18 15.6L19.5 17.6L17.6 19.5L15.6 18L13.7 18.8L13.3 21.3L10.7 21.3L10.3 18.8L8.4 18L6.4 19.5L4.5 17.6L6 15.6L5.2 13.7L2.7 13.3L2.7 10.7L5.2 10.3L6 8.4L4.5 6.4L6.4 4.5L8.4 6ZM15 12a3 3 0 1 1-6 0a3 3 0 1 1 6 0z",
  energy: bolt,
  rose: "M12 12.5c-3.6 0-5-2.200-5-4.500c0-1.800.8-3 .8-4.500L10 5l2-2l2 2l2.200-1.500c0 1.500.8 2.700.8 4.500c0 2.300-1.400 4.500-5 4.500zM12 12.500V21.500M12 18c-1.500-2.500-3.500-3-5.500-3c0 2.200 2 4 5.500 4M9.500 7.500c1 1.600 4 1.600 5 0",
};

export function Icon({ name }: { readonly name: View.Icon }) {
  return name === "none" ? null : <Sign name={name} path={icons[name]} />;
}

// What a screen reader is told in place of the icon, after the figure that it stands before.
export const spokenIcon = (name: View.Icon): string => (name === "energy" ? " energy" : "");
