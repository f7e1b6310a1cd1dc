#include "screens/audience/subscription.h"

#include <string_view>
#include <utility>

#include "core/format.h"
#include "core/number_style.h"
#include "life/weekly_options.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

void buy(Stage& stage, std::int64_t id) {
  if (Refusal refusal = buyWeeklyOption(stage.game(), id)) return stage.show(std::move(refusal));
  stage.say(tb::format("{} is yours, and paid every week.", weeklyOptionWith(id).title));
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

Row subscriptionRow(const Game& game, std::int64_t id, std::string detail) {
  const WeeklyOption& option = weeklyOptionWith(id);
  return {.label = std::string(option.title),
          .detail = tb::format("{}, for {} a week", detail, wholeMoney(game.locale, option.cost)),
          .step = Row::Step::open,
          .action = {{.label = "Sign up",
                      .press = [id](Stage& stage) { buy(stage, id); },
                      .price = moneyPrice(game.locale, option.cost),
                      .refusal = briefOf(weeklyOptionRefusal(game, id)),
                      .name = tb::format("Sign up for {}", option.title)}}};
}

Button cancelSubscription(const Game& game, std::int64_t id) {
  const WeeklyOption& option = weeklyOptionWith(id);
  return {.label = tb::format("Cancel {} ({} a week)", option.title, wholeMoney(game.locale, option.cost)),
          .press = [id](Stage& stage) { askToCancel(stage, id); },
          .weight = Button::Weight::quiet};
}

}  // namespace tb
