// Loads a career from arbitrary rows of the store: what is loaded can be saved, and is then loaded without
// damage. The input is the number of a variable, the shape and number of its piece, and the piece up to the
// next separator, again and again.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "core/load_world.h"
#include "core/save.h"
#include "tests/memory_port.h"
#include "tests/seeded_random.h"

namespace tb {
namespace {

constexpr std::string_view separator = "----";

void addRows(test::MemoryPort& port, std::string_view input) {
  constexpr std::size_t head = 3;
  while (input.size() > head) {
    const Variable& variable = variables()[static_cast<unsigned char>(input[0]) % variables().size()];
    const auto shape = static_cast<Shape>(static_cast<unsigned char>(input[1]) % 4);
    const auto number = static_cast<std::int64_t>(input[2]);
    input.remove_prefix(head);
    const std::string_view piece = input.substr(0, input.find(separator));
    const auto* const first = reinterpret_cast<const std::byte*>(piece.data());
    const std::string key(variable.key);
    port.pieces[{key, number}] = {key, shape, number, Bytes(first, first + piece.size())};
    input.remove_prefix(std::min(piece.size() + separator.size(), input.size()));
  }
}

}  // namespace
}  // namespace tb

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tb::test::MemoryPort port;
  tb::addRows(port, {reinterpret_cast<const char*>(data), size});
  tb::test::SeededRandom random(1);
  {
    tb::SaveStore store(port);
    tb::Game game{.store = store, .random = random};
    static_cast<void>(tb::describe(tb::loadWorld(game)));
    tb::saveChanges(game);
    if (!store.commit()) std::abort();
  }
  tb::SaveStore store(port);
  tb::Game game{.store = store, .random = random};
  if (tb::describe(tb::loadWorld(game))) std::abort();
  return 0;
}
