#include "life/relationship_question.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <span>
#include <string_view>
#include <utility>

#include "banks/relationship_questions_banks.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "life/partner.h"

namespace tb {

namespace {

// A question in the bank: what it is about, and two options with three replies each.
constexpr std::size_t rowsPerQuestion = 9;
constexpr std::size_t replies = 3;
constexpr std::string_view separator = " | ";
constexpr std::array<std::string_view, 5> categories = {"romance", "money", "followers", "fame",
                                                        "relationship"};

constexpr std::size_t keptFanCounts = 37;

std::string_view takePart(std::string_view& row) {
  const std::size_t end = std::min(row.find(separator), row.size());
  const std::string_view part = row.substr(0, end);
  row.remove_prefix(std::min(end + separator.size(), row.size()));
  return part;
}

double numberIn(std::string_view text) { return std::strtod(std::string(text).c_str(), nullptr); }

std::vector<std::string> repliesAt(std::span<const std::string> rows, std::size_t first) {
  const auto part = rows.subspan(first, replies);
  return {part.begin(), part.end()};
}

RelationshipScenario readQuestion(std::span<const std::string> rows) {
  std::string_view head = rows[0];
  RelationshipScenario scenario{.optionA = rows[1],
                                .optionB = rows[2 + replies],
                                .spouseResponsesA = repliesAt(rows, 2),
                                .spouseResponsesB = repliesAt(rows, 3 + replies)};
  scenario.category = std::ranges::find(categories, takePart(head)) - categories.begin() + 1;
  const double value = numberIn(takePart(head));
  if (scenario.category == question::money) scenario.amount = value;
  if (scenario.category == question::followers) scenario.followerChange = static_cast<std::int64_t>(value);
  if (scenario.category == question::fame) scenario.fameChange = value;
  scenario.questionTemplate = head;
  return scenario;
}

double drawPoints(Game& game) {
  return static_cast<double>(RandomBetween(game.random, leastQuestionPoints, mostQuestionPoints));
}

std::string gainFans(WorldState& world, std::int64_t change) {
  const std::int64_t gained = std::max(change, -world.totalFans);
  world.totalFans += gained;
  world.trackFans.push_back(world.totalFans);
  while (world.trackFans.size() > keptFanCounts) world.trackFans.pop_front();
  return gained < 0 ? tb::format("You lost {} fans...", -gained)
                    : tb::format("You gained {} fans...", gained);
}

std::string pay(Game& game, double amount) {
  game.world.totalCashAvailable -= amount;
  return tb::format("(-{})", shortMoney(game.locale, amount));
}

}  // namespace

RelationshipScenario drawRelationshipQuestion(Game& game) {
  const auto rows = rowsOf(bank::relationshipQuestions);
  const auto drawn = static_cast<std::size_t>(
      RandomRange(game.random, static_cast<std::int64_t>(rows.size() / rowsPerQuestion)));
  return readQuestion(rows.subspan(drawn * rowsPerQuestion, rowsPerQuestion));
}

std::string questionWords(const WorldState& world, const RelationshipScenario& scenario) {
  const Matches* const partner = currentPartner(world);
  return partner == nullptr ? "" : fill(scenario.questionTemplate, {{"name", partner->name}});
}

QuestionAnswer answerQuestion(Game& game, const RelationshipScenario& scenario, QuestionOption option) {
  WorldState& world = game.world;
  const bool isA = option == QuestionOption::a;
  QuestionAnswer answer;
  switch (scenario.category) {
    case question::money:
      if (isA) {
        answer.note = pay(game, scenario.amount);
      } else {
        answer.meter = -drawPoints(game);
      }
      break;
    case question::followers:
      answer.note = gainFans(world, scenario.followerChange);
      break;
    case question::fame:
      world.relationalFameImpact += scenario.fameChange;
      break;
    default:
      answer.meter = isA ? drawPoints(game) : -drawPoints(game);
  }
  moveMeter(world, answer.meter);
  answer.reply =
      RandomElement<std::string>(game.random, isA ? scenario.spouseResponsesA : scenario.spouseResponsesB);
  const std::string chosen = lowerCase(isA ? scenario.optionA : scenario.optionB);
  tellPartners(
      world, tb::format("{}: You {}{}{}", world.myName, chosen, answer.note.empty() ? "" : " ", answer.note));
  tellPartners(world, tb::format("{}: \"{}\"", currentPartner(world)->name, answer.reply));
  return answer;
}

}  // namespace tb
