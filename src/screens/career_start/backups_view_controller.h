#pragma once

#include "screens/stage.h"

namespace tb {

// The dated copies of the store. Only where the shell keeps documents.
class BackupsViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
