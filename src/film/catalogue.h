#pragma once

// The catalogue: titles that can be made, the titles of all time, and the stars. Constant tables, read from
// the banks at first use and never saved.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/random.h"

namespace tb {

// What is seen in a title, as it stands after "the": a thing and a place. Reviews speak of both.
struct Sights {
  std::string prop;   // "parcel"
  std::string place;  // "megacity"
};

// A project that can be cast.
struct Movie {
  std::string title;
  std::string shortSummary;
  std::int64_t type = 0;  // tb::filmType
  std::vector<std::string> genre;
  std::string longSummaryTemplate;  // with "{name}" where the character's name goes
  std::string imageString;          // poster
  Sights sights;
};

// An entry of a saga. The next one has the same id and a higher movieNumber.
struct MovieFranchise {
  std::int64_t id = 0;
  std::int64_t movieNumber = 0;  // from 1
  std::string title;
  std::string shortSummary;
  std::int64_t type = 0;  // tb::filmType
  std::vector<std::string> genre;
  std::string longSummaryTemplate;
  std::string imageString;
  Sights sights;
};

// realOrGame of the two tables of all time.
namespace recordKind {
inline constexpr std::int64_t builtIn = 0;
inline constexpr std::int64_t ofThePlayer = 1;
}  // namespace recordKind

struct MovieRecord {
  std::string title;
  std::int64_t year = 0;
  double worldwide = 0;  // dollars
  double domestic = 0;   // a part of it
  std::int64_t realOrGame = recordKind::builtIn;
};

struct TVRecord {
  std::int64_t rank = 0;  // from 1
  std::string title;
  double imdbRating = 0;
  std::string imdbId;
  std::int64_t realOrGame = recordKind::builtIn;
};

// A title that everybody has seen but the player: to be reviewed, and to fill a chart.
struct CatalogueTitle {
  std::string title;
  std::int64_t year = 0;
  std::string genre;
  std::string imageString;  // poster
  std::string description;
};

// A star of the industry.
struct Bankable {
  std::int64_t id = 0;              // from 1
  std::int64_t rating = 0;          // drawn, 10 to 100
  std::int64_t lastWeekRating = 0;  // drawn, 50 to 100
  std::string name;
  double totalGross = 0;  // dollars
  std::int64_t totalMovies = 0;
  double average = 0;             // dollars a film
  std::int64_t relationship = 0;  // temper, 0 to 100
  std::int64_t roles = 0;         // leads among the films
};

// What listings and the agent draw from: 145 rows of every type.
[[nodiscard]] std::span<const Movie> movies();

// 23 projects that offer a share in place of a fee.
[[nodiscard]] std::span<const Movie> royaltyMovies();

// 36 projects that look for an investor.
[[nodiscard]] std::span<const Movie> investmentMovies();

// 22 entries of sagas, each saga in order.
[[nodiscard]] std::span<const MovieFranchise> movieFranchises();

// What is seen in a title of those four tables. A title that stands in none has what all titles have.
[[nodiscard]] const Sights& sightsOf(std::string_view title);

// 250 films by worldwide gross and 250 series by rating, best first.
[[nodiscard]] std::span<const MovieRecord> movieRecords();
[[nodiscard]] std::span<const TVRecord> tvRecords();

// 210 titles.
[[nodiscard]] std::span<const CatalogueTitle> rateMovieCatalogue();

// The 100 stars of the industry, highest grossing first: their names, and all about them with ratings drawn
// anew.
[[nodiscard]] std::span<const std::string> starNames();
[[nodiscard]] std::vector<Bankable> bankables(RandomSource& random);

}  // namespace tb
