#include "screens/talent/showreel_view_controller.h"

#include "career/showreel.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "screens/parts.h"
#include "screens/talent/showreel_footage_view_controller.h"

namespace tb {

using namespace view;

namespace {

Section reelScenes(const WorldState& world) {
  Section section{.heading = "SCENES OF YOUR REEL"};
  for (std::size_t index = 0; index < world.newSceneDescriptions.size(); ++index) {
    section.nodes.push_back(Row{.label = world.newSceneDescriptions[index],
                                .value = std::to_string(world.newScenesProduced[index]),
                                .band = scoreBand(static_cast<double>(world.newScenesProduced[index]))});
  }
  return section;
}

}  // namespace

void ShowreelViewController::load(Stage& stage) { openShowreel(stage.game()); }

void ShowreelViewController::addScene(Stage& stage, const std::string& description) {
  const std::string scene = trimmed(description);
  if (scene.empty()) return;
  if (Refusal refusal = roomForScene(package_, scenes_.size())) return stage.show(std::move(refusal));
  scenes_.push_back(scene);
}

void ShowreelViewController::produce(Stage& stage) {
  if (Refusal refusal = produceShowreelScenes(stage.game(), package_, scenes_, chosen_->filmIds)) {
    return stage.show(std::move(refusal));
  }
  scenes_.clear();
  stage.say(tb::format("That's a wrap. Your new showreel is rated {}.", stage.game().world.showreelScore));
}

Section ShowreelViewController::footage() const {
  return {.heading = "EXISTING FOOTAGE",
          .nodes = {Row{.label = "Choose footage",
                        .value = tb::format("{} of {}", chosen_->filmIds.size(), maxFootage),
                        .detail = "Cut a reel from your finished work",
                        .press = [chosen = chosen_](Stage& stage) {
                          stage.open<ShowreelFootageViewController>(chosen);
                        }}}};
}

Choice ShowreelViewController::packages(const Game& game) {
  Choice choice{.label = "Package"};
  for (std::size_t index = 0; index < scenePackages.size(); ++index) {
    const ScenePackage& package = scenePackages[index];
    choice.options.push_back({.label = tb::format("{} • {} • {}", package.title,
                                                  counted(static_cast<std::int64_t>(package.scenes), "scene"),
                                                  wholeMoney(game.locale, package.cost)),
                              .chosen = index == package_,
                              .press = [this, index](Stage&) { package_ = index; }});
  }
  return choice;
}

Section ShowreelViewController::newScenes(const Game& game) {
  Section section{.heading = "NEW SCENES", .nodes = {packages(game)}};
  for (std::size_t index = 0; index < scenes_.size(); ++index) {
    section.nodes.push_back(Row{.label = scenes_[index], .detail = "Remove", .press = [this, index](Stage&) {
                                  scenes_.erase(scenes_.begin() + static_cast<std::ptrdiff_t>(index));
                                }});
  }
  section.nodes.push_back(
      Field{.label = "A scene where ...",
            .type = [this](Stage& stage, const std::string& text) { addScene(stage, text); },
            .hint = "a waiter quits in the middle of a toast",
            .maximumLength = 120});
  if (!chosen_->filmIds.empty()) {
    section.nodes.push_back(
        caption("The reel will be rated by the footage that you chose, not by these scenes."));
  }
  section.nodes.push_back(Button{.label = "Hire the production company",
                                 .press = [this](Stage& stage) { produce(stage); },
                                 .price = moneyPrice(game.locale, scenePackages[package_].cost),
                                 .refusal = briefOf(reelRefusal(game.world, scenePackages[package_].cost)),
                                 .weight = Button::Weight::primary});
  return section;
}

Page ShowreelViewController::view(const Game& game) {
  const WorldState& world = game.world;
  Page page{.title = "Showreel", .subtitle = "A new reel replaces the old one"};
  page.nodes = {scoreMeter("Showreel", world.showreelScore)};
  if (!world.newSceneDescriptions.empty()) page.nodes.push_back(reelScenes(world));
  page.nodes.push_back(footage());
  page.nodes.push_back(newScenes(game));
  return page;
}

}  // namespace tb
