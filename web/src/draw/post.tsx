// A post of a feed: the author's face and name, the text, its figures and buttons.

import type { ComponentChild, ComponentChildren } from "preact";

import type * as View from "../view_types";
import { PressButton } from "./button";
import { Picture } from "./picture";
import { usePress } from "./pressing";
import { Comment, Like, Repost, Verified } from "./signs";
import { Name, Words } from "./words";

export function Posts({ children }: { readonly children?: ComponentChildren }) {
  return (
    <ul class="posts" role="list">
      {children}
    </ul>
  );
}

const mention = /(@[A-Za-z0-9_]+)/u;

function PostText({ text }: { readonly text: string }) {
  return (
    <span class="post-text">
      {text
        .split(mention)
        .map((part, index) => (index % 2 === 1 ? <b key={index}>{part}</b> : <Words key={index} text={part} />))}
    </span>
  );
}

function Figure({ sign, count, unit }: { readonly sign: ComponentChild; readonly count: string; readonly unit: string }) {
  return (
    <span class="post-figure">
      {sign}
      {count}
      <span class="unseen"> {unit}, </span>
    </span>
  );
}

function PostContent({ note, author, when, text, picture, comments, reposts, likes, isVerified }: View.Post) {
  return (
    <>
      {note !== "" && (
        <span class="post-note">
          <Words text={note} />
        </span>
      )}
      {picture.map((shown) => (
        <Picture key={shown.name} {...shown} size="row" />
      ))}
      <span class="post-words">
        <span class="post-top">
          <span class="post-author">
            <Name text={author} />
          </span>
          {isVerified && (
            <>
              <Verified />
              <span class="unseen"> verified</span>
            </>
          )}
          <span class="post-when">
            <span class="unseen">, </span>
            {when}
            <span class="unseen">: </span>
          </span>
        </span>
        <PostText text={text} />
        <span class="post-figures">
          <span class="unseen">. </span>
          <Figure sign={<Comment />} count={comments} unit="comments" />
          <Figure sign={<Repost />} count={reposts} unit="rechirps" />
          <Figure sign={<Like />} count={likes} unit="likes" />
        </span>
      </span>
    </>
  );
}

export function Post(post: View.Post) {
  const press = usePress();
  const look = `post${post.mine ? " is-mine" : ""}`;
  return (
    <li class="post-place">
      {post.handle === 0 ? (
        <div class={look}>
          <PostContent {...post} />
        </div>
      ) : (
        <button type="button" class={`${look} post-press`} data-handle={post.handle} onClick={press}>
          <PostContent {...post} />
        </button>
      )}
      {post.actions.length > 0 && (
        <div class="post-actions">
          {post.actions.map((action) => (
            <PressButton key={action.label} {...action} />
          ))}
        </div>
      )}
    </li>
  );
}
