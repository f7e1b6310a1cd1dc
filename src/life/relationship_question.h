#pragma once

// A question that the relationship puts to the player, with two options.

#include <cstdint>
#include <string>
#include <vector>

#include "core/game.h"

namespace tb {

// Values of RelationshipScenario::category: what the question moves.
namespace question {
inline constexpr std::int64_t romance = 1;       // the meter
inline constexpr std::int64_t money = 2;         // A costs cash, B lowers the meter
inline constexpr std::int64_t followers = 3;     // the fans, with either option
inline constexpr std::int64_t fame = 4;          // `relationalFameImpact`, with either option
inline constexpr std::int64_t relationship = 5;  // the meter
}  // namespace question

// The range of each change of the meter, in points.
inline constexpr std::int64_t leastQuestionPoints = 5;
inline constexpr std::int64_t mostQuestionPoints = 15;

struct RelationshipScenario {
  std::string questionTemplate;  // with {name} for the partner
  std::string optionA;
  std::string optionB;
  std::int64_t category = question::romance;
  double amount = 0;                // dollars
  std::int64_t followerChange = 0;  // fans, negative for a loss
  double fameChange = 0;            // points
  std::vector<std::string> spouseResponsesA;
  std::vector<std::string> spouseResponsesB;
};

enum class QuestionOption : std::uint8_t { a, b };

[[nodiscard]] RelationshipScenario drawRelationshipQuestion(Game& game);

// The question with the partner's name in it.
[[nodiscard]] std::string questionWords(const WorldState& world, const RelationshipScenario& scenario);

struct QuestionAnswer {
  std::string reply;  // the partner's
  double meter = 0;   // points by which the meter moved
  std::string note;   // what it cost, or whom it reached; may be empty
};

// Chooses an option: moves what the category says, and adds the choice and the partner's reply to the
// history. Cash can fall below 0; the fans cannot. There must be a partner.
[[nodiscard]] QuestionAnswer answerQuestion(Game& game, const RelationshipScenario& scenario,
                                            QuestionOption option);

}  // namespace tb
