#include "core/save_file.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "tests/memory_port.h"

namespace tb {
namespace {

plist::Value textValue(std::string value) { return {std::move(value)}; }
plist::Value whole(std::int64_t value) { return {value}; }

class SaveFile : public ::testing::Test {
 protected:
  test::MemoryPort port;
  SaveStore store{port};
};

TEST_F(SaveFile, RoundTripsACareer) {
  store.put("enterPlayerDetails", whole(1));
  store.put("myName", textValue("Ada Ösel"));
  store.put("trackFans", {plist::Array{whole(1), whole(2)}});
  const Bytes file = exportedSave(store);

  test::MemoryPort otherPort;
  SaveStore other(otherPort);
  other.put("myName", textValue("Somebody else"));
  other.put("saveAllFilmList", {plist::Data{}});
  const ImportedSave imported = importSave(other, file);
  EXPECT_EQ(imported.refusal, "");
  EXPECT_EQ(imported.remark, "");
  EXPECT_EQ(other.dictionary(), store.dictionary());
}

// Another program may sort the keys; a changed value or key does not fit the checksum, and a file can have
// none.
TEST_F(SaveFile, RemarksOnTheChecksum) {
  store.put("enterPlayerDetails", whole(1));
  store.put("myName", textValue("Ada"));
  const plist::Dictionary written = std::get<plist::Dictionary>(plist::read(exportedSave(store))->held);
  const auto remarkOn = [&](plist::Dictionary values) {
    return importSave(store, plist::write({std::move(values)})).remark;
  };
  EXPECT_EQ(written.size(), 3u);
  plist::Dictionary changed = written;
  std::ranges::reverse(changed);
  EXPECT_EQ(remarkOn(changed), "");
  changed.erase(changed.begin() + 1);
  EXPECT_TRUE(remarkOn(changed).contains("damaged"));
  changed = written;
  changed[1].second = textValue("Eda");
  EXPECT_TRUE(remarkOn(changed).contains("damaged"));
  changed = written;
  std::erase_if(changed, [](const auto& entry) { return entry.first == checksumKey; });
  EXPECT_TRUE(remarkOn(changed).contains("no checksum"));
}

TEST_F(SaveFile, TakesNumbersForWhatTheySay) {
  for (const plist::Value& yes : {plist::Value{1.0}, plist::Value{true}, whole(1)}) {
    EXPECT_EQ(importSave(store, plist::write({plist::Dictionary{{"enterPlayerDetails", yes}}})).refusal, "");
  }
}

TEST_F(SaveFile, RejectsOtherFiles) {
  store.put("enterPlayerDetails", whole(1));
  store.put("myName", textValue("Ada"));
  const plist::Dictionary before = store.dictionary();

  Bytes torn = exportedSave(store);
  torn.resize(torn.size() / 2);
  const Bytes files[] = {
      {},
      torn,
      plist::write({plist::Array{whole(1)}}),
      plist::write({plist::Dictionary{{"CFBundleName", textValue("another program")}}}),
      plist::write({plist::Dictionary{{"enterPlayerDetails", textValue("yes")}}}),
  };
  for (const Bytes& file : files) {
    EXPECT_NE(importSave(store, file).refusal, "");
    EXPECT_EQ(store.dictionary(), before);
  }
}

}  // namespace
}  // namespace tb
