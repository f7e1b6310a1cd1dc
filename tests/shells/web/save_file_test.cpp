#include "shells/web/save_file.h"

#include <gtest/gtest.h>

#include "tests/memory_port.h"

namespace tb {
namespace {

plist::Value text(std::string value) { return {std::move(value)}; }
plist::Value whole(std::int64_t value) { return {value}; }

class WebSaveFile : public ::testing::Test {
 protected:
  test::MemoryPort port;
  SaveStore store{port};
};

TEST_F(WebSaveFile, RoundTripsACareer) {
  store.put("enterPlayerDetails", whole(1));
  store.put("myName", text("Ada Ösel"));
  store.put("trackFans", {plist::Array{whole(1), whole(2)}});
  const Bytes file = exportedSave(store);

  test::MemoryPort otherPort;
  SaveStore other(otherPort);
  other.put("myName", text("Somebody else"));
  other.put("saveAllFilmList", {plist::Data{}});
  EXPECT_EQ(importSave(other, file), "");
  EXPECT_EQ(other.dictionary(), store.dictionary());
}

TEST_F(WebSaveFile, RejectsOtherFiles) {
  store.put("enterPlayerDetails", whole(1));
  store.put("myName", text("Ada"));
  const plist::Dictionary before = store.dictionary();

  Bytes torn = exportedSave(store);
  torn.resize(torn.size() / 2);
  const Bytes files[] = {
      {},
      torn,
      plist::write({plist::Array{whole(1)}}),
      plist::write({plist::Dictionary{{"CFBundleName", text("another program")}}}),
      plist::write({plist::Dictionary{{"enterPlayerDetails", text("yes")}}}),
  };
  for (const Bytes& file : files) {
    EXPECT_NE(importSave(store, file), "");
    EXPECT_EQ(store.dictionary(), before);
  }
}

}  // namespace
}  // namespace tb
