#pragma once

#include <cstdint>

#include "screens/stage.h"

namespace tb {

// The offer of an agent in the e-mail `passEmailId`: terms, and signing.
class TalentAgentDetailViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  void sign(Stage& stage);

  std::int64_t email_ = 0;
};

}  // namespace tb
