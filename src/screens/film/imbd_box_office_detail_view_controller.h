#pragma once

#include <cstdint>

#include "screens/stage.h"

namespace tb {

// One film in the cinemas: its eight weeks, and its markets.
class ImbdBoxOfficeDetailViewController : public Screen {
 public:
  explicit ImbdBoxOfficeDetailViewController(std::int64_t filmId) : film_id_(filmId) {}
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  std::int64_t film_id_;
};

// Opens it, or says that the title was never in a theatre.
void openBoxOfficeDetail(Stage& stage, std::int64_t filmId);

}  // namespace tb
