#pragma once

#include <string>

#include "screens/stage.h"

namespace tb {

// The slots with their careers, and the bank that they share. Only where the shell keeps documents.
class SlotPickerViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Section bank(const Game& game);

  std::string amount_;  // as typed
};

// Whether a slot other than the one in play has a career.
[[nodiscard]] bool hasOtherCareers(const Game& game);

}  // namespace tb
