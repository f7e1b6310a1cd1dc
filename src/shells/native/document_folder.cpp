#include "shells/native/document_folder.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "shells/system_clock.h"

namespace tb {

namespace {

constexpr std::string_view unfinished = ".part";  // ends the name of a file that is being written

// A file descriptor that closes itself.
class File {
 public:
  File(const std::filesystem::path& path, int flags) : number_(open(path.c_str(), flags | O_CLOEXEC, 0600)) {}
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File() {
    if (isOpen()) close(number_);
  }

  [[nodiscard]] bool isOpen() const { return number_ >= 0; }

  bool writeAll(const Bytes& content) {
    for (std::size_t done = 0; done < content.size();) {
      const ssize_t count = ::write(number_, content.data() + done, content.size() - done);
      if (count < 0 && errno != EINTR) return false;
      done += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    }
    return true;
  }

  bool readAll(Bytes& content) {
    std::array<std::byte, 1 << 16> part;
    for (;;) {
      const ssize_t count = ::read(number_, part.data(), part.size());
      if (count == 0) return true;
      if (count > 0) content.insert(content.end(), part.begin(), part.begin() + count);
      if (count < 0 && errno != EINTR) return false;
    }
  }

  bool sync() { return fsync(number_) == 0; }

 private:
  int number_;
};

std::optional<Bytes> contentOf(const std::filesystem::path& path) {
  File file(path, O_RDONLY);
  Bytes content;
  if (!file.isOpen() || !file.readAll(content)) return std::nullopt;
  return content;
}

// The name, size and time of a file.
std::optional<DocumentSummary> factsOf(const std::filesystem::path& path) {
  struct stat facts{};
  if (stat(path.c_str(), &facts) != 0 || !S_ISREG(facts.st_mode)) return std::nullopt;
  constexpr double nanosecond = 1e-9;
  const double seconds =
      static_cast<double>(facts.st_mtim.tv_sec) + nanosecond * static_cast<double>(facts.st_mtim.tv_nsec);
  return DocumentSummary{.name = path.filename().string(),
                         .size = facts.st_size,
                         .changed = {.seconds = seconds - dateEpoch},
                         .head = {}};
}

}  // namespace

std::vector<DocumentSummary> DocumentFolder::list(std::string_view folder) const {
  std::vector<DocumentSummary> all;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(base_ / folder, error)) {
    auto facts = entry.path().extension() == unfinished ? std::nullopt : factsOf(entry.path());
    if (!facts) continue;
    DocumentSummary& seen = seen_[entry.path()];
    if (seen.name.empty() || seen.size != facts->size || seen.changed != facts->changed) {
      seen = *std::move(facts);
      const auto content = contentOf(entry.path());
      if (content) seen.head = documentHead(*content);
    }
    all.push_back(seen);
  }
  std::ranges::sort(all, {}, &DocumentSummary::name);
  return all;
}

void DocumentFolder::read(std::string_view folder, const std::string& name, Then then) {
  then(contentOf(base_ / folder / name));
}

// The file gets its name when it is complete and on disk.
std::expected<void, DocumentFailure> DocumentFolder::write(std::string_view folder, const std::string& name,
                                                           Bytes content) {
  const std::filesystem::path home = base_ / folder;
  std::error_code error;
  std::filesystem::create_directories(home, error);
  if (error) return std::unexpected(DocumentFailure{.isFolder = true, .reason = error.message()});
  const std::filesystem::path part = home / (name + std::string(unfinished));
  bool done = false;
  {
    File file(part, O_WRONLY | O_CREAT | O_TRUNC);
    done = file.isOpen() && file.writeAll(content) && file.sync();
  }
  done = done && rename(part.c_str(), (home / name).c_str()) == 0 && File(home, O_RDONLY).sync();
  if (done) return {};
  const std::string reason = std::strerror(errno);
  std::filesystem::remove(part, error);
  return std::unexpected(DocumentFailure{.reason = reason});
}

std::expected<void, std::string> DocumentFolder::remove(std::string_view folder, const std::string& name) {
  std::error_code error;
  std::filesystem::remove(base_ / folder / name, error);
  if (error) return std::unexpected(error.message());
  return {};
}

}  // namespace tb
