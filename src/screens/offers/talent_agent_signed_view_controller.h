#pragma once

#include "screens/stage.h"

namespace tb {

// The signed agent: the contract, the year's work, and release.
class TalentAgentSignedViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
