// Golden sheets of classes, showreels and the guild, on both sides of each limit.

#include <format>
#include <gtest/gtest.h>

#include "career/classes.h"
#include "career/guild.h"
#include "career/showreel.h"
#include "career/traits.h"
#include "tests/record_text.h"
#include "tests/sheet.h"

namespace tb {
namespace {

using test::Sheet;

TEST(GoldenTalent, ClassesFromTheFirstWeekToTheLast) {
  Sheet sheet("talent_classes");
  const ActingClass half = {.classId = 2, .energyCost = 60, .weeksRemaining = 1};
  const ActingClass done = {.classId = 41, .energyCost = 60};
  const struct {
    const char* what;
    double cash;
    std::int64_t energyOfTheJob;
    List<ActingClass> taken;
  } cases[] = {{"with the price", 11'475, 0, {}},
               {"a dollar short", 11'474, 0, {}},
               {"again", 20'000, 0, {done}},
               {"when job and classes use all energy", 20'000, 40, {half}},
               {"when they use more, without cash", 0, 41, {half}}};
  for (const auto& [what, cash, energy, taken] : cases) {
    sheet.action(
        what,
        [&](WorldState& world) {
          world.totalCashAvailable = cash;
          world.weeklyEnergyCost = energy;
          world.yearNumber = 2031;
          world.saveAllCompletedClasses = taken;
        },
        [](Game& game) {
          return signUpForClass(game,
                                {.offered = classWithId(41), .weeks = 2, .cost = 11'475, .energyCost = 29});
        });
  }
  for (const std::int64_t left : {0, 1, 2}) {
    sheet.changes(
        std::format("a week with {} left", left),
        [&](WorldState& world) {
          world.saveAllCompletedClasses = {{.classId = 41, .weeksRemaining = left, .experience = 100}};
        },
        advanceClasses);
  }
}

// Four titles with footage, the first with the best; then one only directed and one that is not wrapped.
void prepareFootage(WorldState& world) {
  for (const Trait& trait : traits) world.*trait.points = 60;
  world.showreelScore = 90;
  world.newScenesProduced = {7};
  for (const double rating : {80.9, 70.5, 60.0, 50.0}) {
    world.saveAllAuditionList.push_back({.filmId = std::ssize(world.saveAllAuditionList) + 1,
                                         .funnelStage = funnel::wrapped,
                                         .performanceRating = rating});
  }
  world.saveAllAuditionList.push_back(
      {.filmId = 5, .funnelStage = funnel::wrapped, .performanceRating = 99, .didAct = 0});
  world.saveAllAuditionList.push_back({.filmId = 6, .funnelStage = funnel::booked, .performanceRating = 99});
}

TEST(GoldenTalent, ShowreelsOfFootageAndOfScenes) {
  Sheet sheet("talent_showreel");
  std::vector<std::int64_t> chosen;
  for (const std::int64_t filmId : {1, 2, 3, 4, 3}) {
    const Refusal refusal = chooseFootage(chosen, filmId);
    sheet.line(std::format("clip {}: {} {}", filmId, refusal ? refusal->title : "", test::textOf(chosen)));
  }
  const std::vector<std::vector<std::int64_t>> reels = {{}, {1, 2}, {1, 2, 5, 6}};
  for (const double cash : {398.99, 399.0}) {
    for (const auto& clips : reels) {
      sheet.action(
          std::format("a reel of {} with {}", test::textOf(clips), cash),
          [&](WorldState& world) {
            prepareFootage(world);
            world.totalCashAvailable = cash;
          },
          [&](Game& game) {
            sheet.line(std::format("footage {}, likely {}", allPerformanceFootage(game.world).size(),
                                   likelyFootageScore(game.world)));
            return buildShowreelFromFootage(game, clips, previewFootageReel(game, clips));
          });
    }
  }
  const std::vector<std::string> scenes = {"a waiter quits", "a queen waits", "a duel", "a fall"};
  for (const auto& [package, count, cash] : {std::tuple{0, 0, 499},
                                             {0, 1, 498},
                                             {0, 1, 499},
                                             {0, 2, 499},
                                             {1, 2, 699},
                                             {2, 3, 999},
                                             {2, 4, 999}}) {
    for (const auto& clips : {reels[0], reels[1]}) {
      sheet.action(
          std::format("package {} with {} scenes and {} clips for {}", package, count, clips.size(), cash),
          [&](WorldState& world) {
            prepareFootage(world);
            world.totalCashAvailable = cash;
          },
          [&](Game& game) {
            return produceShowreelScenes(game, static_cast<std::size_t>(package),
                                         std::span(scenes).first(static_cast<std::size_t>(count)), clips);
          });
    }
  }
  for (const auto& [written, scored] : {std::pair{TextList{"a duel", "a fall"}, IntList{21}}, {{}, {21}}}) {
    sheet.changes(
        std::format("{} scenes with {} scores", written.size(), scored.size()),
        [&](WorldState& world) {
          world.newSceneDescriptions = written;
          world.newScenesProduced = scored;
        },
        openShowreel);
  }
}

TEST(GoldenTalent, TheGuildNeedsTwoRolesAndTheFee) {
  Sheet sheet("talent_guild");
  for (const auto& [roles, cash, isSAG] :
       {std::tuple{1, 3'000, 0}, {2, 2'999, 0}, {2, 3'000, 0}, {2, 9'000, 1}}) {
    sheet.action(
        std::format("{} roles and {}, member {}", roles, cash, isSAG),
        [&](WorldState& world) {
          world.totalCashAvailable = cash;
          world.yearNumber = 2028;
          world.isSAG = isSAG;
          // Neither a background part nor an invitation counts.
          world.saveAllAuditionList = {{.isPrincipal = 0, .funnelStage = funnel::wrapped},
                                       {.isPrincipal = 1, .funnelStage = funnel::invited}};
          for (int role = 0; role < roles; ++role) {
            world.saveAllAuditionList.push_back({.isPrincipal = 1, .funnelStage = funnel::booked + role});
          }
        },
        joinGuild);
  }
}

}  // namespace
}  // namespace tb
