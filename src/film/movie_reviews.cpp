#include "film/movie_reviews.h"

#include <array>

#include "banks/draw.h"
#include "banks/rate_movies_banks.h"
#include "core/find.h"
#include "core/format.h"
#include "core/house_notices.h"
#include "core/text.h"

namespace tb {

namespace {

// The banks of sentences for 1-2, 3-4, 5-6, 7-8 and 9-10 stars.
struct SentenceBanks {
  Bank middle;
  Bank last;
};
constexpr std::array<SentenceBanks, 5> sentencesOfLevels = {{
    {.middle = bank::reviewMiddle1, .last = bank::reviewLast1},
    {.middle = bank::reviewMiddle2, .last = bank::reviewLast2},
    {.middle = bank::reviewMiddle3, .last = bank::reviewLast3},
    {.middle = bank::reviewMiddle4, .last = bank::reviewLast4},
    {.middle = bank::reviewMiddle5, .last = bank::reviewLast5},
}};

}  // namespace

void rateFilm(Game& game, std::int64_t filmId, std::int64_t stars) {
  List<Film>& films = game.world.saveAllFilmList;
  const auto index = find(films, &Film::filmId, filmId);
  if (!index || films[*index].myRating != 0) return;
  films.edit(*index).myRating = static_cast<double>(stars);
}

Refusal reviewRefusal(const WorldState& world) {
  if (world.totalEnergyAvailable >= reviewEnergy) return {};
  return notEnoughEnergy("\nYou don't have the energy to review a title right now.");
}

Refusal startReview(Game& game) {
  if (Refusal refusal = reviewRefusal(game.world)) return refusal;
  game.world.totalEnergyAvailable -= reviewEnergy;
  return {};
}

const CatalogueTitle& drawTitleToReview(RandomSource& random) {
  return RandomElement(random, rateMovieCatalogue());
}

Refusal needsRating(std::int64_t rating) {
  if (rating > 0) return {};
  return Notice{.title = "⭐️ Choose a Rating! ⭐️", .message = "\nYou need to choose a rating first."};
}

std::string generatedReview(Game& game, std::int64_t rating) {
  const SentenceBanks& sentences = sentencesOfLevels[static_cast<std::size_t>((rating - 1) / 2)];
  const std::string_view first = drawFreshRow(game, bank::reviewFirstSentence);
  const std::string_view middle = drawFreshRow(game, sentences.middle);
  return tb::format("{} {} {}", first, middle, drawFreshRow(game, sentences.last));
}

Refusal submitReview(Game& game, const std::string& title, std::int64_t rating, const std::string& text) {
  WorldState& world = game.world;
  if (Refusal refusal = needsRating(rating)) return refusal;
  std::string review = trimmed(text);
  if (review.empty()) {
    return Notice{.title = "⭐️ Leave a Review! ⭐️",
                  .message = "\nWrite a short review or hit the green star for a randomly generated review!"};
  }
  world.saveAllMovieReviews.push_front({.title = title,
                                        .review = std::move(review),
                                        .rating = rating,
                                        .weekNumber = world.weekNumber,
                                        .yearNumber = world.yearNumber,
                                        .weekNumberForTracking = world.weekNumberForTracking});
  return {};
}

}  // namespace tb
