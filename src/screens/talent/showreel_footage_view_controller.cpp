#include "screens/talent/showreel_footage_view_controller.h"

#include <algorithm>

#include "career/showreel.h"
#include "screens/parts.h"
#include "screens/poster.h"

namespace tb {

using namespace view;

void ShowreelFootageViewController::choose(Stage& stage, std::int64_t filmId) {
  if (Refusal refusal = chooseFootage(chosen_->filmIds, filmId)) return stage.show(std::move(refusal));
  chosen_->preview = previewFootageReel(stage.game(), chosen_->filmIds);
}

void ShowreelFootageViewController::build(Stage& stage) {
  if (Refusal refusal = buildShowreelFromFootage(stage.game(), chosen_->filmIds, chosen_->preview)) {
    return stage.show(std::move(refusal));
  }
  chosen_->filmIds.clear();
  stage.close();
}

Row ShowreelFootageViewController::footageRow(const WorldState& world, const Audition& work) {
  const bool chosen = std::ranges::contains(chosen_->filmIds, work.filmId);
  return {.label = work.title,
          .value = std::to_string(static_cast<std::int64_t>(work.performanceRating)),
          .detail = work.role,
          .picture = {posterOf(world, work)},
          .tone = chosen ? Tone::accent : Tone::plain,
          .band = scoreBand(work.performanceRating),
          .action = {{.label = chosen ? "Remove" : "Add",
                      .press = [this, id = work.filmId](Stage& stage) { choose(stage, id); },
                      .name = (chosen ? "Remove " : "Add ") + work.title}}};
}

Page ShowreelFootageViewController::view(const Game& game) {
  const std::vector<std::size_t> footage = allPerformanceFootage(game.world);
  Page page{.title = "Existing Footage", .subtitle = "Up to three scenes of your finished work"};
  page.nodes = {scoreMeter("Your showreel", game.world.showreelScore)};
  if (!chosen_->filmIds.empty()) page.nodes.push_back(scoreMeter("This cut", chosen_->preview));
  page.nodes.push_back(
      PagedList{.key = "footage",
                .size = footage.size(),
                .nodeAt =
                    [this, &game, footage](std::size_t index) {
                      return footageRow(game.world, game.world.saveAllAuditionList[footage[index]]);
                    },
                .whenEmpty = "There is no footage of you yet. It comes with your first wrap."});
  page.main = {{.label = "Cut this reel",
                .press = [this](Stage& stage) { build(stage); },
                .price = moneyPrice(game.locale, footageReelCost),
                .refusal = briefOf(reelRefusal(game.world, footageReelCost)),
                .weight = Button::Weight::primary}};
  return page;
}

}  // namespace tb
