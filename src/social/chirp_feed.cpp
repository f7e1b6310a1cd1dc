#include "social/chirp_feed.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "banks/chirp_banks.h"
#include "banks/critics_banks.h"
#include "banks/draw.h"
#include "banks/names_banks.h"
#include "core/chirps.h"
#include "core/descending.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "film/catalogue.h"
#include "film/film_record.h"
#include "film/metflix_chart.h"
#include "film/networks.h"

namespace tb {

namespace {

constexpr double oldestPost = 172'800;  // seconds
constexpr std::int64_t lowestId = 9'999;
constexpr std::int64_t ids = 1'231'244;

// Faces that the pictures' names number from 1.
constexpr std::int64_t menFaces = 45;
constexpr std::int64_t womenFaces = 121;

// The roll of a stranger's post, RandomRange(11).
constexpr std::int64_t rolls = 11;
constexpr std::int64_t rudeToPerformer = 3;
constexpr std::int64_t rudeToStar = 5;
constexpr std::int64_t lastRealName = 5;  // above it, the name is an invented handle

// A title's reception, by its quality of 0 to 100.
constexpr double lovedFrom = 70;
constexpr double pannedBelow = 40;

constexpr std::int64_t stayingWeeks = 10;  // on the chart
constexpr std::int64_t leastReplies = 3;
constexpr std::int64_t mostReplies = 8;

// --- Who posts ---

Chirp drawPost(Game& game, std::int64_t typeOfAccount) {
  return {.id = RandomRange(game.random, ids) + lowestId,
          .artistId = notThePlayer,
          .weekNumberForTracking = game.world.weekNumberForTracking,
          .yearNumber = game.world.yearNumber,
          .news = notThePlayer,
          .typeOfAccount = typeOfAccount,
          .timestamp = game.clock()};
}

// A stranger with a face and a first name.
Chirp drawStranger(Game& game) {
  Chirp post = drawPost(game, accountType::fan);
  const bool isWoman = RandomRange(game.random, 2) == 1;
  const std::int64_t face = RandomRange(game.random, isWoman ? womenFaces : menFaces) + 1;
  post.imageString = tb::format("{} ({}).png", isWoman ? "woman" : "man", face);
  post.chirpName = drawRow(game.random, isWoman ? bank::femaleFirstNames : bank::maleFirstNames);
  return post;
}

std::string drawHandle(RandomSource& random) {
  const std::string& first = drawRow(random, bank::chirpHandleFirstParts);
  return first + drawRow(random, bank::chirpHandleSecondParts);
}

Chirp drawPaper(Game& game) {
  Chirp post = drawPost(game, accountType::industry);
  post.chirpName = drawRow(game.random, bank::reviewerCompanyBank);
  post.imageString = post.chirpName;
  return post;
}

Chirp metflixPost(Game& game) {
  Chirp post = drawPost(game, accountType::industry);
  post.chirpName = networks[0];
  post.imageString = networkLogos[0];
  return post;
}

// Draws an element and removes it.
template <class T>
T takeAny(RandomSource& random, std::vector<T>& from) {
  const auto at = static_cast<std::ptrdiff_t>(RandomRange(random, std::ssize(from)));
  T taken = std::move(from[static_cast<std::size_t>(at)]);
  from.erase(from.begin() + at);
  return taken;
}

void moveBack(RandomSource& random, Chirp& post) {
  post.timestamp.seconds -= RandomUnit(random, 0, oldestPost);
}

// --- Strangers ---

const std::string& drawStar(RandomSource& random) { return RandomElement(random, starNames()); }

bool isKnown(const WorldState& world) {
  return std::ranges::contains(world.saveAllFilmList, 1, &Film::didAct);
}

std::string strangersWords(Game& game, std::int64_t roll) {
  const WorldState& world = game.world;
  if (roll == rudeToPerformer || roll == rudeToStar) {
    // Nobody is rude about a performer that nobody has seen.
    const bool isPerformer = roll == rudeToPerformer && isKnown(world);
    const std::string name = isPerformer ? world.myName : drawStar(game.random);
    return fill(drawFreshRow(game, bank::rudeLines), {{"name", name}});
  }
  const std::string_view row = drawFreshRow(game, bank::fanPosts);
  if (!row.contains("{star}")) return fill(row, {{"name", world.myName}});
  return fill(row, {{"star", drawStar(game.random)}});
}

Chirp fanPost(Game& game) {
  Chirp post = drawStranger(game);
  const std::int64_t roll = RandomRange(game.random, rolls);
  if (roll > lastRealName) post.chirpName = drawHandle(game.random);
  post.message = strangersWords(game, roll);
  drawCrowdReach(game.random, post);
  if (roll % 2 == 0) moveBack(game.random, post);
  return post;
}

// --- The performer's titles ---

Bank talkAbout(const Film& film) {
  const double quality = qualityOf(film);
  if (quality >= lovedFrom) return bank::workLoved;
  return quality > 0 && quality < pannedBelow ? bank::workPanned : bank::workArgued;
}

// Indexes of released films and series that people still talk about.
std::vector<std::size_t> talkedAbout(const WorldState& world) {
  std::vector<std::size_t> titles;
  for (std::size_t index = 0; index < world.saveAllFilmList.size(); ++index) {
    const Film& film = world.saveAllFilmList[index];
    const bool isShown = film.typeOfFilm != filmType::commercial && isOut(world, film);
    if (isShown && film.currentPopularity > 0) titles.push_back(index);
  }
  return titles;
}

Chirp workPost(Game& game, const Film& film) {
  Chirp post = drawStranger(game);
  post.filmId = film.filmId;
  post.message = fill(drawFreshRow(game, talkAbout(film), subjectOf(film)),
                      {{"title", film.title}, {"name", game.world.myName}});
  drawCrowdReach(game.random, post);
  moveBack(game.random, post);
  return post;
}

// Adds up to `count` posts about different titles.
void addWorkPosts(Game& game, std::int64_t count, std::vector<Chirp>& feed) {
  std::vector<std::size_t> titles = talkedAbout(game.world);
  for (; count > 0 && !titles.empty(); --count) {
    feed.push_back(workPost(game, game.world.saveAllFilmList[takeAny(game.random, titles)]));
  }
}

// --- Gossip ---

// Draws another star than `star`.
const std::string& drawOtherStar(RandomSource& random, const std::string& star) {
  const auto stars = starNames();
  const auto drawn = static_cast<std::size_t>(RandomRange(random, std::ssize(stars)));
  return stars[drawn] == star ? stars[(drawn + 1) % stars.size()] : stars[drawn];
}

std::string rumor(Game& game) {
  const std::string& star = drawStar(game.random);
  const std::string& other = drawOtherStar(game.random, star);
  return fill(drawFreshRow(game, bank::gossip),
              {{"star", star}, {"other", other}, {"name", game.world.myName}});
}

Chirp gossipPost(Game& game) {
  std::string message = rumor(game);
  const bool hasSource = RandomRange(game.random, 7) + 4 >= 6;
  Chirp post = hasSource ? drawPaper(game) : drawStranger(game);
  if (hasSource) message += " " + std::string(drawFreshRow(game, bank::gossipAttribution));
  post.message = std::move(message);
  drawCrowdReach(game.random, post);
  moveBack(game.random, post);
  return post;
}

// --- The chart ---

Chirp chartPost(Game& game, Bank bank, const TopTen& entry) {
  Chirp post = metflixPost(game);
  post.message =
      fill(drawFreshRow(game, bank), {{"title", entry.title},
                                      {"place", std::to_string(entry.rankThisWeek)},
                                      {"weeks", std::to_string(entry.weeksOnChart)},
                                      {"views", plainCount(game.locale, viewsAt(entry.currentPopularity))}});
  if (!isInvented(entry)) post.filmId = entry.filmId;
  drawCrowdReach(game.random, post);
  moveBack(game.random, post);
  return post;
}

Bank chartBank(const TopTen& entry) {
  if (entry.weeksOnChart >= stayingWeeks) return bank::chartStaying;
  return entry.weeksOnChart > 1 ? bank::chartMoving : bank::chartDebut;
}

// Every title of the performer's, and up to `others` invented ones.
void addChartPosts(Game& game, std::int64_t others, std::vector<Chirp>& feed) {
  std::vector<TopTen> invented;
  for (const TopTen& entry : game.world.saveAllTopTenList) {
    if (isInvented(entry)) {
      invented.push_back(entry);
    } else {
      feed.push_back(chartPost(game, chartBank(entry), entry));
    }
  }
  for (; others > 0 && !invented.empty(); --others) {
    const TopTen entry = takeAny(game.random, invented);
    feed.push_back(chartPost(game, chartBank(entry), entry));
  }
}

// One post about the most popular film of the performer's that is not on the chart.
void addOffChartPost(Game& game, std::vector<Chirp>& feed) {
  const WorldState& world = game.world;
  const Film* best = nullptr;
  for (const std::size_t index : talkedAbout(world)) {
    const Film& film = world.saveAllFilmList[index];
    const bool isCharted = std::ranges::contains(world.saveAllTopTenList, film.filmId, &TopTen::filmId);
    if (film.typeOfFilm != filmType::feature || isCharted) continue;
    if (best == nullptr || film.currentPopularity > best->currentPopularity) best = &film;
  }
  if (best == nullptr) return;
  const TopTen entry = {
      .filmId = best->filmId, .title = best->title, .currentPopularity = best->currentPopularity};
  feed.push_back(chartPost(game, bank::chartNotCharted, entry));
}

// --- Quotes ---

void addQuotePost(Game& game, std::vector<Chirp>& feed) {
  const List<Quote>& quotes = game.world.saveAllQuotes;
  if (quotes.empty()) return;
  const Quote& quote = quotes[static_cast<std::size_t>(RandomRange(game.random, std::ssize(quotes)))];
  Chirp post = drawPaper(game);
  post.filmId = quote.filmId;
  post.message = fill(drawFreshRow(game, bank::quotePosts),
                      {{"quote", quote.quote}, {"performer", game.world.myName}, {"title", quote.filmName}});
  drawCrowdReach(game.random, post);
  moveBack(game.random, post);
  feed.push_back(std::move(post));
}

}  // namespace

std::vector<Chirp> buildFeed(Game& game) {
  const std::int64_t count = RandomRange(game.random, 4) + 2;
  std::vector<Chirp> feed;
  for (std::int64_t post = 0; post < count; ++post) feed.push_back(fanPost(game));
  addWorkPosts(game, count, feed);
  for (std::int64_t post = 0; post < count; ++post) feed.push_back(gossipPost(game));
  addChartPosts(game, 2, feed);
  addOffChartPost(game, feed);
  addQuotePost(game, feed);
  feed.append_range(game.world.saveAllChirpList);
  sortDescending(feed, [](const Chirp& post) { return post.timestamp.seconds; });
  return feed;
}

std::vector<Chirp> drawReplies(Game& game) {
  const std::int64_t count = RandomBetween(game.random, leastReplies, mostReplies);
  std::vector<Chirp> replies;
  for (std::int64_t reply = 0; reply < count; ++reply) {
    Chirp post = drawStranger(game);
    if (RandomRange(game.random, 2) == 0) post.chirpName = drawHandle(game.random);
    post.message = drawFreshRow(game, bank::replies);
    drawCrowdReach(game.random, post);
    replies.push_back(std::move(post));
  }
  return replies;
}

}  // namespace tb
