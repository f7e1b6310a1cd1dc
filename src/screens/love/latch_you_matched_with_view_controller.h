#pragma once

#include <optional>

#include "life/latch.h"
#include "screens/stage.h"

namespace tb {

// The conversation with the match at `selectedMatchIndex`.
class LatchYouMatchedWithViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Button mainButton(const Matches& match);
  void finish(Stage& stage);

  std::optional<Conversation> conversation_;
};

}  // namespace tb
