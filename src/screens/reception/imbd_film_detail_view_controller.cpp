#include "screens/reception/imbd_film_detail_view_controller.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "core/find.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "film/cast_list.h"
#include "film/film_record.h"
#include "film/movie_reviews.h"
#include "film/review_summary.h"
#include "film/top_titles.h"
#include "screens/film/imbd_box_office_detail_view_controller.h"
#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/reception/quotes_view_controller.h"
#include "screens/reception/rotten_banana_detail_view_controller.h"
#include "screens/reception/top250_movies_view_controller.h"
#include "screens/work/project_words.h"

namespace tb {

using namespace view;

namespace {

std::string kindOf(const Film& film) {
  std::string kind = tb::format("{} • {}", typeName(film.typeOfFilm), film.yearReleased);
  if (!film.ageRating.empty()) kind += " • " + film.ageRating;
  if (film.lengthMinutes > 0) kind += tb::format(" • {} min", film.lengthMinutes);
  return kind;
}

// --- Scores ---

Tiles scores(const Game& game, const Film& film, std::optional<std::size_t> place) {
  return {
      {{.label = "Imbd",
        .value = tb::format("{:.1f}", film.imbdRating),
        .detail = plainCount(game.locale, shownRatings(film)) + " " + plural(shownRatings(film), "rating")},
       scoreTile("Metascore", film.imbdMetascore,
                 plainCount(game.locale, film.numMetascoreRatings) + " " +
                     plural(film.numMetascoreRatings, "critic")),
       {.label = "Top 250", .value = place ? tb::format("#{}", *place) : "Unranked"}}};
}

Meter popularity(const Film& film) {
  const double change = film.currentPopularity - film.lastWeekPopularity;
  std::string trend = "as last week";
  if (std::abs(change) >= 0.05) {
    trend = tb::format("{} {:.1f} since last week", change > 0 ? "up" : "down", std::abs(change));
  }
  return {.label = "Popularity",
          .value = film.currentPopularity,
          .maximum = 100,
          .text = tb::format("{:.1f}, {}", film.currentPopularity, trend)};
}

// --- The player's rating ---

std::string starsOf(std::int64_t stars) {
  std::string text;
  for (std::int64_t star = 0; star < stars; ++star) text += "★";
  return text;
}

void askForRating(Stage& stage, const std::string& title, std::int64_t filmId) {
  std::vector<Button> answers;
  for (std::int64_t stars = maxStars; stars >= 1; --stars) {
    answers.push_back({.label = tb::format("{} {}", stars, starsOf(stars)),
                       .press = [filmId, stars](Stage& asked) { rateFilm(asked.game(), filmId, stars); }});
  }
  answers.push_back({.label = "Cancel", .weight = Button::Weight::quiet});
  stage.ask(Notice{.title = title, .message = "\nHow would you rate it out of 10?"}, std::move(answers));
}

Node playersRating(const Film& film) {
  if (film.myRating > 0) {
    return Stars{.label = "Your rating", .value = film.myRating, .outOf = static_cast<int>(maxStars)};
  }
  return Button{.label = "Rate this title",
                .press = [title = titleWithSeason(film), id = film.filmId](Stage& stage) {
                  askForRating(stage, title, id);
                }};
}

// --- The audience ---

Chart starChart(const StarHistogram& histogram) {
  Chart chart{.kind = Chart::Kind::histogram, .title = "How viewers rate it"};
  const auto ratings =
      static_cast<double>(std::accumulate(histogram.begin(), histogram.end(), std::int64_t{0}));
  const auto percent = [](double share) { return tb::format("{:.1f}%", share); };
  double highest = 0;
  for (std::size_t star = 0; star < histogram.size(); ++star) {
    const double share = static_cast<double>(histogram[star]) / ratings * 100;
    chart.points.push_back({.label = tb::format("{}★", star + 1), .value = share, .text = percent(share)});
    highest = std::max(highest, share);
  }
  chart.scale = roundScale(0, highest, [](double mark) { return tb::format("{:.0f}%", mark); });
  const auto most = std::ranges::max_element(histogram);
  chart.summary = tb::format("The most common rating is {} of 10.", most - histogram.begin() + 1);
  return chart;
}

Card userReview(const Reviews& review) {
  return {.title = review.snippet,
          .nodes = {Stars{.label = review.username,
                          .value = static_cast<double>(review.rating),
                          .outOf = static_cast<int>(maxStars)},
                    Text{.text = review.review}}};
}

// --- Cast, crew and links ---

Section storyline(const Film& film) {
  Section section{
      .heading = "STORYLINE",
      .nodes = {Text{.text = film.movieDescription}, Row{.label = "Director", .value = film.directorName},
                Row{.label = "Writer", .value = film.writerName},
                Row{.label = "Genre", .value = joinedWithAnd(film.genres)}}};
  if (film.didAct == 1) {
    section.nodes.push_back(
        Row{.label = "Your part", .value = film.characterName, .detail = film.role, .tone = Tone::accent});
  }
  section.nodes.push_back(Row{.label = "Cast", .detail = joinedWithAnd(castList(film))});
  if (!film.debutNetwork.empty()) {
    section.nodes.push_back(Row{.label = "Network",
                                .value = film.debutNetwork,
                                .picture = {{.kind = PictureKind::logo, .name = film.debutImageString}}});
  }
  return section;
}

Section critics(const Film& film) {
  Section section{.heading = "CRITICS"};
  for (const std::string& review : film.featuredReviews) {
    if (!review.empty()) section.nodes.push_back(Text{.text = review, .style = Text::Style::quotation});
  }
  section.nodes.push_back(
      Row{.label = "RottenBanana",
          .detail = "What critics and audiences make of it",
          .press = [id = film.filmId](Stage& stage) { stage.open<RottenBananaDetailViewController>(id); }});
  return section;
}

Section more(const WorldState& world, const Film& film) {
  const bool forSeries = film.typeOfFilm == filmType::series;
  const auto quotes = std::ranges::count(world.saveAllQuotes, film.filmId, &Quote::filmId);
  return {
      .heading = "MORE",
      .nodes = {Row{.label = "Box office",
                    .press = [id = film.filmId](Stage& stage) { openBoxOfficeDetail(stage, id); }},
                Row{.label = "Top 250",
                    .press =
                        [forSeries](Stage& stage) {
                          const auto list = forSeries ? TopList::shows : TopList::movies;
                          stage.open<Top250MoviesViewController>(list);
                        }},
                Row{.label = "Quotes",
                    .value = std::to_string(quotes),
                    .press = [id = film.filmId](Stage& stage) { stage.open<QuotesViewController>(id); }}}};
}

}  // namespace

void ImbdFilmDetailViewController::load(Stage& stage) {
  Game& game = stage.game();
  const Film& film = game.world.saveAllFilmList[*find(game.world.saveAllFilmList, &Film::filmId, film_id_)];
  place_ = placeOf(topTitles(game.world), film_id_);
  histogram_ = starHistogram(film);
  reviews_ = drawUserReviews(game, film, histogram_);
  if (reviews_.empty()) return;
  std::vector<std::string> texts;
  for (const Reviews& review : reviews_) texts.push_back(review.review);
  summary_ = summarizeReviews(game, texts, film.title);
}

Section ImbdFilmDetailViewController::audience() const {
  Section section{.heading = "USER REVIEWS", .nodes = {starChart(histogram_)}};
  if (!summary_.empty()) section.nodes.push_back(Text{.text = summary_});
  for (const Reviews& review : reviews_) section.nodes.push_back(userReview(review));
  return section;
}

Page ImbdFilmDetailViewController::view(const Game& game) {
  const Film& film = game.world.saveAllFilmList[*find(game.world.saveAllFilmList, &Film::filmId, film_id_)];
  Page page{.title = titleWithSeason(film), .subtitle = kindOf(film), .nodes = {posterOf(game.world, film)}};
  if (film.numImbdRatings == 0) {
    page.nodes.push_back(caption("Nobody has seen it yet. The ratings come with the release."));
    page.nodes.push_back(storyline(film));
    return page;
  }
  page.nodes.append_range(std::vector<Node>{scores(game, film, place_), popularity(film), playersRating(film),
                                            storyline(film), audience(), critics(film),
                                            more(game.world, film)});
  return page;
}

void openTitlePage(Stage& stage, std::int64_t filmId) {
  const WorldState& world = stage.game().world;
  if (!find(world.saveAllFilmList, &Film::filmId, filmId)) return;
  stage.open<ImbdFilmDetailViewController>(filmId);
}

}  // namespace tb
