#include "screens/reception/quotes_view_controller.h"

#include <vector>

#include "core/format.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

// Indexes in saveAllQuotes.
std::vector<std::size_t> quotesOf(const WorldState& world, std::optional<std::int64_t> filmId) {
  std::vector<std::size_t> found;
  for (std::size_t index = world.saveAllQuotes.size(); index-- > 0;) {
    if (!filmId || world.saveAllQuotes[index].filmId == *filmId) found.push_back(index);
  }
  return found;
}

Card quoteCard(const Quote& quote) {
  return {.title = quote.filmName,
          .subtitle = quote.question,
          .nodes = {Text{.text = quote.quote, .style = Text::Style::quotation},
                    caption("[on playing " + quote.character + "]")}};
}

}  // namespace

Page QuotesViewController::view(const Game& game) {
  const std::vector<std::size_t> rows = quotesOf(game.world, film_id_);
  return {.title = "In Your Words",
          .subtitle = tb::format("Quotes: {}", rows.size()),
          .nodes = {PagedList{
              .key = "quotes",
              .size = rows.size(),
              .nodeAt = [&game, rows](
                            std::size_t index) { return quoteCard(game.world.saveAllQuotes[rows[index]]); },
              .whenEmpty = film_id_ ? "You gave no interview about this title."
                                    : "Nobody has quoted you yet. Promote a title before its release."}}};
}

}  // namespace tb
