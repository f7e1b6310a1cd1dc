#include "film/catalogue.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <string_view>

#include "banks/all_time_banks.h"
#include "banks/bankable_banks.h"
#include "banks/rate_movies_banks.h"
#include "banks/titles_banks.h"
#include "core/stop.h"

namespace tb {

namespace {

constexpr std::int64_t minStarRating = 10;
constexpr std::int64_t minStarRatingLastWeek = 50;
constexpr std::int64_t maxStarRating = 100;

// Reads the columns of a row in order.
class Columns {
 public:
  explicit Columns(std::string_view row) : rest_(row) {}

  std::string text() { return std::string(take(" | ")); }

  std::int64_t number() { return numberIn(take(" | ")); }

  // A number with one decimal, such as 9.6.
  double decimal() {
    std::string digits = text();
    std::erase(digits, '.');
    return static_cast<double>(numberIn(digits)) / 10;
  }

  std::vector<std::string> names() {
    Columns listed(take(" | "));
    std::vector<std::string> found;
    while (!listed.rest_.empty()) found.emplace_back(listed.take(", "));
    return found;
  }

 private:
  static std::int64_t numberIn(std::string_view column) {
    std::int64_t value = 0;
    const auto read = std::from_chars(column.data(), column.data() + column.size(), value);
    if (read.ec != std::errc{}) stopTheGame("a column of a table is no number");
    return value;
  }

  std::string_view take(std::string_view separator) {
    const std::size_t end = std::min(rest_.find(separator), rest_.size());
    const std::string_view column = rest_.substr(0, end);
    rest_.remove_prefix(std::min(end + separator.size(), rest_.size()));
    return column;
  }

  std::string_view rest_;
};

// The bank parsed as a table; built once.
template <class Row>
std::vector<Row> table(Bank bank, Row (*rowOf)(Columns&)) {
  std::vector<Row> rows;
  for (const std::string& row : rowsOf(bank)) {
    Columns columns(row);
    rows.push_back(rowOf(columns));
  }
  return rows;
}

// Columns are read in the order of the initializers.
Movie movieOf(Columns& columns) {
  return {.title = columns.text(),
          .shortSummary = columns.text(),
          .type = columns.number(),
          .genre = columns.names(),
          .longSummaryTemplate = columns.text(),
          .imageString = columns.text(),
          .sights = {.prop = columns.text(), .place = columns.text()}};
}

MovieFranchise franchiseOf(Columns& columns) {
  return {.id = columns.number(),
          .movieNumber = columns.number(),
          .title = columns.text(),
          .shortSummary = columns.text(),
          .type = columns.number(),
          .genre = columns.names(),
          .longSummaryTemplate = columns.text(),
          .imageString = columns.text(),
          .sights = {.prop = columns.text(), .place = columns.text()}};
}

MovieRecord movieRecordOf(Columns& columns) {
  return {.title = columns.text(),
          .year = columns.number(),
          .worldwide = static_cast<double>(columns.number()),
          .domestic = static_cast<double>(columns.number())};
}

TVRecord tvRecordOf(Columns& columns) {
  return {.title = columns.text(), .imdbRating = columns.decimal(), .imdbId = columns.text()};
}

CatalogueTitle catalogueTitleOf(Columns& columns) {
  return {.title = columns.text(),
          .year = columns.number(),
          .genre = columns.text(),
          .imageString = columns.text(),
          .description = columns.text()};
}

Bankable bankableOf(Columns& columns) {
  Bankable star{.name = columns.text(),
                .totalGross = static_cast<double>(columns.number()),
                .totalMovies = columns.number(),
                .relationship = columns.number(),
                .roles = columns.number()};
  star.average = star.totalGross / static_cast<double>(star.totalMovies);
  return star;
}

std::vector<TVRecord> rankedSeries() {
  std::vector<TVRecord> rows = table(bank::tvRecords, tvRecordOf);
  for (std::size_t index = 0; index < rows.size(); ++index)
    rows[index].rank = static_cast<std::int64_t>(index + 1);
  return rows;
}

std::vector<Bankable> numberedStars() {
  std::vector<Bankable> rows = table(bank::bankables, bankableOf);
  for (std::size_t index = 0; index < rows.size(); ++index)
    rows[index].id = static_cast<std::int64_t>(index + 1);
  return rows;
}

}  // namespace

std::span<const Movie> movies() {
  static const std::vector<Movie> rows = table(bank::movies, movieOf);
  return rows;
}

std::span<const Movie> royaltyMovies() {
  static const std::vector<Movie> rows = table(bank::royaltyMovies, movieOf);
  return rows;
}

std::span<const Movie> investmentMovies() {
  static const std::vector<Movie> rows = table(bank::investmentMovies, movieOf);
  return rows;
}

std::span<const MovieFranchise> movieFranchises() {
  static const std::vector<MovieFranchise> rows = table(bank::movieFranchises, franchiseOf);
  return rows;
}

const ReviewNouns& nounsOf(std::string_view title) {
  static const std::map<std::string_view, const ReviewNouns*> known = [] {
    std::map<std::string_view, const ReviewNouns*> all;
    for (const auto table : {movies(), royaltyMovies(), investmentMovies()}) {
      for (const Movie& movie : table) all[movie.title] = &movie.sights;
    }
    for (const MovieFranchise& entry : movieFranchises()) all[entry.title] = &entry.sights;
    return all;
  }();
  static const ReviewNouns ofAnyTitle = {.prop = "letter", .place = "hallway"};
  const auto found = known.find(title);
  return found == known.end() ? ofAnyTitle : *found->second;
}

std::span<const MovieRecord> movieRecords() {
  static const std::vector<MovieRecord> rows = table(bank::movieRecords, movieRecordOf);
  return rows;
}

std::span<const TVRecord> tvRecords() {
  static const std::vector<TVRecord> rows = rankedSeries();
  return rows;
}

std::span<const CatalogueTitle> rateMovieCatalogue() {
  static const std::vector<CatalogueTitle> rows = table(bank::rateMovieCatalogue, catalogueTitleOf);
  return rows;
}

std::span<const Bankable> leadingStars() {
  static const std::vector<Bankable> stars = numberedStars();
  return stars;
}

std::span<const std::string> starNames() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> all;
    for (const Bankable& star : leadingStars()) all.push_back(star.name);
    return all;
  }();
  return names;
}

std::vector<Bankable> bankables(RandomSource& random) {
  std::vector<Bankable> stars(leadingStars().begin(), leadingStars().end());
  for (Bankable& star : stars) {
    star.rating = RandomBetween(random, minStarRating, maxStarRating);
    star.lastWeekRating = RandomBetween(random, minStarRatingLastWeek, maxStarRating);
  }
  return stars;
}

}  // namespace tb
