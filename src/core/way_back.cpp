#include "core/way_back.h"

#include "core/save.h"
#include "core/save_store.h"

namespace tb {

namespace {

std::optional<CareerWeek> careerWeek(const std::optional<plist::Value>& week,
                                     const std::optional<plist::Value>& year) {
  const auto* const weekNumber = week ? week->as<Int>() : nullptr;
  const auto* const yearNumber = year ? year->as<Int>() : nullptr;
  if (weekNumber == nullptr || yearNumber == nullptr) return std::nullopt;
  return CareerWeek{.week = *weekNumber, .year = *yearNumber};
}

bool reload(Game& game, bool isReplaced) {
  if (isReplaced) game.reload = Reload::everything;
  return isReplaced;
}

}  // namespace

std::optional<CareerWeek> lastWeek(const SaveStore& store) {
  if (store.weeks().weeksBack() == 0) return std::nullopt;
  return careerWeek(store.weeks().valueBack("weekNumber"), store.weeks().valueBack("yearNumber"));
}

std::optional<CareerWeek> weekTakenBack(const SaveStore& store) {
  return careerWeek(store.weeks().valueForward("weekNumber"), store.weeks().valueForward("yearNumber"));
}

// What this action changed before is still part of the old week.
void keepWayBack(Game& game) {
  saveChanges(game);
  if (game.world.hasNoWayBack) return game.store.weeks().forget();
  game.store.weeks().beginWeek();
}

bool backToLastWeek(Game& game) { return reload(game, game.store.weeks().goBack()); }
bool returnToWeek(Game& game) { return reload(game, game.store.weeks().goForward()); }

std::expected<void, std::string> backToLastWeek(SaveStore& store) {
  if (!store.weeks().goBack()) return std::unexpected("There is no week to go back to.");
  return store.commit();
}

}  // namespace tb
