// Plays weeks of a store, damages their journals, and takes the weeks back. The input has the steps that are
// played and, after the byte `playEnds`, the damage. Weeks that are taken back undamaged are as they were. A
// damaged journal gives some store or changes nothing.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <vector>

#include "core/byte_delta.h"
#include "core/save_store.h"
#include "tests/memory_port.h"

namespace tb {
namespace {

constexpr std::size_t playEnds = 255;
constexpr std::size_t names = 3;  // of keys, and of pieces

using Rows = decltype(test::MemoryPort::pieces);

void expect(bool holds) {
  if (!holds) std::abort();
}

class Input {
 public:
  explicit Input(std::span<const std::byte> bytes) : left_(bytes) {}

  [[nodiscard]] bool isEmpty() const { return left_.empty(); }
  // 0 at the end of the input.
  std::size_t number() {
    if (isEmpty()) return 0;
    const auto number = std::to_integer<std::size_t>(left_.front());
    left_ = left_.subspan(1);
    return number;
  }
  std::span<const std::byte> bytes(std::size_t most) {
    const auto taken = left_.first(std::min(most, left_.size()));
    left_ = left_.subspan(taken.size());
    return taken;
  }

 private:
  std::span<const std::byte> left_;
};

class Weeks {
 public:
  void play(Input& input) {
    while (!input.isEmpty()) {
      const std::size_t step = input.number();
      if (step == playEnds) return;
      switch (step % 8) {
        case 0:
          commit();
          break;
        case 1:
          before_.push_back(rows());
          store_->weeks().beginWeek();
          break;
        case 2:
          commit();
          store_.emplace(port_);
          break;
        case 3:
          takeBack();
          break;
        default:
          write(input);
      }
    }
  }

  void damage(Input& input) {
    commit();
    std::vector<StoredPiece*> records;
    for (auto& [place, stored] : port_.pieces) {
      if (stored.shape == Shape::journal) records.push_back(&stored);
    }
    while (!input.isEmpty() && !records.empty()) {
      Bytes& record = records[input.number() % records.size()]->bytes;
      const bool isWhole = input.number() % 2 == 0;  // its checksum is right again
      const std::size_t from = 256 * input.number() + input.number();
      const std::size_t count = input.number() % 8;
      splice(record, from, count, input.bytes(input.number() % 8));
      if (isWhole) sign(record);
    }
    store_.emplace(port_);
  }

  // Takes back what can be, and goes on from there.
  void takeAllBack() {
    std::size_t weeks = store_->weeks().weeksBack();
    while (weeks > 0) {
      static_cast<void>(store_->weeks().valueBack(keyOf(0)));
      const Rows left = rows();
      if (store_->weeks().goBack()) {
        weeks -= 1;
      } else {
        expect(rows() == left);
        weeks = 0;
      }
      expect(store_->weeks().weeksBack() == weeks);
    }
    while (store_->weeks().goForward()) commit();
    const Rows left = rows();
    store_.emplace(port_);
    expect(rows() == left);
  }

 private:
  static std::string keyOf(std::size_t number) { return "list" + std::to_string(number); }

  static void splice(Bytes& bytes, std::size_t from, std::size_t count, std::span<const std::byte> fresh) {
    const std::size_t begin = bytes.empty() ? 0 : from % bytes.size();
    const auto at = bytes.begin() + static_cast<std::ptrdiff_t>(begin);
    const auto end = at + static_cast<std::ptrdiff_t>(std::min(count, bytes.size() - begin));
    bytes.insert(bytes.erase(at, end), fresh.begin(), fresh.end());
  }

  // A record is its mark, the checksum of its changes, and these.
  static void sign(Bytes& record) {
    std::span<const std::byte> changes(record);
    if (changes.empty()) return;
    changes = changes.subspan(1);
    static_cast<void>(takeNumber(changes));
    Bytes whole{std::byte{1}};
    putNumber(whole, checksumOf(changes));
    whole.insert(whole.end(), changes.begin(), changes.end());
    record = std::move(whole);
  }

  void commit() { expect(store_->commit().has_value()); }

  // What is stored besides the journals.
  Rows rows() {
    commit();
    Rows values = port_.pieces;
    std::erase_if(values, [](const auto& row) { return row.second.shape == Shape::journal; });
    return values;
  }

  void takeBack() {
    if (store_->weeks().weeksBack() == 0) return;
    expect(store_->weeks().goBack());
    expect(rows() == before_.back());
    before_.pop_back();
  }

  // Changes some bytes of a piece, again and again if they are many, or removes it.
  void write(Input& input) {
    const std::string key = keyOf(input.number() % names);
    const auto piece = static_cast<std::int64_t>(input.number() % names);
    const SaveStore::Entry* const stored = store_->entry(key);
    Bytes bytes;
    if (stored != nullptr && stored->pieces.contains(piece)) bytes = stored->pieces.at(piece);
    const std::size_t from = input.number();
    const std::size_t count = input.number();
    const std::size_t times = 1 + input.number() % 16;
    const auto fresh = input.bytes(input.number() % 32);
    for (std::size_t time = 0; time < times; ++time) splice(bytes, 7 * time + from, count, fresh);
    const auto shape = input.number() % 8 == 0 ? Shape::plainList : Shape::recordList;
    std::vector<SaveStore::PieceWrite> writes;
    writes.push_back({.piece = piece, .bytes = std::nullopt});
    if (!bytes.empty()) writes.back().bytes = std::move(bytes);
    store_->putPieces(key, shape, false, std::move(writes));
  }

  test::MemoryPort port_;
  std::optional<SaveStore> store_{port_};
  std::vector<Rows> before_;  // before each End Week
};

}  // namespace
}  // namespace tb

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tb::Input input(std::as_bytes(std::span(data, size)));
  tb::Weeks weeks;
  weeks.play(input);
  weeks.damage(input);
  weeks.takeAllBack();
  return 0;
}
