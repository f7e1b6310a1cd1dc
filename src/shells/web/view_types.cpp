#include "shells/web/view_types.h"

#include <concepts>
#include <cstddef>
#include <format>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "shells/web/view_fields.h"

namespace tb {

namespace {

constexpr std::string_view opening =
    R"(// Written by view_types from the fields of the view vocabulary (src/shells/web/view_fields.h). Do not edit:
// build the target view_types and run it.
)";

// "Choice::Option" becomes ChoiceOption.
std::string typeName(std::string_view name) {
  std::string joined(name);
  if (const std::size_t colons = joined.find("::"); colons != std::string::npos) joined.erase(colons, 2);
  return joined;
}

// Writes each type once, after the types that it uses.
class TypeWriter {
 public:
  template <class T>
  std::string reference() {
    if constexpr (std::is_same_v<T, bool>) {
      return "boolean";
    } else if constexpr (std::is_arithmetic_v<T>) {
      return "number";
    } else if constexpr (std::is_same_v<T, std::string>) {
      return "string";
    } else if constexpr (isVector<T>) {
      return std::format("readonly {}[]", reference<typename T::value_type>());
    } else if constexpr (std::is_same_v<T, view::Node>) {
      return "Node";  // recursive, so it is written last
    } else {
      if (written_.insert(viewName<T>).second) write<T>();
      return typeName(viewName<T>);
    }
  }

  void writeNode() {
    std::string kinds;
    addKinds(kinds, std::type_identity<decltype(view::Node::node)>{});
    text_ += std::format("export type Node ={};\n", kinds);
  }

  [[nodiscard]] const std::string& text() const { return text_; }

 private:
  template <class T>
  void write() {
    if constexpr (std::is_enum_v<T>) {
      std::string words;
      for (int value = 0; !wordOf(static_cast<T>(value)).empty(); ++value) {
        words += std::format("{}\"{}\"", value == 0 ? "" : " | ", wordOf(static_cast<T>(value)));
      }
      text_ += std::format("export type {} = {};\n\n", typeName(viewName<T>), words);
    } else {
      static_assert(RecordType<T>, "a struct of the view vocabulary that view_fields.h does not list");
      std::string fields;
      std::apply([&](const auto&... field) { (addField(fields, field), ...); }, fieldsOf<T>);
      text_ += std::format("export interface {} {{\n{}}}\n\n", typeName(viewName<T>), fields);
    }
  }

  template <class Record, class T>
  void addField(std::string& fields, const RecordField<Record, T>& field) {
    if constexpr (!isOperation<T>) fields += std::format("  readonly {}: {};\n", field.name, reference<T>());
  }

  template <class... Kinds>
  void addKinds(std::string& kinds, std::type_identity<std::variant<Kinds...>>) {
    (addKind<Kinds>(kinds), ...);
  }

  template <class Kind>
  void addKind(std::string& kinds) {
    if constexpr (!std::is_same_v<Kind, view::PagedList>) {
      kinds += std::format("\n  | {{ readonly kind: \"{}\"; readonly content: {} }}", kindOf(viewName<Kind>),
                           reference<Kind>());
    }
  }

  std::set<std::string_view> written_;
  std::string text_{opening};
};

}  // namespace

std::string viewTypes() {
  TypeWriter writer;
  writer.reference<view::Page>();
  writer.writeNode();
  return writer.text();
}

}  // namespace tb
