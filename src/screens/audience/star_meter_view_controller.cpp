#include "screens/audience/star_meter_view_controller.h"

#include <algorithm>

#include "core/format.h"
#include "core/number_style.h"
#include "film/catalogue.h"
#include "screens/headshot.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

constexpr std::size_t starsAtOnce = 10;

std::string rankText(const Locale& locale, std::int64_t rank) { return "#" + plainCount(locale, rank); }

Place starPlace(const Locale& locale, const Bankable& star, std::int64_t place) {
  return {.place = std::to_string(place),
          .label = star.name,
          .detail = tb::format("{} films", star.totalMovies),
          .value = bigMoney(locale, star.totalGross),
          .picture = {{.kind = PictureKind::avatar, .name = star.name}}};
}

// The stars, with the performer among them from the hundredth place up.
PagedList leadingPlaces(const Game& game, std::int64_t rank) {
  const auto stars = leadingStars();
  const bool isListed = rank <= std::ssize(stars);
  return {.key = "stars",
          .size = stars.size() + (isListed ? 1 : 0),
          .nodeAt = [&game, stars, rank, isListed](std::size_t index) -> Node {
            const auto place = static_cast<std::int64_t>(index) + 1;
            if (isListed && place == rank) {
              return Place{.place = std::to_string(place),
                           .label = game.world.myName,
                           .value = bigMoney(game.locale, static_cast<double>(game.world.saveBoxOffice)),
                           .picture = {performerPicture(game.world)},
                           .tone = Tone::accent};
            }
            const std::size_t above = isListed && place > rank ? 1 : 0;
            return starPlace(game.locale, stars[index - above], place);
          },
          .pageLength = starsAtOnce};
}

Chart rankChart(const Game& game) {
  const IntList& history = game.world.saveStarRankingMeter;
  const std::vector<double> ranks(history.begin(), history.end());
  return historyChart("Rank", "ranking", ranks, [&game](double rank) {
    return rankText(game.locale, static_cast<std::int64_t>(std::max(rank, 0.0)));
  });
}

Tiles rankFigures(const Game& game) {
  const IntList& history = game.world.saveStarRankingMeter;
  return {{{.label = "Rank", .value = rankText(game.locale, history.back()), .detail = "of all actors"},
           {.label = "Best", .value = rankText(game.locale, std::ranges::min(history)), .detail = "lately"},
           {.label = "Career gross",
            .value = bigMoney(game.locale, static_cast<double>(game.world.saveBoxOffice))}}};
}

}  // namespace

Page StarMeterViewController::view(const Game& game) {
  const WorldState& world = game.world;
  const bool isRanked = !world.saveStarRankingMeter.empty();
  Page page{.title = "Star Meter", .subtitle = "All actors by the gross of their films"};
  if (isRanked) {
    page.nodes = {rankFigures(game), rankChart(game)};
  } else {
    page.nodes = {Text{.text = "You are not ranked yet. The meter starts when your first title wraps, and "
                               "moves every second week."}};
  }
  page.nodes.push_back(
      caption("Counted are films with a principal part of yours, after their run in theaters. The first "
              "million dollars moves nobody."));
  const std::int64_t rank = isRanked ? world.saveStarRankingMeter.back() : 100'000;
  page.nodes.push_back(Section{.heading = "LEADING STARS", .nodes = {leadingPlaces(game, rank)}});
  return page;
}

}  // namespace tb
