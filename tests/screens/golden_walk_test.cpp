// Compares the texts of every screen of three careers with golden files.

#include <gtest/gtest.h>

#include "tests/golden.h"
#include "tests/screens/careers.h"
#include "tests/screens/walk.h"

namespace tb {
namespace {

// With a second career, a damaged one and a backup.
void addDocuments(test::Device& device) {
  const plist::Value career{plist::Dictionary{{"enterPlayerDetails", plist::Value{std::int64_t{1}}},
                                              {"myName", plist::Value{std::string("Bea Stone")}},
                                              {"yearNumber", plist::Value{std::int64_t{2031}}},
                                              {"weekNumberForTracking", plist::Value{std::int64_t{9}}},
                                              {"totalCashAvailable", plist::Value{812.5}},
                                              {"saveNetworth", plist::Value{-40.0}},
                                              {"totalFans", plist::Value{std::int64_t{52'000}}},
                                              {"saveBoxOffice", plist::Value{std::int64_t{1'200'000'000}}}}};
  device.documents.files[{"SaveSlots", "slot-1.plist"}] = plist::write(career);
  device.documents.files[{"SaveSlots", "slot-2.plist"}] = Bytes(5);
  device.documents.files[{"SaveBackups", "save-2000-12-31-230000.plist"}] = plist::write(career);
}

void expectWalk(const std::string& name, void (*prepare)(WorldState&)) {
  test::SeededRandom random(1);
  test::Device device(random);
  device.begin(prepare);
  if (name == "working") addDocuments(device);
  test::expectGolden(name, test::walkAllScreens(device, random));
}

TEST(GoldenWalk, OfABeginner) { expectWalk("beginner", test::beginner); }
TEST(GoldenWalk, OfAWorkingPerformer) { expectWalk("working", test::working); }
TEST(GoldenWalk, OfAStar) { expectWalk("star", test::star); }

}  // namespace
}  // namespace tb
