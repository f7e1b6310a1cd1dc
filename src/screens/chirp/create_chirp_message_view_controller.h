#pragma once

#include <string>

#include "screens/stage.h"

namespace tb {

// Writes a post.
class CreateChirpMessageViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  void post(Stage& stage);

  std::string text_;
};

}  // namespace tb
