#include "screens/talent/acting_classes_view_controller.h"

#include <format>

#include "core/number_style.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

std::string nameOf(const JulliardClass& row) { return std::format("Drama {}: {}", row.classCode, row.title); }

Row takenRow(const ActingClass& taken) {
  const JulliardClass* row = classWithId(taken.classId);
  Row shown{.label = row == nullptr ? "An earlier class" : nameOf(*row)};
  if (taken.weeksRemaining > 0) {
    shown.value = std::format("{} of {} weeks left", taken.weeksRemaining, taken.weeksTotal);
    shown.detail = std::format("-{} energy each week", taken.energyCost);
    shown.tone = Tone::accent;
  } else {
    shown.value = std::format("+{:.0f} experience", taken.experience);
    shown.detail = std::format("Finished, begun in {}", taken.yearStarted);
    shown.tone = Tone::quiet;
  }
  return shown;
}

PagedList transcript(const Game& game) {
  const List<ActingClass>& taken = game.world.saveAllCompletedClasses;
  // Newest first.
  return {.key = "transcript",
          .size = taken.size(),
          .nodeAt = [&](std::size_t index) { return takenRow(taken[taken.size() - 1 - index]); },
          .whenEmpty = "You have not taken a class yet."};
}

}  // namespace

void ActingClassesViewController::load(Stage& stage) { options_ = openClasses(stage.game()); }

void ActingClassesViewController::signUp(Stage& stage, const ClassOption& option) {
  if (Refusal refusal = signUpForClass(stage.game(), option)) return stage.show(std::move(refusal));
  stage.show(Notice{.title = "🎭 Signed Up 🎭",
                    .message = std::format("\n{} begins this week and runs for {} weeks.",
                                           nameOf(*option.offered), option.weeks)});
}

Card ActingClassesViewController::optionCard(const Game& game, const ClassOption& option) {
  return {.title = nameOf(*option.offered),
          .subtitle = std::format("Level {}", option.offered->classLevel),
          .nodes = {Text{.text = std::format("{} weeks • -{} energy each week • +{:.0f} experience",
                                             option.weeks, option.energyCost, option.offered->percentage)},
                    Button{.label = "Sign up",
                           .press = [this, option](Stage& stage) { signUp(stage, option); },
                           .price = currency(game.locale, option.cost, 0)}}};
}

Section ActingClassesViewController::offered(const Game& game) {
  Section section{.heading = "ON OFFER TODAY"};
  for (const ClassOption& option : options_) section.nodes.push_back(optionCard(game, option));
  if (options_.empty()) section.nodes.push_back(caption("No class is open to you today."));
  return section;
}

Page ActingClassesViewController::view(const Game& game) {
  const double done = completionPercentage(game.world);
  return {.title = "Acting Classes",
          .subtitle = "Julien, school of drama",
          .nodes = {Tiles{{{.label = "Cash", .value = cash(game.locale, game.world.totalCashAvailable)}}},
                    energyMeter(game.world),
                    Meter{.label = "Curriculum",
                          .value = done * 100,
                          .maximum = 100,
                          .text = std::format("{:.0f}%", done * 100)},
                    caption("Finish every class to earn a bonus experience boost."), offered(game),
                    Section{.heading = "YOUR CLASSES", .nodes = {transcript(game)}}}};
}

}  // namespace tb
