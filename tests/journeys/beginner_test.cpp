#include <algorithm>
#include <gtest/gtest.h>
#include <optional>

#include "career/job_board.h"
#include "career/submission.h"
#include "career/traits.h"
#include "tests/journeys/device.h"
#include "tests/scratch_game.h"
#include "week/agenda.h"
#include "week/end_week.h"

namespace tb {
namespace {

// A beginner who follows the agenda from top to bottom.
class Beginner {
 public:
  explicit Beginner(std::uint64_t seed) : random_(seed) { refreshHub(game_, HubRefresh::launch); }

  // The week of the first booking, or `last` when there is none by then.
  std::int64_t weekOfFirstBooking(std::int64_t last) {
    while (world().weekNumberForTracking < last && !isBooked()) playAWeek();
    return world().weekNumberForTracking;
  }
  // True when an audition was rehearsed in the week of the first invitation.
  [[nodiscard]] bool rehearsedAtOnce() const { return rehearsed_at_once_; }

 private:
  [[nodiscard]] WorldState& world() { return game_.world; }
  [[nodiscard]] bool isBooked() {
    return std::ranges::any_of(world().saveAllAuditionList,
                               [](const Audition& project) { return project.funnelStage == funnel::booked; });
  }

  void playAWeek() {
    rehearse();
    for (const AgendaItem& item : openItems(world())) doIt(item);
    endWeek(game_);
    static_cast<void>(openSummary(game_));
    closeSummary(game_);
    refreshHub(game_, HubRefresh::worldChanged);
  }

  void rehearse() {
    bool rehearsed = false;
    bool invited = false;
    for (const AgendaItem& item : dueItems(world())) {
      if (item.kind != AgendaItem::Kind::audition) continue;
      const Audition& project = world().saveAllAuditionList[item.index];
      while (boostOf(world(), project) && !buyBoost(game_, project.filmId)) {
      }
      invited = true;
      rehearsed |= world().saveAllAuditionList[item.index].rehearsalBoostCount > 0;
    }
    if (invited && !was_invited_) rehearsed_at_once_ = rehearsed;
    was_invited_ |= invited;
  }

  void doIt(const AgendaItem& item) {
    switch (item.kind) {
      case AgendaItem::Kind::submissions:
        for (const CastingListing& listing : openCastingNetwork(game_))
          submitToCastingListing(game_, listing);
        break;
      case AgendaItem::Kind::job:
        for (const JobOffer& offer : openJobBoard(game_)) acceptJob(game_, offer);
        break;
      case AgendaItem::Kind::training:
        while (!buyTrait(game_, static_cast<int>(item.index) + 1)) {
        }
        break;
      default:
        break;
    }
  }

  test::SeededRandom random_;
  test::MemoryPort port_;
  SaveStore store_{port_};
  Game game_{.store = store_, .random = random_};
  bool was_invited_ = false;
  bool rehearsed_at_once_ = false;
};

TEST(BeginnerJourney, FirstBookingByWeek20AtTheMedian) {
  std::vector<std::int64_t> weeks;
  for (std::uint64_t seed = 1; seed <= 30; ++seed) {
    Beginner beginner(seed);
    weeks.push_back(beginner.weekOfFirstBooking(60));
    EXPECT_TRUE(beginner.rehearsedAtOnce()) << seed;
  }
  std::ranges::sort(weeks);
  EXPECT_LE(weeks[15], 20) << testing::PrintToString(weeks);
}

// The first weeks on the screens, with counts of presses.
struct FirstWeeksJourney : testing::Test {
  test::SeededRandom random{5};
  test::Device device{random};
  test::Player& player() { return device.player(); }
  FirstWeeksJourney() {
    device.begin([](WorldState&) {});
  }
  // Names of the board's buttons that do not show a refusal.
  std::vector<std::string> openRoles() {
    std::vector<std::string> names;
    for (const view::Node& node : player().page().nodes) {
      const auto* const row = std::get_if<view::Row>(&node.node);
      if (row != nullptr && row->action.front().refusal.empty()) names.push_back(row->action.front().name);
    }
    return names;
  }
};

TEST_F(FirstWeeksJourney, AWeekWithThreeSubmissionsTakesEightPresses) {
  player().expectSees({"Find work", "Send showreels", "End the week"});
  player().press("Send showreels");
  int presses = 1;
  for (const std::string& submit : openRoles()) {
    if (device.world().saveAllAuditionList.size() == 3) break;
    player().press(submit);
    EXPECT_TRUE(player().said().starts_with("Showreel sent to ")) << submit;
    presses += 1;
  }
  ASSERT_EQ(device.world().saveAllAuditionList.size(), 3U);
  player().follow({"End Week", "Carry on"});
  EXPECT_LE(presses + 2, 8);
  EXPECT_EQ(player().title(), device.world().myName);
  player().expectSees({"Waiting to hear"});
}

TEST_F(FirstWeeksJourney, ButtonsShowRefusalsAndCompletion) {
  device.begin([](WorldState& world) { world.totalEnergyAvailable = 25; });
  player().press("Send showreels");
  player().press(openRoles().front());
  player().expectSees({"Too little energy"});
  player().press("Submitted");
  player().expectTold("🎭 SUBMITTED! 🎭");
  EXPECT_EQ(device.world().totalEnergyAvailable, 5);
}

TEST_F(FirstWeeksJourney, TabsAndEndWeekAreOnEveryScreen) {
  player().follow({"Work", "Talent", "Life"});
  player().expectSees({"EVERY WEEK TAKES"});
  player().follow({"Work", "Acting Classes", "End Week"});
  EXPECT_EQ(player().title(), "REVIEW");
  for (const test::Player::Usable& usable : player().usable()) EXPECT_NE(usable.label, "Home");
  player().press("Carry on");
  EXPECT_EQ(player().title(), device.world().myName) << "the screens that were open are left";
}

}  // namespace
}  // namespace tb
