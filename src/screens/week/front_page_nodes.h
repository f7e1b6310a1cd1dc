#pragma once

// Converts a week's front page to view nodes.

#include "screens/stage.h"
#include "week/front_page.h"

namespace tb {

// A headline node; pressing it opens the project, if it exists.
[[nodiscard]] view::Headline headlineNode(const Game& game, const Story& story, bool isLead);

// The other lines, in pages when there are many, and the fold below them. The nodes refer to `page` until
// they are laid out.
[[nodiscard]] std::vector<view::Node> rowNodes(const Game& game, const FrontPage& page);

// Plays the scene of a story that came after the page was laid out, if it is a moment.
void playStory(Stage& stage, const Story& story);

// Plays the scene of the headline if it is a moment.
void playHeadline(Stage& stage, const FrontPage& page);

}  // namespace tb
