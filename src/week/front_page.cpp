#include "week/front_page.h"

#include <algorithm>

#include "core/find.h"
#include "core/format.h"
#include "core/number_style.h"
#include "film/box_office.h"
#include "film/new_releases.h"
#include "week/news_desk.h"

namespace tb {

namespace {

constexpr std::ptrdiff_t minToFold = 2;

Story storyOf(const WorldState& world, const News& about, std::string text) {
  Story story{.about = about, .text = std::move(text)};
  const auto& projects = world.saveAllAuditionList;
  const auto project = find(projects, &Audition::filmId, about.filmId);
  if (project) story.project.push_back(projects[*project]);
  return story;
}

// --- Released titles ---

std::string openingWords(const Game& game, const Film& film) {
  if (film.typeOfFilm != filmType::feature) return film.title + " had its first screening.";
  const auto gross = grossOf(game.world, film.filmId);
  if (!gross) return film.title + " is in theaters.";
  return tb::format("{} opened in theaters with {}.", film.title, shortMoney(game.locale, *gross));
}

std::string premiereWords(const WorldState& world, const Film& film) {
  const std::string season = film.seasonNumber >= 2 ? tb::format(" Season {}", film.seasonNumber) : "";
  const auto ratings = find(world.saveAllRatings, &Ratings::filmId, film.filmId);
  if (!ratings) return tb::format("{}{} premiered.", film.title, season);
  const auto viewers = static_cast<std::int64_t>(world.saveAllRatings[*ratings].premiereViews.front());
  return tb::format("{}{} premiered to {} viewers.", film.title, season, shortCount(viewers));
}

Story storyOfRelease(const Game& game, const Film& film) {
  const bool series = film.typeOfFilm == filmType::series;
  return storyOf(game.world, {series ? NewsKind::premiere : NewsKind::opening, film.filmId},
                 series ? premiereWords(game.world, film) : openingWords(game, film));
}

// --- Lines of the feed ---

double sessionPay(const WorldState& world, std::int64_t filmId) {
  double paid = 0;
  for (std::size_t index = world.saveAllWeeklyEarnings.size(); index-- > 0;) {
    const WeeklyEarnings& line = world.saveAllWeeklyEarnings[index];
    if (line.weekNumberForTracking < world.weekNumberForTracking) break;
    if (line.filmId == filmId) paid += line.sessionEarned + line.buyoutEarned;
  }
  return paid;
}

Story storyOfLine(const WorldState& world, std::size_t line) {
  News about = world.weekFeedNews[line];
  if (about.kind == NewsKind::wrap) about.amount = sessionPay(world, about.filmId);
  return storyOf(world, about, world.WeekFeed[line]);
}

std::vector<Story> storiesOf(const Game& game) {
  std::vector<Story> stories;
  for (const std::size_t film : newReleases(game.world)) {
    stories.push_back(storyOfRelease(game, game.world.saveAllFilmList[film]));
  }
  for (std::size_t line = 0; line < game.world.WeekFeed.size(); ++line) {
    stories.push_back(storyOfLine(game.world, line));
  }
  return stories;
}

// --- Page ---

bool folds(const Story& story) { return newsRule(story.about.kind).folds; }

std::string countedWords(const std::vector<Story>& folded, NewsKind kind, std::string_view what) {
  const auto isOfKind = [&](const Story& story) { return story.about.kind == kind; };
  const auto count = std::ranges::count_if(folded, isOfKind);
  if (count == 0) return "";
  const auto first = std::ranges::find_if(folded, isOfKind);
  if (count > 1 || first->project.empty()) return tb::format("{} {}", count, what);
  const Audition& project = first->project.front();
  const bool isCommercial = project.typeOfFilm == filmType::commercial;
  return tb::format("{} {}", isCommercial ? "a commercial" : project.title, what);
}

}  // namespace

FrontPage layOutFrontPage(const Game& game) {
  std::vector<Story> stories = storiesOf(game);
  std::vector<News> week;
  for (const Story& story : stories) week.push_back(story.about);

  FrontPage page;
  const std::size_t headline = headlineOf(game.world, week);
  if (headline < stories.size()) {
    page.isMoment = isMoment(game.world, week[headline], week);
    page.headline.push_back(std::move(stories[headline]));
    stories.erase(stories.begin() + static_cast<std::ptrdiff_t>(headline));
  }
  const bool isFolded = std::ranges::count_if(stories, folds) >= minToFold;
  for (Story& story : stories) {
    (isFolded && folds(story) ? page.folded : page.rows).push_back(std::move(story));
  }
  return page;
}

std::vector<Story> takeLateStories(Game& game) {
  WorldState& world = game.world;
  std::vector<Story> stories;
  for (std::size_t line = 0; line < world.WeekFeed.size(); ++line)
    stories.push_back(storyOfLine(world, line));
  world.WeekFeed.clear();
  world.weekFeedNews.clear();
  return stories;
}

std::string foldedWords(const std::vector<Story>& folded) {
  const std::string refused = countedWords(folded, NewsKind::refusal, "said no");
  const std::string silent = countedWords(folded, NewsKind::silence, "never wrote back");
  std::string words = refused.empty() || silent.empty() ? refused + silent : refused + ", " + silent;
  if (words.starts_with("a commercial")) words.front() = 'A';
  return words;
}

}  // namespace tb
