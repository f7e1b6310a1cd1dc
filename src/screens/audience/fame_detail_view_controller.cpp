#include "screens/audience/fame_detail_view_controller.h"

#include <algorithm>
#include <cmath>

#include "banks/fame_banks.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/talent_scores.h"
#include "core/text.h"
#include "screens/audience/fan_chart_view_controller.h"
#include "screens/audience/fanbase_view.h"
#include "screens/metflix/movie_award_view_controller.h"
#include "screens/parts.h"
#include "screens/talent/talent_traits_view_controller.h"
#include "social/fame.h"

namespace tb {

using namespace view;

namespace {

const std::string& sentence(Bank bank, std::int64_t band) {
  const auto rows = rowsOf(bank);
  return rows[static_cast<std::size_t>(std::clamp<std::int64_t>(band, 0, std::ssize(rows) - 1))];
}

std::string points(double value) {
  const double shown = std::round(value * 10) / 10;
  return tb::format("{} {}", shown, shown == 1 ? "point" : "points");
}

// A part of the level: its points out of the most it can bring, what it says, and what comes next.
Section part(std::string heading, double value, double most, std::string words, std::string next) {
  Section section{.heading = std::move(heading),
                  .nodes = {Meter{.label = "Brings",
                                  .value = std::clamp(value, 0.0, most),
                                  .maximum = most,
                                  .text = points(value)},
                            Text{.text = std::move(words)}}};
  if (!next.empty()) section.nodes.push_back(caption(std::move(next)));
  return section;
}

Section awards(const FameParts& parts) {
  const double toNext = static_cast<double>(parts.awards) + 1 - awardScore(parts);
  Section section =
      part("AWARDS", static_cast<double>(parts.awards), 10, sentence(bank::awardsSentences, parts.awards),
           parts.awards < 10
               ? tb::format("A win is worth 2 points and a nomination a quarter: {:.2f} to the next.", toNext)
               : "");
  section.nodes.push_back(
      leadingTo<MovieAwardViewController>("Your awards", counted(parts.nominations, "nomination")));
  return section;
}

Section scores(const FameParts& parts) {
  const std::string words =
      parts.meanRating > 0
          ? tb::format("Your films average a {:.1f}/10 rating across both critics and audiences.",
                       parts.meanRating)
          : "No title with a principal part of yours has been released yet.";
  return part(
      "SCORES", static_cast<double>(parts.rating), 10, words,
      parts.rating < 10 ? tb::format("The next point comes at an average of {}.0.", parts.rating + 1) : "");
}

Section experience(const Game& game, const FameParts& parts) {
  const auto tens = static_cast<std::int64_t>(std::min(game.world.experience, 1'000.0)) / 10;
  const auto next = (static_cast<double>(parts.experience) + 1) * experiencePerFamePoint;
  return part(
      "EXPERIENCE", static_cast<double>(parts.experience), 10,
      "You've cultivated the skills and discipline of a true " + sentence(bank::experienceTitles, tens) + ".",
      tb::format("The next point comes at {} experience; you have {}.",
                 plainCount(game.locale, static_cast<std::int64_t>(next)),
                 plainCount(game.locale, static_cast<std::int64_t>(game.world.experience))));
}

Section image(const WorldState& world, const FameParts& parts) {
  return part("PUBLIC IMAGE", static_cast<double>(parts.image), 10,
              sentence(bank::publicImageSentences, parts.image),
              parts.image < 10 ? tb::format("The next point comes at an image of {}; yours is {}.",
                                            (parts.image + 1) * scorePerFamePoint, world.publicImage)
                               : "");
}

Section talent(const WorldState& world, const FameParts& parts) {
  Section section =
      part("TALENT", static_cast<double>(parts.talent), 10, sentence(bank::talentSentences, parts.talent),
           tb::format("The next point comes at a talent of {}; yours is {}.",
                      (parts.talent + 1) * scorePerFamePoint, overallTalent(world)));
  section.nodes.push_back(leadingTo<TalentTraitsViewController>("Train your talent"));
  return section;
}

Section audience(const Game& game, const FameParts& parts) {
  Section section = part("FANS", parts.fans, 14, fansSentence(game.world.totalFans),
                         tb::format("You have {} of them. Ten times as many bring about 2 points more.",
                                    plainCount(game.locale, game.world.totalFans)));
  section.nodes.push_back(leadingTo<FanChartViewController>("Your fans"));
  return section;
}

Section retention(const FameParts& parts) {
  const std::string words =
      parts.stayed > 0
          ? tb::format(
                "{:.0f}% of viewers who tune in for a TV premiere stay engaged all the way through to "
                "the finale.",
                parts.stayed * 100)
          : "No series of yours has premiered yet.";
  return part("TELEVISION", parts.retention, 10, words, "An audience that stays to the finale brings 10.");
}

Section returns(const Game& game, const FameParts& parts) {
  if (parts.budgets <= 0) {
    return part("BOX OFFICE", 0, 25, "No film with a principal part of yours has opened yet.",
                "A film that earns its budget brings 5.");
  }
  const double gain = (parts.gross - parts.budgets) / static_cast<double>(parts.films);
  const std::string result = gain < 0 ? tb::format("a loss of {}", bigMoney(game.locale, -gain))
                                      : tb::format("a gain of {}", bigMoney(game.locale, gain));
  return part("BOX OFFICE", parts.returns, 25,
              tb::format("On average, films where you play a principal role return {:.0f}% of the production "
                         "budget or {}.",
                         parts.gross / parts.budgets * 100, result),
              parts.returns < 25 ? "Each time the budgets are earned brings 5, up to 25." : "");
}

Node toNextLetter(std::int64_t level) {
  const auto next = nextLetterFrom(level);
  if (!next) return Text{.text = "There is no higher list.", .tone = Tone::good};
  return Meter{.label = tb::format("To the {} list", fameLetter(*next)),
               .value = static_cast<double>(std::max<std::int64_t>(level, 0)),
               .maximum = static_cast<double>(*next),
               .text = tb::format("{} of {}", level, *next)};
}

// What the press made of the relationship. It is talked about, but brings no points.
std::vector<Node> privateLife(const WorldState& world) {
  if (world.relationalFameImpact == 0) return {};
  return {Section{.heading = "PRIVATE LIFE",
                  .nodes = {Row{.label = "Your relationship in the press",
                                .value = tb::format("{}{:.1f}", world.relationalFameImpact < 0 ? "" : "+",
                                                    world.relationalFameImpact),
                                .detail = "Talked about, but not part of your fame level"}}}};
}

Chart sources(const FameParts& parts) {
  constexpr std::array names = {"Awards", "Scores", "Experience", "Image",
                                "Talent", "Fans",   "Television", "Box office"};
  const std::array values = {static_cast<double>(parts.awards),
                             static_cast<double>(parts.rating),
                             static_cast<double>(parts.experience),
                             static_cast<double>(parts.image),
                             static_cast<double>(parts.talent),
                             parts.fans,
                             parts.retention,
                             parts.returns};
  return barChart(
      "Where it comes from", values, [&](std::size_t index) { return std::string(names[index]); },
      [](double value) { return tb::format("{:.0f}", value); });
}

}  // namespace

void FameDetailViewController::load(Stage& stage) { updateFame(stage.game()); }

Page FameDetailViewController::view(const Game& game) {
  const FameParts parts = fameParts(game.world);
  const std::int64_t level = fameLevel(parts);
  Page page{.title = "Fame",
            .subtitle = std::string(fameLetter(level)) + " LIST",
            .nodes = {Tiles{{{.label = "Fame level",
                              .value = std::to_string(level),
                              .detail = std::string(fameLetter(level)) + " list"}}},
                      toNextLetter(level), sources(parts), audience(game, parts), scores(parts),
                      returns(game, parts), retention(parts), talent(game.world, parts),
                      experience(game, parts), image(game.world, parts), awards(parts)}};
  page.nodes.append_range(privateLife(game.world));
  return page;
}

}  // namespace tb
