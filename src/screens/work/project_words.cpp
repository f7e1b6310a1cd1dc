#include "screens/work/project_words.h"

#include <array>
#include <format>

#include "core/number_style.h"

namespace tb {

namespace {

// By filmType.
constexpr std::array typeNames = {"Feature Film", "TV-Series", "Commercial", "Student Film", "Short Film"};

std::string weeks(std::int64_t count) { return std::format("{} week{}", count, count == 1 ? "" : "s"); }

std::string invitedWords(const WorldState& world, const Audition& project) {
  if (project.weekAudition < world.weekNumberForTracking) return "Not selected";
  return "Audition " + whenIs(world, project.weekAudition);
}

std::string wrappedWords(const WorldState& world, const Audition& project) {
  return (isReleased(world, project) ? "Released " : "Release ") + whenIs(world, project.weekReleased);
}

template <class Titled>
std::string withSeason(const Titled& work) {
  if (work.typeOfFilm != filmType::series || work.seasonNumber < 2) return work.title;
  return std::format("{} Season {}", work.title, work.seasonNumber);
}

}  // namespace

std::string typeName(std::int64_t typeOfFilm) { return typeNames[static_cast<std::size_t>(typeOfFilm)]; }

std::string titleWithSeason(const Audition& project) { return withSeason(project); }
std::string titleWithSeason(const Film& film) { return withSeason(film); }

std::string guildWords(std::int64_t isUnion) { return isUnion == 1 ? "Union" : "Non-union"; }

std::string whenIs(const WorldState& world, std::int64_t week) {
  const std::int64_t ahead = week - world.weekNumberForTracking;
  if (ahead == 0) return "this week";
  return ahead > 0 ? "in " + weeks(ahead) : weeks(-ahead) + " ago";
}

std::string progressWords(const WorldState& world, const Audition& project) {
  switch (project.funnelStage) {
    case stage::submitted:
      return "Waiting to hear";
    case stage::invited:
      return invitedWords(world, project);
    case stage::booked:
      return "Wraps " + whenIs(world, project.weekToWork);
    case stage::wrapped:
      return wrappedWords(world, project);
    default:
      return "Never heard back";
  }
}

bool isReleased(const WorldState& world, const Audition& project) {
  return project.funnelStage == stage::wrapped && project.weekReleased < world.weekNumberForTracking;
}

view::Picture posterOf(const std::string& imageString) {
  return {.kind = view::PictureKind::poster, .name = imageString};
}

std::string payWords(const Locale& locale, double payment, double buyout, double residual) {
  std::string words = payment > 0 ? currency(locale, payment, 0) : "Unpaid";
  if (buyout > 0) words += " • " + currency(locale, buyout, 0) + " buyout";
  if (residual > 0) words += std::format(" • {:.1f}% residual", residual * 100);
  return words;
}

}  // namespace tb
