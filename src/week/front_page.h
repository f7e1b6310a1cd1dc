#pragma once

// A week's news as the review shows it: a headline, other lines, and folded lines.

#include <string>
#include <vector>

#include "core/game.h"

namespace tb {

struct Story {
  News about;
  std::string text;
  std::vector<Audition> project;  // none or one, as it was when the week ended
};

struct FrontPage {
  std::vector<Story> headline;  // none or one
  bool isMoment = false;        // whether the headline gets a scene
  std::vector<Story> rows;      // releases first, then in the order of the feed
  std::vector<Story> folded;    // refusals and silences if there are several, in the order of the feed
};

// Lays out the lines of `WeekFeed` and the titles that were released in the week that ended, which have no
// line there. A wrap shows the session's pay. Call it after balanceWeek() and before `WeekFeed` is emptied.
[[nodiscard]] FrontPage layOutFrontPage(const Game& game);

// Moves lines that came after the page was laid out from `WeekFeed` to stories, in the order of the feed.
[[nodiscard]] std::vector<Story> takeLateStories(Game& game);

// The text for folded lines: "Saltwater said no, 3 never wrote back".
[[nodiscard]] std::string foldedWords(const std::vector<Story>& folded);

}  // namespace tb
