#include "screens/talent/acting_classes_view_controller.h"

#include "core/format.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

std::string nameOf(const JulliardClass& row) { return tb::format("Drama {}: {}", row.classCode, row.title); }

Row takenRow(const ActingClass& taken) {
  Row shown{.label = className(taken)};
  if (taken.weeksRemaining > 0) {
    shown.value = tb::format("{} of {} weeks left", taken.weeksRemaining, taken.weeksTotal);
    shown.detail = tb::format("-{} energy each week", taken.energyCost);
    shown.tone = Tone::accent;
  } else {
    shown.value = tb::format("+{:.0f} experience", taken.experience);
    shown.detail = tb::format("Finished, begun in {}", taken.yearStarted);
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

std::string className(const ActingClass& taken) {
  const JulliardClass* row = classWithId(taken.classId);
  return row == nullptr ? "An earlier class" : nameOf(*row);
}

void ActingClassesViewController::load(Stage& stage) { options_ = openClasses(stage.game()); }

void ActingClassesViewController::signUp(Stage& stage, const ClassOption& option) {
  if (Refusal refusal = signUpForClass(stage.game(), option)) return stage.show(std::move(refusal));
  stage.say(tb::format("Signed up: {}, {} weeks.", nameOf(*option.offered), option.weeks));
}

Button ActingClassesViewController::signUpButton(const Game& game, const ClassOption& option) {
  Button button{.label = "Sign up",
                .press = [this, option](Stage& stage) { signUp(stage, option); },
                .name = "Sign up for " + nameOf(*option.offered)};
  if (isTaken(game.world, option.offered->id)) {
    button.label = "Signed up";
    button.weight = Button::Weight::done;
    return button;
  }
  button.price = moneyPrice(game.locale, option.cost);
  button.refusal = briefOf(classRefusal(game.world, option));
  return button;
}

Card ActingClassesViewController::optionCard(const Game& game, const ClassOption& option) {
  return {.title = nameOf(*option.offered),
          .subtitle = tb::format("Level {}", option.offered->classLevel),
          .nodes = {Text{.text = tb::format("{} weeks • -{} energy each week • +{:.0f} experience",
                                            option.weeks, option.energyCost, option.offered->percentage)},
                    signUpButton(game, option)}};
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
          .nodes = {Meter{.label = "Curriculum",
                          .value = done * 100,
                          .maximum = 100,
                          .text = tb::format("{:.0f}%", done * 100)},
                    caption("Finish every class to earn a bonus experience boost."), offered(game),
                    Section{.heading = "YOUR CLASSES", .nodes = {transcript(game)}}}};
}

}  // namespace tb
