#include "screens/life/subscription.h"

#include <array>
#include <utility>

#include "banks/lifestyle_banks.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/weekly_option.h"
#include "life/weekly_options.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

// The options that open something, in the order of bank::lifestyleUnlocks.
constexpr std::array unlocking = {weeklyOption::metflix, weeklyOption::moviePass, weeklyOption::theCameo};

// "\n\n" and what the option opens beside its energy; empty when it opens nothing.
std::string unlockWords(std::int64_t id) {
  for (std::size_t index = 0; index < unlocking.size(); ++index) {
    if (unlocking[index] == id) return "\n\n" + rowsOf(bank::lifestyleUnlocks)[index];
  }
  return "";
}

void buy(Stage& stage, std::int64_t id) {
  if (Refusal refusal = buyWeeklyOption(stage.game(), id)) return stage.show(std::move(refusal));
  stage.say(tb::format("{} is yours, and paid every week.", weeklyOptionWith(id).title));
}

void askToBuy(Stage& stage, std::int64_t id) {
  if (Refusal refusal = weeklyOptionRefusal(stage.game(), id)) return stage.show(std::move(refusal));
  const WeeklyOption& option = weeklyOptionWith(id);
  const std::string energy =
      option.energyBoost == 0 ? "" : tb::format(", and moves your weekly energy by {:+}", option.energyBoost);
  stage.ask(
      Notice{.title = "⚡️ Subscribe? ⚡️",
             .message = tb::format("\n{} costs {} a week, starting now{}.{}", option.title,
                                   wholeMoney(stage.game().locale, option.cost), energy, unlockWords(id))},
      {{.label = "Subscribe",
        .press = [id](Stage& asked) { buy(asked, id); },
        .weight = Button::Weight::primary},
       {.label = "Not Now"}});
}

void askToCancel(Stage& stage, std::int64_t id) {
  stage.ask(Notice{.title = tb::format("Cancel {}?", weeklyOptionWith(id).title),
                   .message = "\nWould you like to clear this expense?"},
            {{.label = "Keep", .weight = Button::Weight::primary},
             {.label = "Cancel it",
              .press = [id](Stage& asked) { cancelWeeklyOption(asked.game(), id); },
              .weight = Button::Weight::destructive}});
}

}  // namespace

Button subscriptionButton(const Game& game, std::int64_t id) {
  const WeeklyOption& option = weeklyOptionWith(id);
  if (hasWeeklyOption(game.world, id)) {
    return {.label = "Cancel",
            .press = [id](Stage& stage) { askToCancel(stage, id); },
            .name = tb::format("Cancel {}", option.title),
            .weight = Button::Weight::quiet};
  }
  return {.label = "Sign up",
          .press = [id](Stage& stage) { askToBuy(stage, id); },
          .price = moneyPrice(game.locale, option.cost),
          .refusal = briefOf(weeklyOptionRefusal(game, id)),
          .name = tb::format("Sign up for {}", option.title)};
}

Row subscriptionRow(const Game& game, std::int64_t id, std::string detail) {
  const WeeklyOption& option = weeklyOptionWith(id);
  return {.label = std::string(option.title),
          .detail = tb::format("{}, for {} a week", detail, wholeMoney(game.locale, option.cost)),
          .step = Row::Step::open,
          .action = {subscriptionButton(game, id)}};
}

Button cancelSubscription(const Game& game, std::int64_t id) {
  const WeeklyOption& option = weeklyOptionWith(id);
  Button button = subscriptionButton(game, id);
  button.label = tb::format("Cancel {} ({} a week)", option.title, wholeMoney(game.locale, option.cost));
  button.name.clear();
  return button;
}

}  // namespace tb
