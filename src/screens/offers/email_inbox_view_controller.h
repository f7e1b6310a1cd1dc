#pragma once

#include <optional>

#include "screens/stage.h"

namespace tb {

// The inbox. Opening an e-mail shows its text and leads to the screen of its deal.
class EmailInboxViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  void open(Stage& stage, std::size_t index);
  [[nodiscard]] view::Node emailRow(const WorldState& world, std::size_t index);

  std::optional<Email> most_recent_;  // the e-mail that was opened last
};

}  // namespace tb
