// Used to compare with other property-list readers (tests/core/foreign_readers.py):
//
//   property_list_tool show FILE         prints every value with its path, kind and bits
//   property_list_tool copy FILE NEW     reads the file and writes it again

#include <bit>
#include <cstdio>
#include <format>
#include <fstream>
#include <iterator>
#include <print>
#include <string>
#include <string_view>

#include "core/property_list.h"

namespace tb {
namespace {

Bytes contentOf(const char* path) {
  std::ifstream file(path, std::ios::binary);
  const std::string content{std::istreambuf_iterator<char>(file), {}};
  const auto* first = reinterpret_cast<const std::byte*>(content.data());
  return Bytes(first, first + content.size());
}

bool writeFile(const char* path, const Bytes& bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  return file.good();
}

std::string hex(std::span<const std::byte> bytes) {
  std::string text;
  for (const std::byte byte : bytes) text += std::format("{:02x}", std::to_integer<int>(byte));
  return text;
}

std::string hex(std::string_view text) { return hex(std::as_bytes(std::span(text))); }
std::string hex(double number) { return std::format("{:016x}", std::bit_cast<std::uint64_t>(number)); }

struct Show {
  std::string path;

  void operator()(bool held) const { std::println("{} bool {}", path, held ? 1 : 0); }
  void operator()(std::int64_t held) const { std::println("{} int {}", path, held); }
  void operator()(double held) const { std::println("{} float {}", path, hex(held)); }
  void operator()(const std::string& held) const { std::println("{} str {}", path, hex(held)); }
  void operator()(const plist::Data& held) const { std::println("{} data {}", path, hex(held.bytes)); }
  void operator()(plist::Date held) const { std::println("{} date {}", path, hex(held.seconds)); }
  void operator()(const plist::Array& held) const {
    std::println("{} list {}", path, held.size());
    for (std::size_t index = 0; index < held.size(); ++index) {
      std::visit(Show{std::format("{}/{}", path, index)}, held[index].held);
    }
  }
  void operator()(const plist::Dictionary& held) const {
    std::println("{} dict {}", path, held.size());
    for (const auto& [key, value] : held) std::visit(Show{std::format("{}/{}", path, hex(key))}, value.held);
  }
};

int fail(std::string_view why) {
  std::println(stderr, "{}", why);
  return 1;
}

int show(const Bytes& file) {
  const auto value = plist::read(file);
  if (!value) return fail(plist::describe(value.error()));
  std::visit(Show{}, value->held);
  return 0;
}

int copy(const Bytes& file, const char* to) {
  const auto value = plist::read(file);
  if (!value) return fail(plist::describe(value.error()));
  return writeFile(to, plist::write(*value)) ? 0 : fail("The copy could not be written.");
}

int run(int count, char** arguments) {
  const std::string_view task = count > 1 ? arguments[1] : "";
  if (task == "show" && count == 3) return show(contentOf(arguments[2]));
  if (task == "copy" && count == 4) return copy(contentOf(arguments[2]), arguments[3]);
  return fail("property_list_tool show FILE | copy FILE NEW");
}

}  // namespace
}  // namespace tb

int main(int count, char** arguments) { return tb::run(count, arguments); }
