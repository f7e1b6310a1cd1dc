// The button "Credits" with its dialog: the attribution of third-party work.

import { type JSX } from "preact";
import { useRef } from "preact/hooks";

import { credits } from "../art/credits";

export function CreditsDialog(): JSX.Element {
  const dialog = useRef<HTMLDialogElement>(null);
  return (
    <>
      <button type="button" class="shell-button" onClick={() => dialog.current?.showModal()}>
        Credits
      </button>
      <dialog ref={dialog} class="shell-dialog" aria-labelledby="credits-title">
        <h2 id="credits-title">Credits</h2>
        <dl class="shell-credits">
          {credits.map(({ use, name, work, licenseName, license }) => (
            <div key={use}>
              <dt>{use}</dt>
              <dd>
                <Outward href={work}>{name}</Outward>, <Outward href={license}>{licenseName}</Outward>
              </dd>
            </div>
          ))}
        </dl>
        <button type="button" class="shell-button" onClick={() => dialog.current?.close()}>
          Close
        </button>
      </dialog>
    </>
  );
}

// A link that leaves the game running: an installed page has no way back.
function Outward({ href, children }: { href: string; children: string }): JSX.Element {
  return (
    <a href={href} target="_blank" rel="noopener">
      {children}
    </a>
  );
}
