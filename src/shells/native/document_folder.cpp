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

// The name, size and time of a file; an empty name for what is no file, or no longer there.
std::expected<DocumentSummary, std::error_code> factsOf(const std::filesystem::path& path) {
  struct stat facts{};
  if (stat(path.c_str(), &facts) != 0) {
    if (errno == ENOENT) return DocumentSummary{};
    return std::unexpected(std::error_code(errno, std::generic_category()));
  }
  if (!S_ISREG(facts.st_mode)) return DocumentSummary{};
  constexpr double nanosecond = 1e-9;
  const double seconds =
      static_cast<double>(facts.st_mtim.tv_sec) + nanosecond * static_cast<double>(facts.st_mtim.tv_nsec);
  return DocumentSummary{.name = path.filename().string(),
                         .size = facts.st_size,
                         .changed = {.seconds = seconds - dateEpoch},
                         .head = {}};
}

}  // namespace

std::optional<std::vector<DocumentSummary>> DocumentFolder::list(std::string_view folder) const {
  std::vector<DocumentSummary> all;
  std::error_code error;
  std::filesystem::directory_iterator entry(base_ / folder, error);
  if (error == std::errc::no_such_file_or_directory) return all;
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    if (entry->path().extension() == unfinished) continue;
    auto facts = factsOf(entry->path());
    if (!facts) return std::nullopt;
    if (!facts->name.empty()) all.push_back(summaryOf(entry->path(), *std::move(facts)));
  }
  if (error) return std::nullopt;
  std::ranges::sort(all, {}, &DocumentSummary::name);
  return all;
}

// With the head of the file, which is read again only when the file has changed or could not be read.
DocumentSummary DocumentFolder::summaryOf(const std::filesystem::path& file, DocumentSummary facts) const {
  const auto seen = seen_.find(file);
  if (seen != seen_.end() && seen->second.size == facts.size && seen->second.changed == facts.changed) {
    return seen->second;
  }
  const auto content = contentOf(file);
  if (!content) return facts;
  facts.head = documentHead(*content);
  seen_[file] = facts;
  return facts;
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
