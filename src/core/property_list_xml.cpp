#include "core/property_list_xml.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdlib>
#include <optional>

namespace tb::plist {

namespace {

constexpr std::string_view spaces = " \t\r\n";

std::string_view textOf(std::span<const std::byte> file) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  std::string_view text(reinterpret_cast<const char*>(file.data()), file.size());
  if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
  return text;
}

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(spaces);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(spaces) - first + 1);
}

void appendUtf8(std::string& text, std::uint32_t code) {
  const auto byte = [&text](std::uint32_t value) { text.push_back(static_cast<char>(value)); };
  if (code < 0x80) return byte(code);
  if (code < 0x800) {
    byte(0xC0 | code >> 6);
  } else if (code < 0x10000) {
    byte(0xE0 | code >> 12);
    byte(0x80 | (code >> 6 & 0x3F));
  } else {
    byte(0xF0 | code >> 18);
    byte(0x80 | (code >> 12 & 0x3F));
    byte(0x80 | (code >> 6 & 0x3F));
  }
  byte(0x80 | (code & 0x3F));
}

template <class Number>
std::optional<Number> wholeNumber(std::string_view digits, int base = 10) {
  Number number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number, base);
  if (error != std::errc{} || end != digits.data() + digits.size()) return std::nullopt;
  return number;
}

