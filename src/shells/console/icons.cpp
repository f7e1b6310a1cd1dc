#include "shells/console/icons.h"

#include <format>
#include <string_view>
#include <utility>

namespace tb::console {

namespace {

std::string_view glyphOf(view::Icon icon) {
  switch (icon) {
    case view::Icon::none:
      return "";
    case view::Icon::home:
      return "🏠";
    case view::Icon::work:
      return "🎬";
    case view::Icon::social:
      return "💬";
    case view::Icon::life:
    case view::Icon::energy:
      return "⚡️";
    case view::Icon::wealth:
      return "💰";
    case view::Icon::backstage:
      return "B";
    case view::Icon::settings:
      return "⚙️";
    case view::Icon::rose:
      return "🌹";
  }
  std::unreachable();
}

}  // namespace

std::string withGlyph(view::Icon icon, const std::string& words) {
  const std::string_view glyph = glyphOf(icon);
  return glyph.empty() ? words : std::format("{} {}", glyph, words);
}

}  // namespace tb::console
