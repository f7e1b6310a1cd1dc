#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

// The layers of src/, lowest first. A file includes files of its own or a lower layer only.
const std::vector<std::string> floors = {"core",     "banks",  "film", "social",  "career", "life",
                                         "platform", "wealth", "week", "screens", "shells"};

using Includes = std::map<std::string, std::vector<std::string>>;

Includes readIncludes() {
  Includes includes;
  const fs::path source = SOURCE_FOLDER;
  for (const auto& entry : fs::recursive_directory_iterator(source)) {
    const std::string ending = entry.path().extension();
    if (ending != ".h" && ending != ".cpp") continue;
    std::vector<std::string>& named = includes[fs::relative(entry.path(), source)];
    std::ifstream file(entry.path());
    for (std::string line; std::getline(file, line);) {
      constexpr std::string_view start = "#include \"";
      if (line.starts_with(start)) named.push_back(line.substr(start.size(), line.rfind('"') - start.size()));
    }
  }
  return includes;
}

auto floorOf(const std::string& file) { return std::ranges::find(floors, file.substr(0, file.find('/'))); }

TEST(Architecture, IncludesFollowTheLayers) {
  const Includes includes = readIncludes();
  EXPECT_GT(includes.size(), 50u);
  for (const auto& [file, named] : includes) {
    EXPECT_NE(floorOf(file), floors.end()) << file << " stands on no floor";
    for (const std::string& other : named) {
      EXPECT_LE(floorOf(other), floorOf(file)) << file << " includes " << other;
    }
  }
}

// Finds a cycle of includes, if there is one.
bool reaches(const Includes& includes, const std::string& from, const std::string& wanted,
             std::set<std::string>& seen) {
  const auto found = includes.find(from);
  if (found == includes.end() || !seen.insert(from).second) return false;
  return std::ranges::any_of(found->second, [&](const std::string& next) {
    return next == wanted || reaches(includes, next, wanted, seen);
  });
}

TEST(Architecture, HasNoIncludeCycles) {
  const Includes includes = readIncludes();
  for (const auto& [file, named] : includes) {
    std::set<std::string> seen;
    EXPECT_FALSE(reaches(includes, file, file, seen)) << file;
  }
}

// Lines must be added with core/log.h, or WeekFeed and weekFeedNews get out of step.
TEST(Architecture, OnlyLogAddsLines) {
  const std::set<std::string> known = {
      "core/log.cpp",        "core/log.h",        "core/news.h",      "core/world_variables.def",
      "week/front_page.cpp", "week/front_page.h", "week/summary.cpp", "week/summary.h"};
  const fs::path source = SOURCE_FOLDER;
  for (const auto& entry : fs::recursive_directory_iterator(source)) {
    const std::string name = fs::relative(entry.path(), source);
    if (!entry.is_regular_file() || known.contains(name)) continue;
    std::ifstream file(entry.path());
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    EXPECT_FALSE(text.contains("WeekFeed") || text.contains("weekFeedNews")) << name;
  }
}

}  // namespace
