// Careers played step by step. The steps are the lines of tests/golden/story_*.txt that start with "> ":
//
//   start NAME with seed N     begins the career of that name
//   launch                     ends the game and launches it again
//   the disk is full           (has room): commits fail from now on
//   12 weeks                   ends weeks and closes their reviews
//   LABEL = TEXT               types into a field or moves a slider
//   LABEL                      presses
//
// Below each step stands what the page says that it did not say before, and how the state has changed.

#include <charconv>
#include <format>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

#include "tests/golden.h"
#include "tests/journeys/device.h"
#include "tests/screens/walk.h"
#include "tests/sheet.h"

namespace tb {
namespace {

// A member with an agent has a lead with a royalty and an own production, both with a top director.
void twoTitles(WorldState& world) {
  world.isSAG = 1;
  world.agentCommission = 0.1;
  world.saveAllTalentAgents = {{.id = 5, .name = "Rosa Vance", .commissionPercentage = 0.1, .isSigned = 1}};
  Audition role = test::bookedLead(1, filmType::feature, "Salt Road");
  role.residual = 0.05;
  role.sourceId = 5;
  for (Audition project : {role, test::ownProduction(2, "Own Goal")}) {
    project.hypeRating = 110;
    project.directorRating = 110;
    world.saveAllAuditionList.push_back(std::move(project));
  }
}

void filmAndCommercial(WorldState& world) {
  world.totalCashAvailable = 4'000;
  Audition film = test::bookedLead(1, filmType::feature, "Salt Road");
  film.buyout = 500;
  Audition commercial = test::bookedLead(2, filmType::commercial, "Fizz");
  commercial.royalty = 0;
  commercial.residual = 0.05;
  world.saveAllAuditionList = {film, commercial};
}

void filmAndSeries(WorldState& world) {
  world.saveAllAuditionList = {test::bookedLead(1, filmType::feature, "Salt Road"),
                               test::bookedLead(2, filmType::series, "Harbor Lights")};
}

// Submissions without hope, or an audition this week with good prospects and one such submission.
void twoSubmissions(WorldState& world, bool isInvited) {
  for (const auto& [id, title] : {std::pair{1, "Two Hats"}, {2, "Salt Road"}}) {
    Audition project = test::bookedLead(id, filmType::feature, title);
    project.imageString = std::format("poster{}", id);
    const bool hasAudition = isInvited && id == 1;
    project.weekAudition = hasAudition ? 1 : 9;
    project.weekToWork = 12;
    project.weekReleased = 20;
    project.auditionDifficulty = hasAudition ? 0 : 1'000;
    project.funnelStage = hasAudition ? funnel::invited : funnel::submitted;
    world.saveAllAuditionList.push_back(std::move(project));
  }
}

void release(WorldState& world, std::int64_t typeOfFilm) {
  world.saveAllAuditionList = {test::bookedLead(1, typeOfFilm, "Two Hats")};
  world.saveAllAuditionList.edit(0).weekReleased = 2;
}

const std::map<std::string, void (*)(WorldState&)> starts = {
    {"a performer", [](WorldState&) {}},
    {"two titles", twoTitles},
    {"a film and a commercial", filmAndCommercial},
    {"a film and a series", filmAndSeries},
    {"two submissions", [](WorldState& world) { twoSubmissions(world, false); }},
    {"an audition and a submission", [](WorldState& world) { twoSubmissions(world, true); }},
    {"a student film", [](WorldState& world) { release(world, filmType::studentFilm); }},
    {"a series", [](WorldState& world) { release(world, filmType::series); }},
};

class Story : public testing::TestWithParam<const char*> {
 protected:
  std::string play(const std::string& script) {
    std::istringstream lines(script);
    std::string text;
    for (std::string line; std::getline(lines, line);) {
      if (!line.starts_with("> ")) continue;
      SCOPED_TRACE(line);
      act(line.substr(2));
      text += line + "\n" + news();
    }
    return text;
  }

