#include "shells/native/bring_in.h"

#include <gtest/gtest.h>

#include "core/save_file.h"
#include "tests/journeys/device.h"
#include "tests/screens/careers.h"

namespace tb {
namespace {

Bytes careerFile(const std::function<void(WorldState&)>& prepare) {
  test::MemoryPort port;
  SaveStore store(port);
  test::SeededRandom random(1);
  test::storeCareer(store, random, prepare);
  return exportedSave(store);
}

Bytes withDamagedFilms(const Bytes& file) {
  plist::Value root = *plist::read(file);
  for (auto& [key, value] : std::get<plist::Dictionary>(root.held)) {
    if (key == "saveAllFilmList") value = plist::Value{plist::Data{Bytes(9)}};
  }
  return plist::write(root);
}

class BringIn : public testing::Test {
 protected:
  void SetUp() override { test::storeCareer(store_, random_, test::beginner); }

  test::MemoryPort port_;
  SaveStore store_{port_};
  test::SeededRandom random_{1};
  test::MemoryDocuments documents_;
};

TEST_F(BringIn, AsksAboutBothCareersAndWhatIsDamaged) {
  EXPECT_EQ(questionAbout(careerFile(test::star), store_, random_).value(),
            "The file has Ada Quinn, week 30 of 2055.\n"
            "It takes the place of Ada Quinn, which stays among the backups. Replace it?");
  const auto damaged = questionAbout(withDamagedFilms(careerFile(test::star)), store_, random_);
  EXPECT_TRUE(damaged->contains("its checksum does not fit")) << *damaged;
  EXPECT_TRUE(damaged->contains("Could not be read: all films.")) << *damaged;
  EXPECT_FALSE(questionAbout(Bytes(9), store_, random_));
}

TEST_F(BringIn, BacksUpTheReplacedCareer) {
  const plist::Dictionary before = store_.dictionary();
  ASSERT_TRUE(bringIn(careerFile(test::star), store_, documents_, {}));
  EXPECT_NE(SaveStore(port_).dictionary(), before);
  ASSERT_EQ(documents_.files.size(), 1u);
  auto backup = std::get<plist::Dictionary>(plist::read(documents_.files.begin()->second)->held);
  EXPECT_EQ(takeDamage(backup, random_), "");
  EXPECT_EQ(backup, before);
}

TEST_F(BringIn, ChangesNothingWithoutABackup) {
  documents_.isFull = true;
  const plist::Dictionary before = store_.dictionary();
  EXPECT_FALSE(bringIn(careerFile(test::star), store_, documents_, {}));
  EXPECT_EQ(store_.dictionary(), before);
}

}  // namespace
}  // namespace tb
