#include "tests/sheet.h"

#include <algorithm>
#include <format>

#include "core/save_store.h"
#include "tests/golden.h"
#include "tests/memory_port.h"
#include "tests/record_text.h"
#include "tests/seeded_random.h"

namespace tb::test {

namespace {

template <class T>
std::string elementText(const T& element) {
  if constexpr (RecordType<T>) {
    return shown(element);
  } else if constexpr (requires { textOf(element); }) {
    return textOf(element);
  } else {
    return "one";  // a record type without fields for the save file
  }
}

template <class T>
void addChanges(std::string& text, std::string_view key, const T& before, const T& now) {
  if (!(before == now)) text += std::format("  {} {}\n", key, elementText(now));
}

// News is tested with the front page.
void addChanges(std::string&, std::string_view, const std::vector<News>&, const std::vector<News>&) {}

// Lists grow at their ends: equal elements at both ends are omitted. The rest is compared element by element
// if the number is the same.
template <class T>
void addChanges(std::string& text, std::string_view key, const List<T>& before, const List<T>& now) {
  const std::size_t shorter = std::min(before.size(), now.size());
  std::size_t front = 0;
  while (front < shorter && before[front] == now[front]) front += 1;
  std::size_t back = 0;
  while (back < shorter - front && before[before.size() - 1 - back] == now[now.size() - 1 - back]) back += 1;
  const std::size_t gone = before.size() - front - back;
  const std::size_t here = now.size() - front - back;
  for (std::size_t index = front; index < front + here; ++index) {
    if constexpr (RecordType<T>) {
      if (gone == here) {
        if (before[index] == now[index]) continue;
        text += std::format("  {}[{}] {}\n", key, index, test::changes(before[index], now[index]));
        continue;
      }
    }
    text += std::format("  {} + {}\n", key, elementText(now[index]));
  }
  if (gone > 0 && gone != here) text += std::format("  {} loses {} from {}\n", key, gone, front);
}

std::string changesOf(const WorldState& before, const WorldState& now) {
  std::string text;
#define VARIABLE(Type, key, start, restart, load, ...) addChanges(text, #key, before.key, now.key);
#define RECORDS(Record, key, restart, load) addChanges(text, #key, before.key, now.key);
#define RUNTIME(Type, name, start, restart) addChanges(text, #name, before.name, now.name);
#include "core/world_variables.def"
  return text;
}

}  // namespace

Sheet::~Sheet() { expectGolden(name_, text_); }

void Sheet::text(const std::string& what, const Prepare& prepare,
                 const std::function<std::string(Game&)>& read, std::uint64_t seed) {
  MemoryPort port;
  SaveStore store(port);
  SeededRandom random(seed);
  Game game{.store = store, .random = random};
  prepare(game.world);
  line(what + ": " + read(game));
}

void Sheet::action(const std::string& what, const Prepare& prepare, const Action& act, std::uint64_t seed) {
  text(
      "==== " + what, prepare,
      [&](Game& game) {
        const WorldState before = game.world;
        const Refusal refusal = act(game);
        const std::string notice =
            refusal ? "  refuses: " + refusal->title + " " + refusal->message + "\n" : "";
        return "\n" + notice + changesOf(before, game.world);
      },
      seed);
}

void Sheet::changes(const std::string& what, const Prepare& prepare, const Rule& rule, std::uint64_t seed) {
  const auto act = [&](Game& game) -> Refusal {
    rule(game);
    return {};
  };
  action(what, prepare, act, seed);
}

}  // namespace tb::test
