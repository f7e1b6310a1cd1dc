#pragma once

#include <optional>

#include "life/relationship_question.h"
#include "screens/stage.h"

namespace tb {

// A question of the relationship, drawn when the screen opens. Its two options stay until one is chosen.
class RelationshipEventViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;
  [[nodiscard]] std::optional<Leaving> beforeLeaving() const override;

 private:
  [[nodiscard]] view::Button optionButton(const Game& game, QuestionOption option);

  RelationshipScenario scenario_;
  std::optional<QuestionAnswer> answer_;
  QuestionOption chosen_ = QuestionOption::a;
};

}  // namespace tb
