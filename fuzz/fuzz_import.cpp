// Brings in arbitrary files, and plays ten weeks of what was not refused.

#include <cstddef>
#include <cstdint>

#include "core/save_file.h"
#include "tests/damage/tourist.h"
#include "tests/memory_port.h"
#include "tests/seeded_random.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tb::test::MemoryPort port;
  tb::SaveStore store(port);
  if (!tb::importSave(store, std::as_bytes(std::span(data, size))).refusal.empty()) return 0;
  tb::test::SeededRandom random(1);
  tb::App app(store, random);
  tb::test::Tourist(app).playWeeks(10);
  return 0;
}
