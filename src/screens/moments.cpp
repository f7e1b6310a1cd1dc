#include "screens/moments.h"

#include <utility>

#include "week/news_desk.h"

namespace tb {

using namespace view;

namespace {

Moment::Scene sceneOf(NewsKind kind) {
  switch (kind) {
    case NewsKind::offer:
      return Moment::Scene::deal;
    case NewsKind::match:
    case NewsKind::wedding:
    case NewsKind::birth:
      return Moment::Scene::glow;
    case NewsKind::breakup:
      return Moment::Scene::tabloid;
    case NewsKind::opening:
    case NewsKind::premiere:
      return Moment::Scene::curtain;
    default:
      return Moment::Scene::marquee;
  }
}

}  // namespace

Moment momentOf(NewsKind kind, std::string line, std::vector<Picture> picture) {
  return {.scene = sceneOf(kind),
          .title = std::string(newsRule(kind).stamp),
          .line = std::move(line),
          .picture = std::move(picture)};
}

Tone toneOf(NewsKind kind) {
  switch (newsRule(kind).mood) {
    case NewsMood::good:
      return Tone::good;
    case NewsMood::promising:
      return Tone::accent;
    case NewsMood::plain:
      return Tone::plain;
    case NewsMood::bad:
      return Tone::warning;
    case NewsMood::quiet:
      return Tone::quiet;
  }
  std::unreachable();
}

}  // namespace tb
