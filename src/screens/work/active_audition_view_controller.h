#pragma once

#include <cstddef>
#include <cstdint>

#include "screens/stage.h"

namespace tb {

// Everything that the performer acts in or has applied for, list by list.
class ActiveAuditionViewController : public Screen {
 public:
  enum class List : std::uint8_t { all, upcoming, bookings, releases, notSelected };
  explicit ActiveAuditionViewController(List list = List::all) : list_(list) {}
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Choice lists();

  List list_;
};

// The list of the roles that went to somebody else.
void openNotSelected(Stage& stage);

}  // namespace tb
