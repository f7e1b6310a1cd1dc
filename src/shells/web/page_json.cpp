#include "shells/web/page_json.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include "core/stop.h"
#include "shells/web/view_fields.h"

namespace tb {

namespace {

class JsonWriter {
 public:
  explicit JsonWriter(std::string& out) : out_(out) {}

  void write(bool value) { out_ += value ? "true" : "false"; }

  template <class Number>
    requires(std::is_arithmetic_v<Number> && !std::is_same_v<Number, bool>)
  void write(Number value) {
    if constexpr (std::is_floating_point_v<Number>) {
      if (!std::isfinite(value)) value = 0;
    }
    std::array<char, 32> digits;  // the longest double takes 24
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    out_.append(digits.data(), written.ptr);
  }

  void write(std::string_view text) {
    out_ += '"';
    for (const char character : text) escape(character);
    out_ += '"';
  }
  void write(const std::string& text) { write(std::string_view(text)); }

  template <class Enum>
    requires std::is_enum_v<Enum>
  void write(Enum value) {
    write(wordOf(value));
  }

  template <class T>
  void write(const std::vector<T>& list) {
    char before = '[';
    for (const T& element : list) {
      out_ += before;
      write(element);
      before = ',';
    }
    if (list.empty()) out_ += '[';
    out_ += ']';
  }

  void write(const view::Node& node) {
    std::visit([this](const auto& content) { writeNode(content); }, node.node);
  }

  template <class Struct>
    requires std::is_class_v<Struct>
  void write(const Struct& value) {
    static_assert(RecordType<Struct>, "a struct of the view vocabulary that view_fields.h does not list");
    char before = '{';
    forEachField(value, [&](std::string_view name, const auto& field) {
      if constexpr (!isOperation<std::remove_cvref_t<decltype(field)>>) {
        out_ += before;
        write(name);
        out_ += ':';
        write(field);
        before = ',';
      }
    });
    out_ += '}';
  }

 private:
  template <class Content>
  void writeNode(const Content& content) {
    out_ += "{\"kind\":";
    write(kindOf(viewName<Content>));
    out_ += ",\"content\":";
    write(content);
    out_ += '}';
  }

  void writeNode(const view::PagedList&) { stopTheGame("a page that was not laid out"); }

  void escape(char character) {
    switch (character) {
      case '"':
        out_ += "\\\"";
        return;
      case '\\':
        out_ += "\\\\";
        return;
      case '\n':
        out_ += "\\n";
        return;
      default:
        break;
    }
    if (static_cast<unsigned char>(character) >= 0x20) {
      out_ += character;
      return;
    }
    constexpr std::string_view digits = "0123456789abcdef";
    out_ += "\\u00";
    out_ += digits[static_cast<unsigned char>(character) >> 4];
    out_ += digits[static_cast<unsigned char>(character) & 0xF];
  }

  std::string& out_;
};

}  // namespace

std::string pageJson(const view::Page& page) {
  std::string json;
  json.reserve(8192);
  JsonWriter(json).write(page);
  return json;
}

}  // namespace tb
