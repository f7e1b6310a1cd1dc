#pragma once

#include <string>
#include <vector>

#include "core/news.h"
#include "screens/view.h"

namespace tb {

// The scene for news of that kind, under its stamp. Whether the news is a moment is for the news desk to say
// (week/news_desk.h).
[[nodiscard]] view::Moment momentOf(NewsKind kind, std::string line, std::vector<view::Picture> picture = {});

// How news of that kind is tinted.
[[nodiscard]] view::Tone toneOf(NewsKind kind);

}  // namespace tb
