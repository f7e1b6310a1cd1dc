#pragma once

#include "screens/stage.h"

namespace tb {

// The partner's figures, and how the two met.
class PartnerProfileViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
