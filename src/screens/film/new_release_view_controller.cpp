#include "screens/film/new_release_view_controller.h"

#include <algorithm>
#include <string_view>

#include "core/find.h"
#include "core/format.h"
#include "core/number_style.h"
#include "film/box_office.h"
#include "film/new_releases.h"
#include "screens/film/imbd_box_office_detail_view_controller.h"
#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/reception/imbd_film_detail_view_controller.h"

namespace tb {

using namespace view;

namespace {

constexpr std::string_view oneStar = "★";

std::string kindOf(const Film& film, const MetReview& card) {
  std::string kind = card.filmType;
  if (card.season >= 2) kind += tb::format(" • Season {}", card.season);
  if (!film.ageRating.empty()) kind += " • " + film.ageRating;
  return kind + tb::format(" • {} min", film.lengthMinutes);
}

Tiles figuresOf(const Game& game, const Film& film) {
  Tiles tiles{{{.label = "Imbd", .value = tb::format("{:.1f}", film.imbdRating), .detail = "of 10"},
               scoreTile("Metascore", film.imbdMetascore, "of 100")}};
  if (const auto gross = grossOf(game.world, film.filmId)) {
    tiles.tiles.push_back({.label = "Opening weekend", .value = bigMoney(game.locale, *gross)});
  }
  const auto& seasons = game.world.saveAllRatings;
  if (const auto season = find(seasons, &Ratings::filmId, film.filmId)) {
    const auto views = static_cast<std::int64_t>(seasons[*season].premiereViews.front());
    tiles.tiles.push_back({.label = "Premiere views", .value = shortCount(views)});
  }
  return tiles;
}

Card releaseCard(const Game& game, const Film& film, const MetReview& card) {
  Card shown{.title = card.filmTitle,
             .subtitle = kindOf(film, card),
             .picture = {posterOf(game.world, film)},
             .nodes = {caption(card.description),
                       Stars{.label = card.reviewerCompany,
                             .value = static_cast<double>(card.starString.size() / oneStar.size())}}};
  if (!card.reviewString.empty()) {
    shown.nodes.push_back(Text{.text = card.reviewString, .style = Text::Style::quotation});
  }
  shown.nodes.push_back(caption(tb::format("{}, {}", card.reviewerName, card.reviewerCompany)));
  shown.nodes.push_back(figuresOf(game, film));
  shown.nodes.push_back(Button{.label = "Imbd page of " + film.title,
                               .press = [id = film.filmId](Stage& stage) { openTitlePage(stage, id); }});
  if (film.typeOfFilm == filmType::feature) {
    shown.nodes.push_back(
        Button{.label = "Box office of " + film.title,
               .press = [id = film.filmId](Stage& stage) { openBoxOfficeDetail(stage, id); }});
  }
  return shown;
}

}  // namespace

void NewReleaseViewController::load(Stage& stage) { writeReleaseReviews(stage.game()); }

Page NewReleaseViewController::view(const Game& game) {
  Page page{.title = "New Release", .subtitle = "The reviews are in"};
  const std::vector<std::size_t> films = newReleases(game.world);
  for (std::size_t index = 0; index < films.size(); ++index) {
    page.nodes.push_back(
        releaseCard(game, game.world.saveAllFilmList[films[index]], game.world.newReleaseReviews[index]));
  }
  return page;
}

}  // namespace tb
