#include "shells/native/document_folder.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

namespace tb {
namespace {

namespace fs = std::filesystem;

Bytes save(const std::string& name, std::size_t length = 0) {
  return plist::write(plist::Value{
      plist::Dictionary{{"myName", plist::Value{name}}, {"rest", plist::Value{std::string(length, 'x')}}}});
}

class Folder : public testing::Test {
 protected:
  static fs::path newFolder() {
    std::string name = (fs::temp_directory_path() / "billing-documents-XXXXXX").string();
    return mkdtemp(name.data());
  }
  ~Folder() override { fs::remove_all(base); }

  std::optional<Bytes> content(const std::string& name) {
    std::optional<Bytes> found;
    DocumentFolder(base).read("SaveSlots", name, [&](std::optional<Bytes> read) { found = std::move(read); });
    return found;
  }

  fs::path base = newFolder();
  DocumentFolder documents{base};
};

TEST_F(Folder, KeepsDocumentsAndListsWhatChanged) {
  EXPECT_TRUE(documents.list("SaveSlots")->empty());
  EXPECT_FALSE(content("slot-1.plist"));
  ASSERT_TRUE(documents.write("SaveSlots", "slot-1.plist", save("Ada", 200'000)));
  ASSERT_TRUE(documents.write("SaveSlots", "slot-0.plist", save("Bea")));
  std::ofstream(base / "SaveSlots" / "slot-2.plist") << "torn";
  const auto all = documents.list("SaveSlots").value();
  ASSERT_EQ(all.size(), 3u);
  EXPECT_EQ(all[0].name, "slot-0.plist");
  EXPECT_EQ(all[1].head, (plist::Dictionary{{"myName", plist::Value{std::string("Ada")}}}));
  EXPECT_GT(all[1].size, 200'000);
  EXPECT_GT(all[1].changed.seconds, 0);
  EXPECT_FALSE(all[2].head);
  EXPECT_EQ(content("slot-1.plist"), save("Ada", 200'000));

  ASSERT_TRUE(documents.write("SaveSlots", "slot-1.plist", save("Cleo")));
  EXPECT_EQ((*documents.list("SaveSlots"))[1].head,
            (plist::Dictionary{{"myName", plist::Value{std::string("Cleo")}}}));
  EXPECT_TRUE(documents.remove("SaveSlots", "slot-1.plist"));
  EXPECT_TRUE(documents.remove("SaveSlots", "slot-1.plist"));
  EXPECT_EQ(documents.list("SaveSlots")->size(), 2u);
}

TEST_F(Folder, AFailedWriteLeavesTheDocumentThatWasThere) {
  ASSERT_TRUE(documents.write("SaveSlots", "slot-0.plist", save("Ada")));
  // The longest file that this process may write takes the place of a full disk.
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{.rlim_cur = 1000, .rlim_max = before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  const auto done = documents.write("SaveSlots", "slot-0.plist", save("Bea", 50'000));
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  ASSERT_FALSE(done);
  EXPECT_FALSE(done.error().isFolder);
  EXPECT_EQ(content("slot-0.plist"), save("Ada"));
  EXPECT_EQ(documents.list("SaveSlots")->size(), 1u);

  std::ofstream(base / "SaveBackups") << "in the way";
  const auto folder = documents.write("SaveBackups", "save.plist", save("Ada"));
  ASSERT_FALSE(folder);
  EXPECT_TRUE(folder.error().isFolder);
}

}  // namespace
}  // namespace tb
