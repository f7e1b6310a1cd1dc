#include "screens/career_start/enter_player_details_view_controller.h"

#include <cmath>

#include "core/format.h"
#include "core/text.h"
#include "screens/career_start/slot_picker_view_controller.h"
#include "screens/headshot.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

constexpr Int youngestStart = 18;
constexpr Int oldestStart = 60;
constexpr int headshotsOnOffer = 12;

Slider ageSlider(const Game& game) {
  return {.label = "Age",
          .value = static_cast<double>(game.world.ageCount),
          .minimum = static_cast<double>(youngestStart),
          .maximum = static_cast<double>(oldestStart),
          .step = 1,
          .text = tb::format("{} years", game.world.ageCount),
          .slide = [](Stage& stage, double age) {
            const double inside = std::clamp(std::round(age), static_cast<double>(youngestStart),
                                             static_cast<double>(oldestStart));
            chooseAge(stage.game(), static_cast<Int>(inside));
          }};
}

}  // namespace

void EnterPlayerDetailsViewController::load(Stage& stage) {
  const WorldState& world = stage.game().world;
  form_ = {.myName = world.myName,
           .aboutDescription = world.aboutDescription,
           .isMale = world.isMale,
           .headshotImage = world.headshotImage};
}

// Each gender has its own headshots, so the chosen one is replaced by the one at the same position.
void EnterPlayerDetailsViewController::chooseGender(bool isMale) {
  const std::string chosen = headshotIn(form_.headshotImage);
  for (int number = 1; number <= headshotsOnOffer; ++number) {
    if (chosen == headshotName(!isMale, number))
      form_.headshotImage = headshotImage(headshotName(isMale, number));
  }
  form_.isMale = isMale;
}

Choice EnterPlayerDetailsViewController::genders() {
  const auto option = [this](const char* label, bool isMale) {
    return Choice::Option{.label = label, .chosen = form_.isMale == isMale, .press = [this, isMale](Stage&) {
                            chooseGender(isMale);
                          }};
  };
  return {.label = "Gender", .options = {option("Male", true), option("Female", false)}};
}

Choice EnterPlayerDetailsViewController::waysBack() {
  const auto option = [this](const char* label, bool hasNoWayBack) {
    return Choice::Option{.label = label,
                          .chosen = form_.hasNoWayBack == hasNoWayBack,
                          .press = [this, hasNoWayBack](Stage&) { form_.hasNoWayBack = hasNoWayBack; }};
  };
  return {.label = "Taking weeks back", .options = {option("Up to ten", false), option("No way back", true)}};
}

Choice EnterPlayerDetailsViewController::headshots(const Game& game) {
  Choice choice{.label = "Headshot"};
  for (int number = 1; number <= headshotsOnOffer; ++number) {
    const std::string name = headshotName(form_.isMale, number);
    choice.options.push_back({.label = tb::format("Headshot {}", number),
                              .chosen = headshotIn(form_.headshotImage) == name,
                              .press = [this, name](Stage&) { form_.headshotImage = headshotImage(name); },
                              .picture = {headshotPicture(name, game.world.ageCount)}});
  }
  return choice;
}

void EnterPlayerDetailsViewController::confirm(Stage& stage) {
  if (Refusal refusal = confirmNewCareer(stage.game(), form_)) return stage.show(std::move(refusal));
  stage.close();
}

Page EnterPlayerDetailsViewController::view(const Game& game) {
  Page page{
      .title = "A star is cast",
      .subtitle = tb::format("Hollywood, {}. Nobody knows your name yet.", firstYear),
      .nodes =
          {
              Field{.label = "Stage name",
                    .value = form_.myName,
                    .type = [this](Stage&, const std::string& name) { form_.myName = trimmed(name); },
                    .hint = "As it appears on posters",
                    .maximumLength = 40},
              ageSlider(game),
              genders(),
              headshots(game),
              Field{.label = "Biography",
                    .value = form_.aboutDescription,
                    .type = [this](Stage&,
                                   const std::string& about) { form_.aboutDescription = trimmed(about); },
                    .hint = "A line or two about who you are",
                    .maximumLength = 280,
                    .severalLines = true},
              waysBack(),
              caption(form_.hasNoWayBack ? "Every week you end is final. This can't be changed later."
                                         : "Settings can take you back to before you ended a week."),
          },
      .main = {{.label = "Start my career",
                .press = [this](Stage& stage) { confirm(stage); },
                .weight = Button::Weight::primary}},
      .offersSaves = true};
  if (hasOtherCareers(game)) page.nodes.push_back(leadingTo<SlotPickerViewController>("Choose a save"));
  return page;
}

}  // namespace tb
