#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "screens/stage.h"

namespace tb {

// The footage chosen for the next reel, shared by the showreel and its footage screen.
struct ChosenFootage {
  std::vector<std::int64_t> filmIds;
  std::int64_t preview = 0;  // the score of the last preview
};

// The showreel: its score, and production of new scenes.
class ShowreelViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Section footage() const;
  [[nodiscard]] view::Choice packages(const Game& game);
  [[nodiscard]] view::Section newScenes(const Game& game);
  void addScene(Stage& stage, const std::string& description);
  void produce(Stage& stage);

  std::shared_ptr<ChosenFootage> chosen_ = std::make_shared<ChosenFootage>();
  std::size_t package_ = 0;
  std::vector<std::string> scenes_;  // descriptions of scenes that are not shot yet
};

}  // namespace tb
