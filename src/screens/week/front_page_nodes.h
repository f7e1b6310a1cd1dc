#pragma once

// The front page of a week in the vocabulary of the view.

#include "screens/stage.h"
#include "week/front_page.h"

namespace tb {

// One piece of news, leading to its project while there is one.
[[nodiscard]] view::Headline headlineNode(const Game& game, const Story& story, bool isLead);

// The other lines, and the fold under them.
[[nodiscard]] std::vector<view::Node> rowNodes(const Game& game, const FrontPage& page);

// Plays the scene of a headline that is a moment.
void playHeadline(Stage& stage, const FrontPage& page);

}  // namespace tb
