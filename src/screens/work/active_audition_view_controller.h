#pragma once

#include <cstddef>
#include <cstdint>

#include "screens/stage.h"

namespace tb {

// The performer's roles and submissions by stage.
class ActiveAuditionViewController : public Screen {
 public:
  enum class List : std::uint8_t { all, upcoming, bookings, releases, notSelected };
  explicit ActiveAuditionViewController(List list = List::all) : list_(list) {}
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Choice lists();

  List list_;
};

// Opens the list of lost roles.
void openNotSelected(Stage& stage);

}  // namespace tb
