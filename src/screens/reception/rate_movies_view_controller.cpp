#include "screens/reception/rate_movies_view_controller.h"

#include "core/format.h"
#include "film/movie_reviews.h"
#include "screens/parts.h"
#include "screens/poster.h"

namespace tb {

using namespace view;

void RateMoviesViewController::load(Stage& stage) { title_ = &drawTitleToReview(stage.game().random); }

Choice RateMoviesViewController::stars() {
  Choice choice{.label = "Your rating"};
  for (std::int64_t stars = 1; stars <= maxStars; ++stars) {
    choice.options.push_back({.label = tb::format("{} ★", stars),
                              .chosen = rating_ == stars,
                              .press = [this, stars](Stage&) { rating_ = stars; }});
  }
  return choice;
}

void RateMoviesViewController::generate(Stage& stage) {
  if (Refusal refusal = needsRating(rating_)) return stage.show(std::move(refusal));
  review_ = generatedReview(stage.game(), rating_);
}

void RateMoviesViewController::submit(Stage& stage) {
  if (Refusal refusal = submitReview(stage.game(), title_->title, rating_, review_)) {
    return stage.show(std::move(refusal));
  }
  const std::size_t reviews = stage.game().world.saveAllMovieReviews.size();
  stage.say(tb::format("Your review of {} is out. You have written {} in all.", title_->title, reviews));
  stage.close();
}

Page RateMoviesViewController::view(const Game&) {
  return {.title = tb::format("What do you think about {} ({})?", title_->title, title_->year),
          .subtitle =
              "As your fanbase grows, you can earn weekly income from reviews. Fans want to know your "
              "thoughts",
          .nodes = {posterOf(*title_), caption(title_->description), stars(),
                    Field{.label = "Your review",
                          .value = review_,
                          .type = [this](Stage&, const std::string& text) { review_ = text; },
                          .hint = "A sentence or two will do",
                          .maximumLength = 600,
                          .severalLines = true},
                    Button{.label = "❇️ Write it for me",
                           .press = [this](Stage& stage) { generate(stage); },
                           .weight = Button::Weight::quiet}},
          .main = {{.label = "Submit",
                    .press = [this](Stage& stage) { submit(stage); },
                    .name = "Submit your review of " + title_->title,
                    .weight = Button::Weight::primary}}};
}

void openReview(Stage& stage) {
  if (Refusal refusal = startReview(stage.game())) return stage.show(std::move(refusal));
  stage.open<RateMoviesViewController>();
}

}  // namespace tb
