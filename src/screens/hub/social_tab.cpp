#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "core/weekly_option.h"
#include "film/movie_reviews.h"
#include "screens/audience/fame_detail_view_controller.h"
#include "screens/audience/fanbase_view.h"
#include "screens/audience/patron_home_view_controller.h"
#include "screens/audience/star_meter_view_controller.h"
#include "screens/audience/the_cameo_view_controller.h"
#include "screens/chirp/chirp_profile_view_controller.h"
#include "screens/hub/agenda_rows.h"
#include "screens/hub/tabs.h"
#include "screens/offers/email_inbox_view_controller.h"
#include "screens/parts.h"
#include "screens/reception/quotes_view_controller.h"
#include "screens/reception/rate_movies_view_controller.h"
#include "social/cameo.h"
#include "social/chirp_posts.h"
#include "social/fame.h"
#include "social/inbox.h"
#include "wealth/patron_pay.h"

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

view::Section audience(const Game& game) {
  const WorldState& world = game.world;
  const bool isRanked = !world.saveStarRankingMeter.empty();
  return {
      .heading = "AUDIENCE",
      .nodes = {fanbaseView(game),
                leadingTo<FameDetailViewController>("Fame", "Where each point comes from",
                                                    tb::format("{} list", fameLetter(world.saveFameLevel))),
                leadingTo<StarMeterViewController>(
                    "Star Meter", isRanked ? "Among all actors" : "Starts with your first wrapped title",
                    isRanked ? "#" + plainCount(game.locale, world.saveStarRankingMeter.back()) : "")}};
}

view::Section chirp(const Game& game) {
  return {
      .heading = "CHIRP",
      .nodes = {leadingTo<ChirpProfileViewController>("Chirp", "What the world says, and what you say to it",
                                                      counted(chirpsByPlayer(game.world), "chirp"))}};
}

std::string cameoWords(const WorldState& world) {
  if (world.totalFans < cameoFans)
    return tb::format("Fans buy videos from {} fans on", shortCount(cameoFans));
  return isCameoOpen(world) ? "Short videos for your fans" : "Your fans would pay for a video";
}

std::string patronWords(const WorldState& world) {
  if (!hasWeeklyOption(world, weeklyOption::moviePass)) return "A Movie Pass opens it";
  const std::size_t reviews = world.saveAllMovieReviews.size();
  if (reviews < patronReviews) return tb::format("{} of {} reviews written", reviews, patronReviews);
  return "Readers pay for your reviews";
}

view::Section famePays(const Game& game) {
  const WorldState& world = game.world;
  return {.heading = "FAME PAYS",
          .nodes = {leadingTo<TheCameoViewController>(
                        "The Cameo", cameoWords(world),
                        isCameoOpen(world) ? wholeMoney(game.locale, world.setCameoPrice) : ""),
                    leadingTo<PatronHomeViewController>(
                        "Patron", patronWords(world),
                        world.trackPatronEarnings.empty()
                            ? ""
                            : wholeMoney(game.locale, world.trackPatronEarnings.back()))}};
}

}  // namespace

std::vector<view::Node> socialTab(const Game& game) {
  const WorldState& world = game.world;
  std::vector<view::Node> nodes = nextInPublic(game);
  nodes.append_range(std::vector<view::Node>{
      mail(world),
      chirp(game),
      audience(game),
      reviewing(world),
      famePays(game),
  });
  return nodes;
}

}  // namespace tb
