#include "week/summary.h"

#include "banks/draw.h"
#include "banks/week_banks.h"
#include "core/calendar.h"
#include "core/log.h"

namespace tb {

namespace {

constexpr std::size_t weeksOfEarnings = 52;

}  // namespace

void showFeed(Game& game, WeekSummary& summary) {
  TextList& feed = game.world.WeekFeed;
  summary.hasNews = !feed.empty();
  summary.frontPage = layOutFrontPage(game);
  if (!summary.hasNews) feed.push_back(std::string(drawFreshRow(game, bank::weeklyTips)));
  summary.feed.assign(feed.begin(), feed.end());
  feed.clear();
  game.world.weekFeedNews.clear();
}

void recordWeekNet(Game& game) {
  RealList& earnings = game.world.saveWeeklyEarnings;
  earnings.push_back(game.world.weekNetIncome);
  if (earnings.size() > weeksOfEarnings) earnings.pop_front();
}

void closeActivityLog(Game& game) {
  WorldState& world = game.world;
  const std::string date = dateHeading(game.locale, world.weekNumber, world.yearNumber, " ");
  const bool hadNews = std::ssize(world.activityTracker) != world.lastWeekTrackerCount;
  if (!hadNews && date.empty()) return;
  if (!hadNews) logActivity(world, "Nothing significant happened this week");
  logActivity(world, date);
}

}  // namespace tb
