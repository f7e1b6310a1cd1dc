// Every row of the table of variables, at every point of its life: start, restart, written, loaded, and
// loaded from a store that holds something else.

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>

#include "core/career_start.h"
#include "core/load_world.h"
#include "core/save.h"
#include "tests/core/unusual_values.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

using plist::Array;
using plist::Data;
using plist::Dictionary;
using plist::Value;
using test::ScratchGame;

template <auto Member>
using TypeOf = std::remove_cvref_t<decltype(WorldState{}.*Member)>;

// Fills every variable, so that no row has its start or restart value.
WorldState unusualWorld() {
  WorldState world;
  test::Unusual unusual;
  forEachVariable([&]<auto Member>(const auto&, const auto&, Load) { unusual.fill(world.*Member); });
  return world;
}

void writeAll(Game& game) {
  forEachVariable([&]<auto Member>(const auto&, const auto&, Load) { save<Member>(game); });
}

// Variables that a restart sets by a rule of its own, and the fan bonus, which every load looks after.
bool hasOwnRule(std::string_view key) {
  static const std::set<std::string_view> keys{"totalCashAvailable",     "totalEnergyAvailable",
                                               "totalEnergyMax",         "experience",
                                               "saveAllWeeklyLineItems", "agentFanBonus"};
  return keys.contains(key);
}

// --- What the save file holds ---

template <class T>
void expectStoredForm(const Value& value, const T& variable) {
  const auto* const held = value.as<T>();
  ASSERT_NE(held, nullptr);
  EXPECT_EQ(*held, variable);
}

template <class T>
void expectStoredForm(const Value& value, const std::vector<T>& elements);

template <RecordType Record>
void expectStoredForm(const Value& value, const Record& record) {
  const auto* const entries = value.as<Dictionary>();
  ASSERT_NE(entries, nullptr);
  std::size_t present = 0;
  forEachField(record, [&](std::string_view name, const auto& field) {
    SCOPED_TRACE(name);
    const Value* const stored = value.find(name);
    if constexpr (detail::isOptional<std::remove_cvref_t<decltype(field)>>) {
      ASSERT_EQ(stored != nullptr, field.has_value());
      if (field) expectStoredForm(*stored, *field);
      present += field.has_value() ? 1 : 0;
    } else {
      ASSERT_NE(stored, nullptr);
      expectStoredForm(*stored, field);
      present += 1;
    }
  });
  EXPECT_EQ(entries->size(), present);
}

template <class T>
void expectStoredElements(const Value& value, const T& elements) {
  const auto* const array = value.as<Array>();
  ASSERT_NE(array, nullptr);
  ASSERT_EQ(array->size(), elements.size());
  for (std::size_t index = 0; index < elements.size(); ++index) {
    SCOPED_TRACE(index);
    expectStoredForm((*array)[index], elements[index]);
  }
}

template <class T>
void expectStoredForm(const Value& value, const std::vector<T>& elements) {
  expectStoredElements(value, elements);
}

template <class T>
void expectStoredForm(const Value& value, const List<T>& list) {
  if constexpr (RecordType<T>) {
    const auto* const data = value.as<Data>();
    ASSERT_NE(data, nullptr);
    const auto decoded = plist::read(data->bytes);
    ASSERT_TRUE(decoded);
    expectStoredElements(*decoded, list);
  } else {
    expectStoredElements(value, list);
  }
}

// --- The rows ---

TEST(Dictionary, No_two_variables_share_a_key) {
  std::set<std::string_view> keys;
  forEachVariable([&]<auto Member>(const auto&, const auto&, Load) {
    EXPECT_FALSE(variableOf<Member>->key.empty());
    EXPECT_TRUE(keys.insert(variableOf<Member>->key).second) << variableOf<Member>->key;
  });
}

TEST(Dictionary, A_fresh_install_starts_every_variable_from_its_start_value) {
  ScratchGame fresh;
  loadWorld(fresh.game);
  forEachVariable([&]<auto Member>(const auto& start, const auto&, Load) {
    if (!hasOwnRule(variableOf<Member>->key))
      EXPECT_EQ(fresh.game.world.*Member, start) << variableOf<Member>->key;
  });
  forEachRuntimeVariable(
      [&]<auto Member>(const auto& start, const auto&) { EXPECT_EQ(fresh.game.world.*Member, start); });
}

