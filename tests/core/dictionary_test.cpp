// Every row of the table of variables: restart, saving and loading.

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>

#include "core/career_start.h"
#include "core/fields/fields.h"
#include "core/lawful.h"
#include "core/load_world.h"
#include "core/record_codec.h"
#include "core/save.h"
#include "tests/core/typed_variables.h"
#include "tests/core/unusual_values.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

using plist::Data;
using plist::Value;
using test::forEachRuntimeVariable;
using test::forEachVariable;
using test::ScratchGame;

// Sets every variable to a lawful value that is neither its start nor its restart value.
WorldState unusualWorld() {
  WorldState world;
  test::Unusual unusual;
  forEachVariable(
      [&](std::string_view, auto member, const auto&, const auto&, Load) { unusual.fill(world.*member); });
  for (const Variable& variable : variables()) {
    if (!variable.isList) {
      makeLawful(*variable.type, variable.range, memberOf(world, variable));
      continue;
    }
    ListBase& list = listOf(world, variable);
    for (std::size_t index = 0; index < list.size(); ++index) {
      makeLawful(*variable.type, variable.range, list.loadedElement(index));
    }
  }
  return world;
}

// Replaces the world and saves it.
void store(ScratchGame& scratch, const WorldState& world) {
  scratch.game.world = world;
  saveChanges(scratch.game);
}

Bytes encoded(const List<Child>& children) { return encodeRecords<Child>(children.begin(), children.end()); }

// Variables that restartCareer() sets itself, and the fan bonus, which every load may set.
bool hasOwnRule(std::string_view key) {
  static const std::set<std::string_view> keys{
      "totalCashAvailable",     "totalEnergyAvailable", "totalEnergyMax",  "experience",
      "saveAllWeeklyLineItems", "agentFanBonus",        "saveAllEmailList"};
  return keys.contains(key);
}

TEST(Dictionary, LoadsOnlyAtStartVariables) {
  ScratchGame scratch;
  const WorldState played = unusualWorld();
  store(scratch, played);

  Game relaunched{.store = scratch.store, .random = scratch.random};
  relaunched.world.fanGainCarry = 5;  // from a game that was played before a slot was loaded
  loadWorld(relaunched);
  EXPECT_EQ(relaunched.world.fanGainCarry, 0);
  forEachVariable([&](std::string_view key, auto member, const auto& start, const auto&, Load when) {
    SCOPED_TRACE(key);
    if (hasOwnRule(key)) return;
    EXPECT_EQ(relaunched.world.*member, when == Load::atStart ? played.*member : start);
  });
  saveChanges(relaunched);
  EXPECT_EQ(scratch.store.value("saveAllChildList"), Value{Data{encoded(played.saveAllChildList)}});
}

TEST(Dictionary, RestartSetsAllButKeptVariables) {
  ScratchGame scratch;
  const WorldState played = unusualWorld();
  store(scratch, played);
  Game game{.store = scratch.store, .random = scratch.random};
  loadWorld(game);
  const WorldState launched = game.world;
  restartCareer(game);
  saveChanges(game);
  EXPECT_FALSE(scratch.store.contains("saveAllChildList"));  // not loaded, so no later save removes it

  Game relaunched{.store = scratch.store, .random = scratch.random};
  loadWorld(relaunched);
  EXPECT_EQ(relaunched.world.saveAllEmailList.size(), 4u);  // the welcome of the career that the form starts
  EXPECT_EQ(game.world.saveAllEmailList, relaunched.world.saveAllEmailList);
  forEachVariable([&](std::string_view key, auto member, const auto& start, const auto& restart, Load when) {
    if (hasOwnRule(key)) return;
    SCOPED_TRACE(key);
    auto value = launched.*member;
    if constexpr (!std::is_same_v<decltype(restart), const test::Kept&>) value = restart;
    EXPECT_EQ(game.world.*member, value);
    EXPECT_EQ(relaunched.world.*member, when == Load::atStart ? value : start);
  });
  forEachRuntimeVariable([&](auto member, const auto&, const auto& restart) {
    if constexpr (!std::is_same_v<decltype(restart), const test::Kept&>) {
      EXPECT_EQ(game.world.*member, restart);
    }
  });
}

}  // namespace
}  // namespace tb
