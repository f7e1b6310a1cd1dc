#include "tests/golden.h"

#include <cstdlib>
#include <filesystem>
#include <format>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace tb::test {

namespace {

namespace fs = std::filesystem;

constexpr int mostLinesShown = 40;

std::string contentOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void write(const fs::path& path, const std::string& text) { std::ofstream(path, std::ios::binary) << text; }

// Prints the lines that differ, each group under its heading.
void printDifference(const fs::path& kept, const std::string& text) {
  const fs::path now = fs::path(testing::TempDir()) / kept.filename();
  write(now, text);
  const std::string command =
      std::format("diff -NU0 -F '^====' '{}' '{}' | head -n {}", kept.string(), now.string(), mostLinesShown);
  static_cast<void>(std::system(command.c_str()));
  fs::remove(now);
}

}  // namespace

void expectGolden(const std::string& name, const std::string& text) {
  const fs::path path = fs::path(GOLDEN_FOLDER) / (name + ".txt");
  if (std::getenv("REWRITE_GOLDEN") != nullptr) return write(path, text);
  if (text == contentOf(path)) return;
  printDifference(path, text);
  ADD_FAILURE() << "If this is meant, run the test again with REWRITE_GOLDEN=1 and read the diff of "
                << path.filename();
}

}  // namespace tb::test
