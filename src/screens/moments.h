#pragma once

#include <string>
#include <vector>

#include "core/news.h"
#include "screens/view.h"

namespace tb {

// The scene for a kind of news, titled with its stamp. Whether news is a moment is decided by isMoment()
// (week/news_desk.h).
[[nodiscard]] view::Moment momentOf(NewsKind kind, std::string line, std::vector<view::Picture> picture = {});

// The tone of a kind of news.
[[nodiscard]] view::Tone toneOf(NewsKind kind);

}  // namespace tb