TEST(Dictionary, Every_variable_is_stored_in_its_own_form) {
  ScratchGame scratch;
  scratch.game.world = unusualWorld();
  writeAll(scratch.game);
  forEachVariable([&]<auto Member>(const auto&, const auto&, Load) {
    SCOPED_TRACE(variableOf<Member>->key);
    const auto stored = scratch.store.value(variableOf<Member>->key);
    ASSERT_TRUE(stored);
    expectStoredForm(*stored, scratch.game.world.*Member);
  });
}

TEST(Dictionary, A_launch_brings_back_what_the_table_says_and_nothing_else) {
  ScratchGame scratch;
  const WorldState played = unusualWorld();
  scratch.game.world = played;
  writeAll(scratch.game);

  Game relaunched{.store = scratch.store, .random = scratch.random};
  relaunched.world.fanGainCarry = 5;  // of a game that was in play until a slot was loaded
  loadWorld(relaunched);
  EXPECT_EQ(relaunched.world.fanGainCarry, 0);
  forEachVariable([&]<auto Member>(const auto& start, const auto&, Load when) {
    if (hasOwnRule(variableOf<Member>->key)) return;
    SCOPED_TRACE(variableOf<Member>->key);
    const bool read = when == Load::atStart || when == Load::lists;
    EXPECT_EQ(relaunched.world.*Member, read ? played.*Member : TypeOf<Member>(start));
    load<Member>(relaunched);  // as the owner of the variable does
    EXPECT_EQ(relaunched.world.*Member, played.*Member);
  });
}

TEST(Dictionary, A_restart_sets_and_writes_every_variable_but_those_that_it_keeps) {
  ScratchGame scratch;
  const WorldState played = unusualWorld();
  scratch.game.world = played;
  writeAll(scratch.game);
  restartCareer(scratch.game);

  const auto expected = [&]<auto Member>(const auto& restart) -> TypeOf<Member> {
    if constexpr (std::is_same_v<decltype(restart), const Kept&>) {
      return played.*Member;
    } else {
      return restart;
    }
  };
  forEachVariable([&]<auto Member>(const auto&, const auto& restart, Load) {
    if (hasOwnRule(variableOf<Member>->key)) return;
    SCOPED_TRACE(variableOf<Member>->key);
    const auto value = expected.template operator()<Member>(restart);
    EXPECT_EQ(scratch.game.world.*Member, value);
    Game relaunched{.store = scratch.store, .random = scratch.random};
    load<Member>(relaunched);
    EXPECT_EQ(relaunched.world.*Member, value);
  });
}

TEST(Dictionary, A_value_of_another_type_leaves_the_variable_as_it_was) {
  ScratchGame scratch;
  const WorldState played = unusualWorld();
  forEachVariable([&]<auto Member>(const auto&, const auto&, Load) {
    SCOPED_TRACE(variableOf<Member>->key);
    using Type = TypeOf<Member>;
    constexpr bool isNumber = std::is_arithmetic_v<Type>;
    const Value text{std::string("text")};
    const Value number{std::int64_t{2}};
    const Value garbage{Data{Bytes(9, std::byte{1})}};
    const Value list{Array{Value{Dictionary{}}}};
    for (const Value& wrong : {isNumber ? text : number, garbage, list}) {
      if (std::is_same_v<Type, Image> && wrong == garbage) continue;  // a picture is any bytes
      scratch.store.put(variableOf<Member>->key, wrong);
      scratch.game.world.*Member = played.*Member;
      load<Member>(scratch.game);
      EXPECT_EQ(scratch.game.world.*Member, played.*Member);
    }
  });
}

TEST(Dictionary, One_spoilt_list_costs_that_list_alone) {
  ScratchGame scratch;
  const WorldState played = unusualWorld();
  scratch.game.world = played;
  writeAll(scratch.game);
  scratch.store.put("saveAllFilmList", Value{Data{Bytes(40, std::byte{0x62})}});

  Game relaunched{.store = scratch.store, .random = scratch.random};
  loadWorld(relaunched);
  EXPECT_TRUE(relaunched.world.saveAllFilmList.empty());
  EXPECT_EQ(relaunched.world.saveAllAuditionList, played.saveAllAuditionList);
  EXPECT_EQ(relaunched.world.saveAllBoxOfficeList, played.saveAllBoxOfficeList);
  EXPECT_EQ(relaunched.world.saveRivalHoldings, played.saveRivalHoldings);
}

}  // namespace
}  // namespace tb
