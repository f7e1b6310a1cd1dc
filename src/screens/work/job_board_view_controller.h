#pragma once

#include <vector>

#include "career/job_board.h"
#include "screens/stage.h"

namespace tb {

// The job board, drawn once when the screen opens.
class JobBoardViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Card offerCard(const Game& game, const JobOffer& offer);
  [[nodiscard]] view::Section board(const Game& game);
  void accept(Stage& stage, const JobOffer& offer);

  std::vector<JobOffer> board_;
};

}  // namespace tb
