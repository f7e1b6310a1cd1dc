#include "screens/love/person_nodes.h"

#include <algorithm>

#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"

namespace tb {

using namespace view;

std::vector<Node> personNodes(const Game& game, const Matches& person) {
  return {Tiles{{{.label = "Chemistry", .value = tb::format("{:.0f}% Chemistry", person.chemistry)},
                 {.label = "Together",
                  .value = tb::format("{:+} Energy", person.energyBonus),
                  .tone = person.energyBonus > 0 ? Tone::good : Tone::quiet}}},
          Text{.text = tb::format("{} | {}/week", person.occupation,
                                  wholeMoney(game.locale, person.weeklyEarnings))},
          Text{.text = interestWords(person), .style = Text::Style::caption, .tone = Tone::quiet}};
}

std::string interestWords(const Matches& person) {
  constexpr std::size_t most = 3;
  std::string words;
  for (std::size_t index = 0; index < std::min(person.interests.size(), most); ++index) {
    words += (index == 0 ? "" : ", ") + capitalized(person.interests[index]);
  }
  return words;
}

}  // namespace tb
