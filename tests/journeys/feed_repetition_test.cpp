// The lines of three years rarely repeat soon.

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "career/boosts.h"
#include "career/casting_board.h"
#include "career/classes.h"
#include "career/guild.h"
#include "career/job_board.h"
#include "career/submission.h"
#include "screens/week/front_page_nodes.h"
#include "tests/memory_port.h"
#include "tests/seeded_random.h"
#include "week/end_week.h"

namespace tb {
namespace {

constexpr int weeksPlayed = 150;
constexpr int weeksRemembered = 10;
constexpr int submissionsAWeek = 3;
constexpr int weeksToTheLastAnswer = 20;  // to a submission, including the audition

// A performer with a job who submits three times a week for titles not tried recently, rehearses with the
// remaining energy, takes affordable classes, and joins the guild as soon as possible.
class Performer {
 public:
  explicit Performer(std::uint64_t seed) : chance_(seed) {
    WorldState& world = game_.world;
    world.totalCashAvailable = 2'000;
    world.myName = "Ada Quinn";
    world.enterPlayerDetails = 1;
    world.showreelScore = 60;
    world.talentTrait1 = world.talentTrait2 = world.talentTrait3 = world.talentTrait4 = world.talentTrait5 =
        50;
  }

  // Plays a week and returns the lines of the review and the log, without the log's line for a week without
  // news.
  std::vector<std::string> playWeek() {
    const std::size_t before = game_.world.activityTracker.size();
    work();
    endWeek(game_);
    std::vector<std::string> told = linesOf(openSummary(game_).frontPage);
    closeSummary(game_);
    refreshHub(game_, HubRefresh::worldChanged);
    const TextList& log = game_.world.activityTracker;
    for (std::size_t index = 0; index < log.size() - before; ++index) {
      // Lines in both lists count once.
      if (std::ranges::contains(told, log[index])) continue;
      if (log[index] != "Nothing significant happened this week") told.push_back(log[index]);
    }
    return told;
  }

  [[nodiscard]] std::size_t films() const { return game_.world.saveAllFilmList.size(); }
  [[nodiscard]] std::size_t submissions() const { return submissions_; }

 private:
  [[nodiscard]] std::vector<std::string> linesOf(const FrontPage& page) const {
    std::vector<std::string> lines;
    for (const auto* const stories : {&page.headline, &page.rows, &page.folded}) {
      for (const Story& story : *stories) {
        const view::Headline shown = headlineNode(game_, story, false);
        lines.push_back(shown.detail.empty() ? shown.text : shown.text + " " + shown.detail);
      }
    }
    return lines;
  }

  void work() {
    submit();
    for (const JobOffer& offer : openJobBoard(game_)) static_cast<void>(acceptJob(game_, offer));
    for (const Audition& project : game_.world.saveAllAuditionList) {
      const auto boost = boostOf(game_.world, project);
      if (boost && boost->kind == BoostKind::rehearse) static_cast<void>(buyBoost(game_, project.filmId));
    }
    static_cast<void>(joinGuild(game_));
    for (const ClassOption& option : openClasses(game_)) {
      if (option.cost < game_.world.totalCashAvailable / 2) {
        static_cast<void>(signUpForClass(game_, option));
        break;
      }
    }
  }

  void submit() {
    const std::int64_t now = game_.world.weekNumberForTracking;
    int sent = 0;
    for (const CastingListing& listing : openCastingNetwork(game_)) {
      const std::string& title = listing.movie->title;
      const auto last = last_tried_.find(title);
      const bool triedRecently = last != last_tried_.end() && now - last->second <= weeksToTheLastAnswer;
      if (sent == submissionsAWeek || triedRecently || submitToCastingListing(game_, listing)) continue;
      last_tried_[title] = now;
      sent += 1;
    }
    submissions_ += sent;
  }

  test::MemoryPort port_;
  SaveStore store_{port_};
  test::SeededRandom chance_;
  Game game_{.store = store_, .random = chance_};
  std::map<std::string, std::int64_t> last_tried_;  // week of the submission by title
  std::size_t submissions_ = 0;
};

// The number of weeks with a line that was already shown in the same or the previous ten weeks.
int weeksThatRepeat(Performer& performer, std::vector<std::string>& repeated) {
  std::map<std::string, int> lastTold;
  int repeating = 0;
  for (int week = 0; week < weeksPlayed; ++week) {
    bool repeats = false;
    for (const std::string& line : performer.playWeek()) {
      const auto last = lastTold.find(line);
      if (last != lastTold.end() && week - last->second <= weeksRemembered) {
        repeats = true;
        repeated.push_back(line);
      }
      lastTold[line] = week;
    }
    repeating += repeats ? 1 : 0;
  }
  return repeating;
}

TEST(FeedRepetition, FewWeeksRepeatRecentLines) {
  for (std::uint64_t seed = 1; seed <= 5; ++seed) {
    Performer performer(seed);
    std::vector<std::string> repeated;
    EXPECT_LE(weeksThatRepeat(performer, repeated), 10) << testing::PrintToString(repeated);
    EXPECT_GT(performer.films(), 10U);
    EXPECT_GT(performer.submissions(), 2U * weeksPlayed);
  }
}

}  // namespace
}  // namespace tb
