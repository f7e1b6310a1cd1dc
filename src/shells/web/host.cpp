#include "shells/web/host.h"

#include <unistd.h>

#include "core/stop.h"
#include "shells/web/message.h"

// The only import besides those of WASI.
extern "C" __attribute__((import_module("game"), import_name("commit"))) void commitToPage(
    const std::byte* message, std::size_t size);

namespace tb {

std::expected<void, std::string> HostPort::commit(std::span<const StoreChange> changes) {
  const Bytes message = writeChanges(changes);
  commitToPage(message.data(), message.size());
  return {};
}

std::uint64_t HostRandom::next() {
  if (used_ == words_.size()) {
    if (getentropy(words_.data(), sizeof words_) != 0) stopTheGame("the browser gives no random numbers");
    used_ = 0;
  }
  return words_[used_++];
}

}  // namespace tb
