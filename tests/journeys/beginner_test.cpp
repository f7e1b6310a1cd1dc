#include <algorithm>
#include <gtest/gtest.h>
#include <optional>

#include "tests/journeys/device.h"

namespace tb {
namespace {

const view::Button* actionOf(const view::Row& row) {
  return row.action.empty() ? nullptr : &row.action.front();
}

// A beginner who does what the rows under THIS WEEK on Home say, from the top to the end, and nothing else.
class Beginner {
 public:
  explicit Beginner(std::uint64_t seed) : random_(seed), device_(random_) {
    device_.begin([](WorldState&) {});
  }

  // The week of the first booking, or `last` when there is none by then.
  std::int64_t weekOfFirstBooking(std::int64_t last) {
    while (device_.world().weekNumberForTracking < last && !isBooked()) playAWeek();
    return device_.world().weekNumberForTracking;
  }
  // True when an audition was rehearsed in the week of the first invitation.
  [[nodiscard]] bool rehearsedAtOnce() const { return rehearsed_at_once_; }

 private:
  [[nodiscard]] bool isBooked() const {
    return std::ranges::any_of(device_.world().saveAllAuditionList,
                               [](const Audition& project) { return project.funnelStage == funnel::booked; });
  }
  const view::Page& page() { return device_.player().page(); }
  void use(view::Handle handle) { device_.app().press(handle); }

  std::vector<view::Row> thisWeek() {
    std::vector<view::Row> rows;
    for (const view::Node& node : page().nodes) {
      const auto* const section = std::get_if<view::Section>(&node.node);
      if (section == nullptr || section->heading != "THIS WEEK") continue;
      for (const view::Node& row : section->nodes) rows.push_back(std::get<view::Row>(row.node));
    }
    return rows;
  }

  // Presses the first action of that name that would not refuse; false when there is none.
  bool actInPlace(const std::string& label) {
    for (const view::Row& row : thisWeek()) {
      const view::Button* const action = actionOf(row);
      if (action == nullptr || !action->label.starts_with(label) || !action->refusal.empty()) continue;
      use(action->handle);
      return true;
    }
    return false;
  }

  void playAWeek() {
    rehearse();
    for (const view::Row& row : thisWeek()) {
      if (row.label == "Send showreels") follow(row.label, [this] { submitToAll(); });
      if (row.label == "Find work") follow(row.label, [this] { acceptAJob(); });
    }
    actInPlace("Train to ");
    use(page().main.front().handle);
    device_.player().answerStory();
    EXPECT_EQ(page().title, "REVIEW");
    while (!page().dialog.empty()) use(page().dialog.front().answers.front().handle);
    use(page().main.front().handle);
  }

  void rehearse() {
    const bool isInvited = std::ranges::any_of(thisWeek(), [](const view::Row& row) {
      return row.label.starts_with("Audition in ") || row.label == "Audition this week";
    });
    bool rehearsed = false;
    while (actInPlace("Rehearse")) rehearsed = true;
    if (isInvited && !was_invited_) rehearsed_at_once_ = rehearsed;
    was_invited_ |= isInvited;
  }

  // Opens the screen that the row leads to, and comes back to Home. Each page has handles of its own.
  template <class Visit>
  void follow(const std::string& label, Visit visit) {
    const std::vector<view::Row> rows = thisWeek();
    const auto row = std::ranges::find(rows, label, &view::Row::label);
    if (row == rows.end()) return;
    use(row->handle);
    visit();
    use(page().tabs.front().handle);
  }

  void submitToAll() {
    for (bool sent = true; sent;) {
      sent = false;
      for (const view::Node& node : page().nodes) {
        const auto* const role = std::get_if<view::Row>(&node.node);
        const view::Button* const submit = role == nullptr ? nullptr : actionOf(*role);
        if (submit == nullptr || submit->label != "Submit" || !submit->refusal.empty()) continue;
        use(submit->handle);
        sent = true;
        break;
      }
    }
  }

  void acceptAJob() {
    const auto usable = device_.player().usable();
    const auto accept = std::ranges::find(usable, "Accept", &test::Player::Usable::label);
    if (accept != usable.end()) use(accept->handle);
  }

  test::SeededRandom random_;
  test::Device device_;
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
  player().expectSees({"Energy tracker"});
  player().follow({"Work", "Acting Classes", "End Week"});
  EXPECT_EQ(player().title(), "REVIEW");
  for (const test::Player::Usable& usable : player().usable()) EXPECT_NE(usable.label, "Home");
  player().press("Carry on");
  EXPECT_EQ(player().title(), device.world().myName) << "the screens that were open are left";
}

}  // namespace
}  // namespace tb
