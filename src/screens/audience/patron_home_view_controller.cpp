#include "screens/audience/patron_home_view_controller.h"

#include <algorithm>

#include "core/calendar.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/weekly_option.h"
#include "film/movie_reviews.h"
#include "screens/audience/patron_analytics_view_controller.h"
#include "screens/life/subscription.h"
#include "screens/parts.h"
#include "screens/reception/rate_movies_view_controller.h"
#include "wealth/patron_pay.h"

namespace tb {

using namespace view;

namespace {

Row reviewRow(const WorldState& world) {
  return {.label = "Review a movie",
          .detail = "A new review brings the readers back",
          .action = {{.label = "Review",
                      .press = openReview,
                      .price = energyPrice(reviewEnergy),
                      .refusal = briefOf(reviewRefusal(world)),
                      .name = "Review a movie"}}};
}

Row reviewsRow(const WorldState& world) {
  const std::size_t reviews = world.saveAllMovieReviews.size();
  return {.label = "Ten reviews",
          .value = tb::format("{} of {}", std::min(reviews, patronReviews), patronReviews),
          .detail = "Readers pay from the tenth on",
          .step = reviews >= patronReviews ? Row::Step::taken : Row::Step::open};
}

Section earnings(const Game& game) {
  const WorldState& world = game.world;
  return {
      .heading = "EARNINGS",
      .nodes = {Tiles{{{.label = "This week", .value = cash(game.locale, patronSubscriptions(world))},
                       {.label = "So far", .value = bigMoney(game.locale, world.totalPatronEarnings)}}},
                Meter{.label = "Interest",
                      .value = patronInterest(world) * 100,
                      .maximum = 100,
                      .text = tb::format("{:.0f}%", patronInterest(world) * 100)},
                caption("It fades over 200 weeks after your newest review. Fans and fame raise the rest."),
                leadingTo<PatronAnalyticsViewController>("Analytics", "Week by week")}};
}

Section reviews(const WorldState& world) {
  return {.heading = "YOUR REVIEWS",
          .nodes = {reviewRow(world),
                    PagedList{.key = "reviews",
                              .size = world.saveAllMovieReviews.size(),
                              .nodeAt = [&world](std::size_t index) -> Node {
                                const MovieReview& review = world.saveAllMovieReviews[index];
                                return Card{
                                    .title = review.title,
                                    .subtitle = numericDate(review.weekNumber, review.yearNumber),
                                    .nodes = {Stars{.value = static_cast<double>(review.rating), .outOf = 10},
                                              Text{.text = review.review}}};
                              },
                              .whenEmpty = "You have reviewed nothing yet.",
                              .pageLength = 5}}};
}

}  // namespace

Page PatronHomeViewController::view(const Game& game) {
  const WorldState& world = game.world;
  Page page{.title = "Patron", .subtitle = "Readers pay for your film reviews"};
  if (!hasWeeklyOption(world, weeklyOption::moviePass)) {
    page.nodes = {Section{.heading = "TO OPEN",
                          .nodes = {subscriptionRow(game, weeklyOption::moviePass, "A seat at every movie"),
                                    reviewsRow(world)}}};
    return page;
  }
  if (world.saveAllMovieReviews.size() < patronReviews) {
    page.nodes = {Card{.title = "📝 Not Enough Reviews 📝",
                       .subtitle = "Once you’ve reviewed 10 movies, you’ll start earning weekly income based "
                                   "on your fame and followers."},
                  Section{.nodes = {reviewsRow(world)}}};
  } else {
    page.nodes = {earnings(game)};
  }
  page.nodes.push_back(reviews(world));
  page.nodes.push_back(cancelSubscription(game, weeklyOption::moviePass));
  return page;
}

}  // namespace tb
