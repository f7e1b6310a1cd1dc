#pragma once

// The weekly summary. Its data exists only while it is open.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/game.h"
#include "life/separation.h"
#include "life/week_events.h"
#include "wealth/weekly_balance.h"
#include "week/front_page.h"

namespace tb {

struct OfferedEvent {
  WeekEvent event;
  std::vector<WeekEventResult> result = {};  // none until it is used
};

struct WeekSummary {
  std::int64_t week = 0;  // the week that ended
  std::int64_t year = 0;
  WeekBalance balance;
  bool hasNews = false;  // false: the only line is a tip
  std::vector<std::string> feed;
  FrontPage frontPage;  // the same lines laid out; without a tip
  std::vector<OfferedEvent> events;
  bool offersAwards = false;   // the year's nominations are out, and their screen was not opened yet
  bool offersRelease = false;  // a title was released, and its screen was not opened yet
  std::optional<Separation> separation;  // the partner left when the summary opened
};

// Moves the lines of `WeekFeed` to the summary and lays out its front page. A week without lines shows a tip.
void showFeed(Game& game, WeekSummary& summary);

// Appends the week's net to `saveWeeklyEarnings`, which keeps the newest 52 entries.
void recordWeekNet(Game& game);

// Adds the date above the week's entries of `activityTracker`, with a line that nothing happened when there
// are none.
void closeActivityLog(Game& game);

}  // namespace tb
