#pragma once

#include "screens/stage.h"

namespace tb {

// Settings, with the restart of the career.
class SettingsViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
