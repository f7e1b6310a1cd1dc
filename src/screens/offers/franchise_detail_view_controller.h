#pragma once

#include <cstdint>

#include "screens/stage.h"

namespace tb {

// The saga that the e-mail `passEmailId` offers: its films, the first role, and taking it.
class FranchiseDetailViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  void accept(Stage& stage);

  std::int64_t email_ = 0;
};

}  // namespace tb
