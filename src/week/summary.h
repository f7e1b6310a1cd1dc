#pragma once

// The report that closes a week: what it shows lives only as long as it is open.

#include <cstdint>
#include <string>
#include <vector>

#include "core/game.h"
#include "wealth/weekly_balance.h"
#include "week/front_page.h"

namespace tb {

struct WeekSummary {
  std::int64_t week = 0;  // the week that ended
  std::int64_t year = 0;
  WeekBalance balance;
  bool hasNews = false;  // false: nothing happened, and the one line is a tip
  std::vector<std::string> feed;
  FrontPage frontPage;         // the same lines as the review shows them; without a tip
  bool offersRelease = false;  // a title came out, and its screen was not opened yet
};

// Hands the lines of `WeekFeed` over to the summary, lays out its front page, and empties `WeekFeed`. A week
// without a line gives a tip.
void showFeed(Game& game, WeekSummary& summary);

// Adds the week's net to `saveWeeklyEarnings`, which keeps the newest 52, and writes it.
void keepWeeksNet(Game& game);

// Heads the week's entries of `activityTracker` with the date, and says so when there are none. Writes it.
void closeActivityLog(Game& game);

}  // namespace tb
