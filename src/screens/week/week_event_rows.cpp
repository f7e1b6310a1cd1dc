#include "screens/week/week_event_rows.h"

#include <array>
#include <utility>

#include "core/format.h"
#include "core/number_style.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

struct EventWords {
  const char* verb;    // on the button
  const char* brings;  // empty for side pay
};
// In the order of WeekEvent.
constexpr std::array<EventWords, 9> eventWords = {{
    {.verb = "Perform", .brings = "1 to 5 experience"},
    {.verb = "Read", .brings = ""},
    {.verb = "Work", .brings = ""},
    {.verb = "Go", .brings = "-2 to +3 weekly energy"},
    {.verb = "Try", .brings = "A point of a talent trait, or nothing"},
    {.verb = "Review", .brings = "A movie to review"},
    {.verb = "Talk", .brings = "A question from your partner"},
    {.verb = "Appear", .brings = "1 to 6 public image"},
    {.verb = "Attend", .brings = "A taping of the show"},
}};
constexpr EventWords streetMime = {.verb = "Perform", .brings = ""};

const EventWords& wordsOf(const WorldState& world, WeekEvent event) {
  if (event == WeekEvent::relationship && !isWithPartner(world, event)) return streetMime;
  return eventWords[static_cast<std::size_t>(event) - 1];
}

std::string payWords(const Game& game) {
  const PayRange pay = sidePay(game.world);
  return tb::format("Pays {} to {}", wholeMoney(game.locale, pay.least), wholeMoney(game.locale, pay.most));
}

Tone toneOf(const WeekEventResult& result) {
  if (result.change == 0) return Tone::plain;
  return result.change > 0 ? Tone::good : Tone::warning;
}

}  // namespace

Node weekEventRow(const Game& game, const OfferedEvent& offered, Operation press) {
  const WeekEvent event = offered.event;
  for (const WeekEventResult& result : offered.result) {
    return Card{.nodes = {Text{.text = result.text, .tone = toneOf(result)}}};
  }
  const EventWords& words = wordsOf(game.world, event);
  std::string title = titleOf(game, event);
  const std::string brings = words.brings;
  Button button{.label = words.verb,
                .press = std::move(press),
                .refusal = briefOf(weekEventRefusal(game.world, event)),
                .name = title};
  // The title of a checkup already has its price.
  if (const std::int64_t energy = energyFor(game.world, event); energy > 0)
    button.price = energyPrice(energy);
  return Row{.label = std::move(title),
             .detail = brings.empty() ? payWords(game) : brings,
             .action = {std::move(button)}};
}

}  // namespace tb
