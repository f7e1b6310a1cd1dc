// The review summary, by keywords.

#include "film/review_summary.h"

#include <gtest/gtest.h>

#include "tests/record_text.h"
#include "tests/sheet.h"

namespace tb {
namespace {

// Casual and plain, good and bad, with and without topics, on both sides of each limit.
const std::vector<std::vector<std::string>> reviews = {
    {"  Ngl I loved it. ", "", "Lowkey iconic, amazing."},
    {"No cap, fun story."},
    {"The cast ate. Mid plot, fire ending."},
    {"Bop soundtrack, slow drag, bad vibe."},
    {"Hated it, trash, what a waste. Cooked, ngl. Boring, lazy writing, confusing."},
    {"A beautiful, solid piece. Truly excellent acting and gorgeous shots."},
    {"The music is great.", "The plot is predictable."},
    {"The script is bad and the tone is inconsistent."},
    {"Terrible, awful, a pain. The green screen effects and the cgi are a disaster, and the plot holes make "
     "no sense."},
    {"Great, fun, solid."},
    {"Great, fun."},
    {"Great, great, great!"},
    {"Great, fun, solid, bad."},
    {"Great, bad."},
    {"Bad."},
    {"Bad, lazy."},
    {"Bad, lazy, messy."},
    {"It is long, ngl."},
    {"It is long, ngl.", "Npc."},
    {"Gloves, a wasted scoreboard amid wow", "fr", "npc."},
    {"It's great-ish."},
    {},
    {"", " \n\t "}};

TEST(GoldenReviewSummary, SummariesByRegisterMoodAndTopics) {
  test::Sheet sheet("review_summaries");
  for (const auto& each : reviews) {
    for (const std::uint64_t seed : {1, 2}) {
      sheet.text(
          test::textOf(each), [](WorldState&) {},
          [&](Game& game) { return summarizeReviews(game, each, "Salt Road"); }, seed);
    }
  }
  sheet.text(
      "without a title", [](WorldState&) {},
      [&](Game& game) { return summarizeReviews(game, reviews.front()); });
}

}  // namespace
}  // namespace tb
