#include "film/cast_list.h"

#include <algorithm>
#include <cstdint>

#include "core/random.h"
#include "core/records/career.h"
#include "film/catalogue.h"

namespace tb {

namespace {

constexpr std::size_t colleagues = 4;

// A generator seeded by the film's id, so that the same film always has the same cast. (SplitMix64.)
class FilmSeededRandom : public RandomSource {
 public:
  explicit FilmSeededRandom(std::int64_t filmId) : state_(static_cast<std::uint64_t>(filmId)) {}

  std::uint64_t next() override {
    state_ += 0x9E3779B97F4A7C15;
    std::uint64_t word = state_;
    word = (word ^ (word >> 30)) * 0xBF58476D1CE4E5B9;
    word = (word ^ (word >> 27)) * 0x94D049BB133111EB;
    return word ^ (word >> 31);
  }

 private:
  std::uint64_t state_;
};

}  // namespace

std::vector<std::string> castList(const Film& film) {
  std::vector<std::string> cast = film.didAct == 1 ? film.cast : std::vector<std::string>();
  if (film.typeOfFilm == filmType::commercial) return cast;
  FilmSeededRandom words(film.filmId);
  const auto position = film.isPrincipal == rolePart::background ? cast.begin() : cast.end();
  std::vector<std::string> others;
  while (others.size() < colleagues) {
    const std::string& star = RandomElement(words, starNames());
    if (!std::ranges::contains(others, star)) others.push_back(star);
  }
  cast.insert(position, others.begin(), others.end());
  return cast;
}

}  // namespace tb
