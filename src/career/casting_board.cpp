#include "career/casting_board.h"

#include <algorithm>

#include "career/casting_terms.h"
#include "career/new_title.h"

namespace tb {

namespace {

constexpr std::int64_t minListings = 5;
constexpr std::int64_t maxListings = 8;
constexpr int maxRedraws = 10;  // of a title that is already on the board; after that it is listed twice

const Movie& drawMovie(Game& game, const CastingBoard& board, const MadeTitles& made) {
  const auto isListed = [&](const Movie& movie) {
    return std::ranges::any_of(
        board, [&](const CastingListing& taken) { return taken.movie->title == movie.title; });
  };
  const Movie* movie = &RandomElement(game.random, movies());
  for (int redraw = 0; redraw < maxRedraws && isListed(*movie); ++redraw)
    movie = &RandomElement(game.random, movies());
  return newTitle(movies(), *movie, made, isListed);
}

struct ListingFrame {
  std::int64_t filmId;
  std::int64_t maxBudget = boardBudget;
};

CastingListing drawListing(Game& game, const CastingBoard& board, const MadeTitles& made,
                           const ListingFrame& frame) {
  CastingListing listing{.filmId = frame.filmId, .isPrincipal = RandomRange(game.random, 2)};
  const TvRole& tvRole = drawTvRole(game);
  listing.movie = &drawMovie(game, board, made);
  listing.role = drawRole(game, listing.isPrincipal);
  listing.isUnion = drawUnionFlag(game);
  completeListing(game, listing, tvRole, frame.maxBudget);
  return listing;
}

}  // namespace

CastingBoard openCastingNetwork(Game& game) {
  game.world.filmId += 1;
  const std::int64_t listings = RandomBetween(game.random, minListings, maxListings);
  const MadeTitles made = madeTitles(game.world);
  CastingBoard board;
  for (std::int64_t place = 1; place <= listings; ++place) {
    board.push_back(drawListing(game, board, made, {.filmId = game.world.filmId + place}));
  }
  return board;
}

CastingListing drawAgentListing(Game& game, std::int64_t filmId, std::int64_t maxBudget) {
  return drawListing(game, {}, madeTitles(game.world), {.filmId = filmId, .maxBudget = maxBudget});
}

}  // namespace tb
