#pragma once

#include "screens/stage.h"

namespace tb {

// Settings: the way to begin again.
class SettingsViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