// Appends what an entity such as "amp" or "#x41" stands for. False for an unknown one.
bool appendEntity(std::string& text, std::string_view name) {
  constexpr std::pair<std::string_view, char> named[] = {
      {"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};
  for (const auto& [known, letter] : named) {
    if (name == known) return text.push_back(letter), true;
  }
  if (!name.starts_with('#')) return false;
  const bool isHexadecimal = name.starts_with("#x");
  const auto code = wholeNumber<std::uint32_t>(name.substr(isHexadecimal ? 2 : 1), isHexadecimal ? 16 : 10);
  if (!code || *code == 0 || *code > 0x10FFFF || (*code >= 0xD800 && *code < 0xE000)) return false;
  appendUtf8(text, *code);
  return true;
}

std::optional<Bytes> decodeBase64(std::string_view text) {
  Bytes bytes;
  bytes.reserve(text.size() / 4 * 3);
  std::uint32_t bits = 0;
  int count = 0;
  for (const char letter : text) {
    if (spaces.contains(letter)) continue;
    if (letter == '=') break;
    std::uint32_t digit = 0;
    if (letter >= 'A' && letter <= 'Z') {
      digit = static_cast<std::uint32_t>(letter - 'A');
    } else if (letter >= 'a' && letter <= 'z') {
      digit = static_cast<std::uint32_t>(letter - 'a' + 26);
    } else if (letter >= '0' && letter <= '9') {
      digit = static_cast<std::uint32_t>(letter - '0' + 52);
    } else if (letter == '+' || letter == '/') {
      digit = letter == '+' ? 62 : 63;
    } else {
      return std::nullopt;
    }
    bits = (bits << 6 | digit) & 0xFFFFFF;
    count += 6;
    if (count < 8) continue;
    count -= 8;
    bytes.push_back(static_cast<std::byte>(bits >> count & 0xFF));
  }
  return bytes;
}

std::optional<Value> readInteger(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  const auto number = wholeNumber<std::int64_t>(text);
  return number ? std::optional(Value{*number}) : std::nullopt;
}

std::optional<Value> readReal(const std::string& text) {
  char* end = nullptr;
  const double number = std::strtod(text.c_str(), &end);
  if (text.empty() || end != text.c_str() + text.size()) return std::nullopt;
  return Value{number};
}

// Such as "2026-11-22T09:30:00Z".
std::optional<Value> readDate(std::string_view text) {
  using namespace std::chrono;
  if (text.size() != 20 || text[10] != 'T' || text[19] != 'Z') return std::nullopt;
  const auto part = [text](std::size_t from, std::size_t size) {
    return wholeNumber<unsigned>(text.substr(from, size)).value_or(9999);
  };
  const year_month_day date{year(static_cast<int>(part(0, 4))), month(part(5, 2)), day(part(8, 2))};
  const unsigned hour = part(11, 2), minute = part(14, 2), second = part(17, 2);
  if (!date.ok() || hour > 23 || minute > 59 || second > 60) return std::nullopt;
  const auto whole = sys_days{date} - sys_days{2001y / January / 1} + hours(hour) + minutes(minute);
  return Value{Date{static_cast<double>(duration_cast<seconds>(whole).count()) + second}};
}

class XmlReader {
 public:
  explicit XmlReader(std::string_view file) : rest_(file) {}

  std::expected<Value, ReadError> root() {
    const std::optional<Tag> outer = openTag();
    if (!outer || outer->name != "plist" || outer->isEmpty)
      return std::unexpected(ReadError::notAPropertyList);
    auto held = value(openTag());
    if (!held) return std::unexpected(error_);
    return *std::move(held);
  }

 private:
  struct Tag {
    std::string_view name;
    bool isEmpty;  // such as <true/>
  };

  // Reads up to the next opening tag; nothing if a closing one or the end of the file comes first.
  std::optional<Tag> openTag() {
    skipToTag();
    if (rest_.empty() || rest_.starts_with("</")) return std::nullopt;
    const std::size_t end = rest_.find('>');
    if (end == std::string_view::npos) return std::nullopt;
    std::string_view tag = rest_.substr(1, end - 1);
    rest_.remove_prefix(end + 1);
    const bool isEmpty = tag.ends_with('/');
    if (isEmpty) tag.remove_suffix(1);
    return Tag{tag.substr(0, tag.find_first_of(spaces)), isEmpty};
  }

  // Skips spaces, comments, declarations and the document type.
  void skipToTag() {
    while (true) {
      rest_.remove_prefix(std::min(rest_.find_first_not_of(spaces), rest_.size()));
      if (rest_.starts_with("<!--")) {
        skipPast("-->");
      } else if (rest_.starts_with("<?")) {
        skipPast("?>");
      } else if (rest_.starts_with("<!")) {
        skipPast(">");
      } else {
        return;
      }
    }
  }

  void skipPast(std::string_view end) {
    const std::size_t at = rest_.find(end);
    rest_.remove_prefix(at == std::string_view::npos ? rest_.size() : at + end.size());
  }

  bool closeTag(std::string_view name) {
    skipToTag();
    if (!rest_.starts_with("</")) return false;
    const std::size_t end = rest_.find('>');
    if (end == std::string_view::npos || trimmed(rest_.substr(2, end - 2)) != name) return false;
    rest_.remove_prefix(end + 1);
    return true;
  }

  // The text up to the closing tag.
  std::optional<std::string> content(const Tag& tag) {
    std::string text;
    if (tag.isEmpty) return text;
    while (!rest_.empty() && !rest_.starts_with("</")) {
      if (!appendPart(text)) return std::nullopt;
    }
    if (!closeTag(tag.name)) return std::nullopt;
    return text;
  }

  bool appendPart(std::string& text) {
    constexpr std::string_view opening = "<![CDATA[", closing = "]]>";
    constexpr std::size_t longestEntity = 10;
    if (rest_.starts_with(opening)) {
      const std::size_t end = rest_.find(closing);
      if (end == std::string_view::npos) return false;
      text += rest_.substr(opening.size(), end - opening.size());
      rest_.remove_prefix(end + closing.size());
      return true;
    }
    if (rest_.starts_with('<')) return false;
    if (rest_.starts_with('&')) {
      const std::size_t end = rest_.substr(0, longestEntity).find(';');
      if (end == std::string_view::npos || !appendEntity(text, rest_.substr(1, end - 1))) return false;
      rest_.remove_prefix(end + 1);
      return true;
    }
    const std::size_t end = std::min(rest_.find_first_of("<&"), rest_.size());
    text += rest_.substr(0, end);
    rest_.remove_prefix(end);
    return true;
  }

  // The value that the tag opens. Without one, error_ says why.
  std::optional<Value> value(const std::optional<Tag>& tag) {
    if (!tag) return fail(ReadError::badObject);
    if (tag->name == "dict" || tag->name == "array") return container(*tag);
    const auto text = content(*tag);
    auto held = text ? plain(tag->name, *text) : std::nullopt;
    return held ? std::move(held) : fail(ReadError::badObject);
  }

  static std::optional<Value> plain(std::string_view name, const std::string& text) {
    const std::string_view word = trimmed(text);
    if (name == "string") return Value{text};
    if (name == "integer") return readInteger(word);
    if (name == "real") return readReal(std::string(word));
    if (name == "true" || name == "false") return Value{name == "true"};
    if (name == "date") return readDate(word);
    if (name != "data") return std::nullopt;
    auto bytes = decodeBase64(word);
    return bytes ? std::optional(Value{Data{*std::move(bytes)}}) : std::nullopt;
  }

  std::optional<Value> container(const Tag& tag) {
    if (depth_ == maximumDepth) return fail(ReadError::tooDeep);
    depth_ += 1;
    auto held = tag.name == "dict" ? dictionary(tag) : array(tag);
    depth_ -= 1;
    return held;
  }

  std::optional<Value> array(const Tag& tag) {
    Array all;
    while (!tag.isEmpty) {
      const auto element = openTag();
      if (!element) break;
      auto held = value(element);
      if (!held) return std::nullopt;
      all.push_back(*std::move(held));
    }
    if (!tag.isEmpty && !closeTag(tag.name)) return fail(ReadError::badObject);
    return Value{std::move(all)};
  }

  std::optional<Value> dictionary(const Tag& tag) {
    Dictionary all;
    while (!tag.isEmpty) {
      const auto key = openTag();
      if (!key) break;
      auto name = key->name == "key" ? content(*key) : std::nullopt;
      if (!name) return fail(ReadError::badText);
      auto held = value(openTag());
      if (!held) return std::nullopt;
      all.emplace_back(*std::move(name), *std::move(held));
    }
    if (!tag.isEmpty && !closeTag(tag.name)) return fail(ReadError::badObject);
    if (namesAKeyTwice(all)) return fail(ReadError::badObject);
    return Value{std::move(all)};
  }

  std::optional<Value> fail(ReadError error) {
    error_ = error;
    return std::nullopt;
  }

  std::string_view rest_;
  std::size_t depth_ = 0;
  ReadError error_ = ReadError::badObject;
};

}  // namespace

bool isXml(std::span<const std::byte> file) {
  const std::string_view text = textOf(file);
  return text.substr(std::min(text.find_first_not_of(spaces), text.size())).starts_with('<');
}

std::expected<Value, ReadError> readXml(std::span<const std::byte> file) {
  return XmlReader(textOf(file)).root();
}

}  // namespace tb::plist
