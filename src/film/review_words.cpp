#include "film/review_words.h"

#include "banks/draw.h"
#include "film/catalogue.h"

namespace tb {

namespace {

template <class Work>
std::string reviewOf(Game& game, Bank bank, const Work& work, const std::string& genre) {
  const ReviewNouns& seen = nounsOf(work.title);
  return fill(drawFreshRow(game, bank, subjectOf(work)), {{"title", work.title},
                                                          {"director", work.directorName},
                                                          {"name", game.world.myName},
                                                          {"genre", genre},
                                                          {"prop", seen.prop},
                                                          {"place", seen.place}});
}

}  // namespace

std::string drawReview(Game& game, Bank bank, const Film& film, const std::string& genre) {
  return reviewOf(game, bank, film, genre);
}

std::string drawReview(Game& game, Bank bank, const Audition& project, const std::string& genre) {
  return reviewOf(game, bank, project, genre);
}

}  // namespace tb
