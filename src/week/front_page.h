#pragma once

// The news of a week as the review shows it: one headline, the other lines, and what folds away.

#include <string>
#include <vector>

#include "core/game.h"

namespace tb {

struct Story {
  News about;
  std::string text;
  std::vector<Audition> project;  // none or one, as it stood when the week ended
};

struct FrontPage {
  std::vector<Story> headline;  // none or one
  bool isMoment = false;        // of the headline
  std::vector<Story> rows;      // in the order of the feed, what has no line in the feed first
  std::vector<Story> folded;    // none, or the several refusals and silences of the week, in their order
};

// Lays out the lines of `WeekFeed`, with the titles that came out in the week that ended, which have no line
// there. A wrap says what the session paid. For the summary, once the week is balanced and before `WeekFeed`
// is emptied; changes nothing.
[[nodiscard]] FrontPage layFrontPage(const Game& game);

// What several refusals and silences are called together: "Saltwater said no, 3 never wrote back".
[[nodiscard]] std::string foldedWords(const std::vector<Story>& folded);

}  // namespace tb
