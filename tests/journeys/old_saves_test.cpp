// The saves of earlier states of the game: each is opened, played on for a year, and exported.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <unistd.h>

#include "core/save_file.h"
#include "shells/sqlite/sqlite_port.h"
#include "tests/memory_port.h"
#include "tests/seeded_random.h"
#include "tests/submitting_player.h"

namespace tb {
namespace {

namespace fs = std::filesystem;

class OldSaves : public testing::TestWithParam<fs::path> {
 protected:
  void SetUp() override {
    testing::internal::CaptureStderr();
    fs::create_directories(folder_);
  }
  void TearDown() override {
    testing::internal::GetCapturedStderr();
    fs::remove_all(folder_);
  }

  [[nodiscard]] Bytes contentOf(const char* name) const {
    std::ifstream file(GetParam() / name, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(file), {}};
    const auto* const first = reinterpret_cast<const std::byte*>(content.data());
    return {first, first + content.size()};
  }

  // Nothing of it is damaged, and after a year it is exported as it is.
  void playAYear(SaveStore& store) {
    test::SeededRandom random(9);
    App app(store, random);
    ASSERT_TRUE(app.view().dialog.empty()) << app.view().dialog.front().message;
    const std::int64_t year = app.game().world.yearNumber;
    const std::size_t log = app.game().world.activityTracker.size();
    test::SubmittingPlayer player(app);
    for (int week = 0; week < 52; ++week) {
      player.submit(1);
      player.endWeek();
    }
    EXPECT_EQ(app.game().world.yearNumber, year + 1);
    EXPECT_GT(app.game().world.activityTracker.size(), log);

    test::MemoryPort port;
    SaveStore copy(port);
    const ImportedSave imported = importSave(copy, exportedSave(store));
    EXPECT_EQ(imported.refusal + imported.remark, "");
    EXPECT_EQ(copy.dictionary(), store.dictionary());
  }

  fs::path folder_ = fs::temp_directory_path() / ("top-billing-old-" + std::to_string(getpid()));
};

TEST_P(OldSaves, OpenFromTheStore) {
  fs::copy_file(GetParam() / "career.sqlite", folder_ / "career.sqlite");
  const auto port = SqlitePort::open(folder_);
  ASSERT_TRUE(port);
  SaveStore store(**port);
  playAYear(store);
}

TEST_P(OldSaves, OpenFromAFile) {
  test::MemoryPort port;
  SaveStore store(port);
  const ImportedSave imported = importSave(store, contentOf("career.plist"));
  ASSERT_EQ(imported.refusal + imported.remark, "");
  playAYear(store);
}

std::vector<fs::path> savesFolders() {
  std::vector<fs::path> folders;
  for (const auto& entry : fs::recursive_directory_iterator(SAVES_FOLDER)) {
    if (entry.path().filename() == "career.plist") folders.push_back(entry.path().parent_path());
  }
  std::ranges::sort(folders);
  return folders;
}

INSTANTIATE_TEST_SUITE_P(All, OldSaves, testing::ValuesIn(savesFolders()), [](const auto& test) {
  std::string name = test.param.parent_path().filename().string() + "_" + test.param.filename().string();
  std::ranges::replace_if(
      name, [](char letter) { return std::isalnum(static_cast<unsigned char>(letter)) == 0; }, '_');
  return name;
});

}  // namespace
}  // namespace tb