 private:
  void act(const std::string& step) {
    const std::size_t value = step.find(" = ");
    if (step.starts_with("start ")) {
      start(step.substr(6, step.find(" with") - 6), step.substr(step.rfind(' ') + 1));
    } else if (step == "launch") {
      device_.launch();
    } else if (step.starts_with("the disk ")) {
      device_.port.failAll(step.ends_with("full"));
    } else if (step.ends_with(" weeks")) {
      for (int week = std::stoi(step); week > 0; --week) {
        endWeek();
        player().press("Close");
      }
    } else if (value != std::string::npos) {
      enter(step.substr(0, value), step.substr(value + 3));
    } else if (step == "End Week") {
      endWeek();
    } else {
      player().press(step);
    }
  }

  void start(const std::string& name, const std::string& seed) {
    random_.seed(std::stoull(seed));
    device_.port.pieces.clear();
    if (name == "anew") return device_.launch();
    device_.begin(starts.at(name));
  }

  void enter(const std::string& label, const std::string& text) {
    const auto usable = player().usable();
    const auto slider = std::ranges::find_if(usable, [&](const test::Player::Usable& use) {
      return use.label == label && use.kind == test::Player::Usable::Kind::slide;
    });
    if (slider != usable.end()) return player().slide(label, std::stod(text));
    player().type(label, text);
  }

  // The cash changes as the week's records say, to the cent.
  void endWeek() {
    const double before = world().totalCashAvailable;
    player().press("End Week");
    EXPECT_EQ(player().title(), "REVIEW");
    EXPECT_NEAR(world().totalCashAvailable - before, balanceOfTheWeek(), 0.005);
  }
  [[nodiscard]] double balanceOfTheWeek() const {
    const std::int64_t week = world().weekNumberForTracking;
    double balance = world().weeklyJobIncome;
    for (const WeeklyEarnings& line : world().saveAllWeeklyEarnings) {
      if (line.weekNumberForTracking != week) continue;
      balance += line.sessionEarned + line.buyoutEarned + line.residualsEarned;
    }
    for (const RoyaltyPayout& line : world().saveAllRoyaltyPayouts) {
      if (line.weekNumberForTracking == week) balance += line.payout;
    }
    for (const EquityPayout& line : world().saveAllEquityPayouts) {
      if (line.weekNumberForTracking == week) balance += line.payOut;
    }
    for (const WeeklyLineItem& bill : world().saveAllWeeklyLineItems) balance -= bill.amount;
    return balance;
  }

  // What has changed since the last call. Of several weeks only the last one's figures.
  std::string news() {
    std::string text;
    for (const std::string& line : test::added(words_, player().words())) text += "  " + line + "\n";
    words_ = player().words();
    const std::int64_t weeks = world().weekNumberForTracking - before_.weekNumberForTracking;
    if (weeks > 1) {
      text += std::format("  Week {} of {}: cash {:.2f}, paid by jobs {}, {} films, {} payments, {} lines\n",
                          world().weekNumber, world().yearNumber, world().totalCashAvailable,
                          world().saveLastYTDPaycheck, world().saveAllFilmList.size(),
                          world().saveAllWeeklyEarnings.size(), world().activityTracker.size());
    } else {
      text += test::changesOf(before_, world());
    }
    before_ = world();
    return text;
  }

  [[nodiscard]] test::Player& player() { return device_.player(); }
  [[nodiscard]] const WorldState& world() const { return device_.world(); }

  test::SeededRandom random_{1};
  test::Device device_{random_};
  WorldState before_;
  std::vector<std::string> words_;
};

TEST_P(Story, IsToldAsBefore) {
  const std::string name = std::string("story_") + GetParam();
  test::expectGolden(name, play(test::goldenText(name)));
}

INSTANTIATE_TEST_SUITE_P(Golden, Story,
                         testing::Values("first_career", "first_weeks", "two_titles", "money_year",
                                         "reception", "review"));

}  // namespace
}  // namespace tb
