#pragma once

#include <string>
#include <vector>

#include "career/classes.h"
#include "screens/stage.h"

namespace tb {

// Julien: classes on offer, running and finished.
class ActingClassesViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Button signUpButton(const Game& game, const ClassOption& option);
  [[nodiscard]] view::Card optionCard(const Game& game, const ClassOption& option);
  [[nodiscard]] view::Section offered(const Game& game);
  void signUp(Stage& stage, const ClassOption& option);

  std::vector<ClassOption> options_;
};

// "Drama 106: Physical Acting I".
[[nodiscard]] std::string className(const ActingClass& taken);

}  // namespace tb
