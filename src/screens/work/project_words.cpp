#include "screens/work/project_words.h"

#include <array>
#include <vector>

#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"

namespace tb {

namespace {

// By filmType.
constexpr std::array typeNames = {"Feature Film", "TV-Series", "Commercial", "Student Film", "Short Film"};

std::string invitedWords(const WorldState& world, const Audition& project) {
  if (isOver(world, project)) return "Not selected";
  return "Audition " + whenIs(world, project.weekAudition);
}

std::string wrappedWords(const WorldState& world, const Audition& project) {
  return (isReleased(world, project) ? "Released " : "Release ") + whenIs(world, project.weekReleased);
}

template <class Titled>
std::string withSeason(const Titled& work) {
  if (work.typeOfFilm != filmType::series || work.seasonNumber < 2) return work.title;
  return tb::format("{} Season {}", work.title, work.seasonNumber);
}

}  // namespace

std::string typeName(std::int64_t typeOfFilm) { return typeNames[static_cast<std::size_t>(typeOfFilm)]; }

std::string titleWithSeason(const Audition& project) { return withSeason(project); }
std::string titleWithSeason(const Film& film) { return withSeason(film); }

std::string guildWords(std::int64_t isUnion) { return isUnion == 1 ? "Union" : "Non-union"; }

std::string whenIs(const WorldState& world, std::int64_t week) {
  const std::int64_t ahead = week - world.weekNumberForTracking;
  if (ahead == 0) return "this week";
  return ahead > 0 ? "in " + counted(ahead, "week") : counted(-ahead, "week") + " ago";
}

std::string progressWords(const WorldState& world, const Audition& project) {
  switch (project.funnelStage) {
    case funnel::submitted:
      return "Waiting to hear";
    case funnel::invited:
      return invitedWords(world, project);
    case funnel::booked:
      return "Wraps " + whenIs(world, project.weekToWork);
    case funnel::wrapped:
      return wrappedWords(world, project);
    default:
      return "Never heard back";
  }
}

bool isReleased(const WorldState& world, const Audition& project) {
  return project.funnelStage == funnel::wrapped && project.weekReleased < world.weekNumberForTracking;
}

bool isOver(const WorldState& world, const Audition& project) {
  const bool wasLost =
      project.funnelStage == funnel::invited && project.weekAudition < world.weekNumberForTracking;
  return project.funnelStage == funnel::closed || wasLost;
}

view::Section roleSection(const Audition& project) {
  view::Section section{.heading = "YOUR ROLE",
                        .nodes = {view::Row{.label = project.characterName, .value = project.role},
                                  view::Text{.text = project.roleDescription}}};
  if (project.numberOfEpisodesActed > 0) {
    // The season's length is drawn when the performer submits.
    const std::string season =
        project.numberOfEpisodesTotal > 0 ? tb::format(" of {}", project.numberOfEpisodesTotal) : "";
    section.nodes.push_back(
        view::Row{.label = "Episodes", .value = tb::format("{}{}", project.numberOfEpisodesActed, season)});
  }
  return section;
}

std::string payWords(const Locale& locale, const Terms& terms) {
  std::vector<std::string> words;
  if (terms.fee > 0) words.push_back(wholeMoney(locale, terms.fee));
  if (terms.buyout > 0) words.push_back(wholeMoney(locale, terms.buyout) + " buyout");
  if (terms.royalty > 0) words.push_back(tb::format("{:.2f}% royalty", terms.royalty));
  if (words.empty()) words.emplace_back("Unpaid");
  if (terms.residual > 0) words.push_back(tb::format("{:.1f}% residual", terms.residual * 100));
  std::string joined = words.front();
  for (std::size_t index = 1; index < words.size(); ++index) joined += " • " + words[index];
  return joined;
}

}  // namespace tb
