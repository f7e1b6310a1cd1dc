#include "tests/golden.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <utility>
#include <vector>

namespace tb::test {

namespace {

constexpr std::size_t mostLinesShown = 40;

using Lines = std::vector<std::string>;

Lines linesOf(const std::string& text) {
  Lines lines;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find('\n', start), text.size());
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return lines;
}

// Where the two go on alike after a difference: the nearest place, within reach, where a few lines agree.
std::pair<std::size_t, std::size_t> nextAgreement(const Lines& was, const Lines& is, std::size_t from,
                                                  std::size_t to) {
  constexpr std::size_t reach = 400;
  constexpr std::size_t enough = 3;
  const auto agree = [&](std::size_t old, std::size_t now) {
    for (std::size_t ahead = 0; ahead < enough; ++ahead) {
      const bool over = old + ahead >= was.size() || now + ahead >= is.size();
      if (over) return old + ahead >= was.size() && now + ahead >= is.size();
      if (was[old + ahead] != is[now + ahead]) return false;
    }
    return true;
  };
  for (std::size_t distance = 1; distance < reach; ++distance) {
    for (std::size_t skipped = 0; skipped <= distance; ++skipped) {
      if (agree(from + skipped, to + distance - skipped)) return {from + skipped, to + distance - skipped};
    }
  }
  return {was.size(), is.size()};
}

// The lines in which the texts differ, "-" before what was and "+" before what is, under the page's heading.
std::string difference(const Lines& was, const Lines& is) {
  std::string text;
  std::string heading;
  std::size_t shown = 0;
  std::size_t old = 0;
  for (std::size_t now = 0; (old < was.size() || now < is.size()) && shown < mostLinesShown;) {
    if (old < was.size() && now < is.size() && was[old] == is[now]) {
      if (is[now].starts_with("==== ")) heading = is[now];
      old += 1;
      now += 1;
      continue;
    }
    if (!heading.empty()) text += std::exchange(heading, "") + "\n";
    const auto [oldEnd, nowEnd] = nextAgreement(was, is, old, now);
    for (; old < oldEnd && shown < mostLinesShown; ++old, ++shown) text += "-" + was[old] + "\n";
    for (; now < nowEnd && shown < mostLinesShown; ++now, ++shown) text += "+" + is[now] + "\n";
  }
  return text;
}

std::string contentOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

void expectGolden(const std::string& name, const std::string& text) {
  const auto path = std::filesystem::path(GOLDEN_FOLDER) / (name + ".txt");
  if (std::getenv("REWRITE_GOLDEN") != nullptr) {
    std::ofstream(path, std::ios::binary) << text;
    return;
  }
  const std::string kept = contentOf(path);
  if (text == kept) return;
  ADD_FAILURE() << difference(linesOf(kept), linesOf(text))
                << "If this is meant, run the test again with REWRITE_GOLDEN=1 and read the diff of "
                << path.filename();
}

}  // namespace tb::test
