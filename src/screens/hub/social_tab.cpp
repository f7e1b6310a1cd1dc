#include "core/format.h"
#include "core/number_style.h"
#include "film/movie_reviews.h"
#include "screens/hub/agenda_rows.h"
#include "screens/hub/tabs.h"
#include "screens/offers/email_inbox_view_controller.h"
#include "screens/parts.h"
#include "screens/reception/quotes_view_controller.h"
#include "screens/reception/rate_movies_view_controller.h"
#include "social/inbox.h"

namespace tb {

namespace {

view::Section mail(const WorldState& world) {
  return {.heading = "MAIL",
          .nodes = {leadingTo<EmailInboxViewController>(
              "Inbox", "Agents, investments, stakes and sagas come by email",
              tb::format("{} of {}", world.saveAllEmailList.size(), inboxCapacity))}};
}

view::Section reviewing(const WorldState& world) {
  return {.heading = "REVIEWS",
          .nodes = {view::Row{.label = "Rate a movie",
                              .detail = "Your fans want to know what you think of it",
                              .action = {{.label = "Review",
                                          .press = openReview,
                                          .price = energyPrice(reviewEnergy),
                                          .refusal = briefOf(reviewRefusal(world)),
                                          .name = "Rate a movie"}}},
                    leadingTo<QuotesViewController>("Quotes", "What you told the press",
                                                    std::to_string(world.saveAllQuotes.size()))}};
}

}  // namespace

std::vector<view::Node> socialTab(const Game& game) {
  const WorldState& world = game.world;
  const std::vector<double> fans(world.trackFans.begin(), world.trackFans.end());
  std::vector<view::Node> nodes = nextInPublic(game);
  nodes.append_range(std::vector<view::Node>{
      mail(world),
      reviewing(world),
      view::Tiles{{{.label = "Fans", .value = plainCount(game.locale, world.totalFans)}}},
  });
  if (fans.empty()) return nodes;
  // Entries are changes, not weeks: a week can have none or several.
  nodes.emplace_back(historyChart("Fans", "change", fans,
                                  [](double count) { return shortCount(static_cast<std::int64_t>(count)); }));
  return nodes;
}

}  // namespace tb
