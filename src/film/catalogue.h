#pragma once

// The catalogue: titles that can be cast, the most successful titles, and the stars. Constant tables, parsed
// from the banks at first use and never saved.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/random.h"

namespace tb {

// Two nouns for reviews of a title, without the article: a prop and a place.
struct ReviewNouns {
  std::string prop;   // "parcel"
  std::string place;  // "megacity"
};

// A project that can be cast.
struct Movie {
  std::string title;
  std::string shortSummary;
  std::int64_t type = 0;  // tb::filmType
  std::vector<std::string> genre;
  std::string longSummaryTemplate;  // "{name}" is the character's name
  std::string imageString;          // poster
  ReviewNouns sights;
};

// A film of a saga. The next one has the same id and a higher movieNumber.
struct MovieFranchise {
  std::int64_t id = 0;
  std::int64_t movieNumber = 0;  // 1 and up
  std::string title;
  std::string shortSummary;
  std::int64_t type = 0;  // tb::filmType
  std::vector<std::string> genre;
  std::string longSummaryTemplate;
  std::string imageString;
  ReviewNouns sights;
};

// Values of realOrGame in the two tables of records.
namespace recordKind {
inline constexpr std::int64_t builtIn = 0;
inline constexpr std::int64_t ofThePlayer = 1;
}  // namespace recordKind

struct MovieRecord {
  std::string title;
  std::int64_t year = 0;
  double worldwide = 0;  // dollars
  double domestic = 0;   // dollars, part of worldwide
  std::int64_t realOrGame = recordKind::builtIn;
};

struct TVRecord {
  std::int64_t rank = 0;  // 1 and up
  std::string title;
  double imdbRating = 0;
  std::string imdbId;
  std::int64_t realOrGame = recordKind::builtIn;
};

// A title by others, for the player to review and for the charts.
struct CatalogueTitle {
  std::string title;
  std::int64_t year = 0;
  std::string genre;
  std::string imageString;  // poster
  std::string description;
};

// A star of the industry.
struct Bankable {
  std::int64_t id = 0;              // 1 and up
  std::int64_t rating = 0;          // 10 to 100; drawn by bankables()
  std::int64_t lastWeekRating = 0;  // 50 to 100; likewise
  std::string name;
  double totalGross = 0;  // dollars
  std::int64_t totalMovies = 0;
  double average = 0;             // dollars per film
  std::int64_t relationship = 0;  // temper, 0 to 100
  std::int64_t roles = 0;         // number of leads
};

// The 145 titles of all types for listings and the agent.
[[nodiscard]] std::span<const Movie> movies();

// 23 projects that offer a stake instead of a fee.
[[nodiscard]] std::span<const Movie> royaltyMovies();

// 36 projects that seek an investor.
[[nodiscard]] std::span<const Movie> investmentMovies();

// 22 films of sagas, each saga in order.
[[nodiscard]] std::span<const MovieFranchise> movieFranchises();

// The nouns of a title from these four tables; general nouns for any other title.
[[nodiscard]] const ReviewNouns& nounsOf(std::string_view title);

// 250 films by worldwide gross and 250 series by rating, best first.
[[nodiscard]] std::span<const MovieRecord> movieRecords();
[[nodiscard]] std::span<const TVRecord> tvRecords();

// 210 titles.
[[nodiscard]] std::span<const CatalogueTitle> rateMovieCatalogue();

// The 100 stars by descending gross: their data, their names, and their data with newly drawn ratings.
[[nodiscard]] std::span<const Bankable> leadingStars();
[[nodiscard]] std::span<const std::string> starNames();
[[nodiscard]] std::vector<Bankable> bankables(RandomSource& random);

}  // namespace tb
