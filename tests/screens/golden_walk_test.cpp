// Compares the texts of every screen of three careers with golden files.

#include <gtest/gtest.h>

#include "tests/golden.h"
#include "tests/screens/careers.h"
#include "tests/screens/walk.h"

namespace tb {
namespace {

void expectWalk(const std::string& name, void (*prepare)(WorldState&)) {
  test::SeededRandom random(1);
  test::Device device(random);
  device.begin(prepare);
  test::expectGolden(name, test::walkAllScreens(device, random));
}

TEST(GoldenWalk, OfABeginner) { expectWalk("beginner", test::beginner); }
TEST(GoldenWalk, OfAWorkingPerformer) { expectWalk("working", test::working); }
TEST(GoldenWalk, OfAStar) { expectWalk("star", test::star); }

}  // namespace
}  // namespace tb
