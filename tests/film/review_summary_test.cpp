// The paragraph above the reviews, worked out by hand from the words in them.

#include "film/review_summary.h"

#include <gtest/gtest.h>

#include "tests/scratch_game.h"

namespace tb {
namespace {

struct Paragraph {
  std::vector<std::string> reviews;
  // What is drawn, and from how many rows: verdict, balance, consensus, advice.
  std::vector<std::int64_t> rows, draws;
  std::vector<std::string> says;  // in this order, and nothing unfilled
};

std::string summed(const std::vector<std::string>& reviews, const std::optional<std::string>& title,
                   const std::vector<std::int64_t>& rows, const std::vector<std::int64_t>& draws) {
  test::ScratchGame scratch;
  for (std::size_t bank = 0; bank < rows.size(); ++bank) scratch.random.range(rows[bank], draws[bank]);
  return summarizeReviews(scratch.game, reviews, title);
}

const std::vector<std::int64_t> casual = {15, 8, 6, 2};
const std::vector<std::int64_t> formal = {15, 7, 6, 1};
const std::vector<std::int64_t> formalAndBad = {14, 7, 6, 1};

TEST(ReviewSummary, SpeaksTheLanguageOfTheReviewsAndNamesWhatTheyLikeAndWhatNot) {
  const Paragraph paragraphs[] = {
      // ngl and lowkey; loved, iconic, amazing; no topic on either side.
      {{"  Ngl I loved it. ", "", "Lowkey iconic, amazing."},
       casual,
       {0, 3, 0, 0},
       {"\"Salt Road\" is a certified heater.", "Biggest wins: some moments.", "a couple rough spots.",
        "very positive, with confetti. Run it, trust"}},
      // "no cap" is "cap", too; fun.
      {{"No cap, fun story."},
       casual,
       {14, 0, 0, 1},
       {"Plus column: story. Minus column: a couple rough spots.", "So yeah: positive,", "Worth a spin"}},
      // ate, mid; fire against mid; cast and ate, plot and ending: two topics of two words, in their order.
      {{"The cast ate. Mid plot, fire ending."},
       casual,
       {2, 1, 4, 0},
       {"It's a coin toss with", "Love for performances and story, smoke for a couple rough spots."}},
      // bop and vibe; bad.
      {{"Bop soundtrack, slow drag, bad vibe."},
       casual,
       {0, 5, 0, 1},
       {"fumbled it", "What bugged everyone: pacing. What almost saved it: soundtrack.",
        "mixed-to-negative, said with a wince."}},
      // cooked and ngl; the "ate" of hated is no word; lazy writing before the rest.
      {{"Hated it, trash, what a waste. Cooked, ngl. Boring, lazy writing, confusing."},
       casual,
       {12, 3, 1, 0},
       {"took the L", "The rap sheet: writing and pacing.", "story, allegedly.", "Skip it"}},
      // beautiful, solid, excellent; shot, shots and gorgeous before acting.
      {{"A beautiful, solid piece. Truly excellent acting and gorgeous shots."},
       formal,
       {0, 0, 0, 0},
       {"earns widespread praise", "visuals and performances", "a few rough edges.", "very positive by a"}},
      // great; music and plot, one word each; predictable.
      {{"The music is great.", "The plot is predictable."},
       formal,
       {2, 1, 0, 0},
       {"lies in soundtrack and story; its limits show in writing.", "recorded as positive."}},
      {{"It is long."}, formal, {14, 0, 0, 0}, {"Neither enthusiasm", "a few highlights", "at: mixed."}},
      // bad; tone and inconsistent before script, which is a story as well.
      {{"The script is bad and the tone is inconsistent."},
       formalAndBad,
       {1, 6, 2, 0},
       {"falls somewhat short", "Held back by: tone and writing. Helped a little by: story."}},
      // terrible, awful, pain; cgi, effects and green screen before plot holes and no sense.
      {{"Terrible, awful, a pain. The green screen effects and the cgi are a disaster, and the plot holes "
        "make no sense."},
       formalAndBad,
       {13, 0, 5, 0},
       {"Warnings to other viewers", "Complaints about cgi and plot dominate, and mentions of story"}},
  };
  for (const Paragraph& each : paragraphs) {
    const std::string paragraph = summed(each.reviews, "Salt Road", each.rows, each.draws);
    std::size_t place = 0;
    for (const std::string& words : each.says) {
      place = paragraph.find(words, place);
      ASSERT_NE(place, std::string::npos) << words << " is not in its place in: " << paragraph;
    }
    EXPECT_EQ(paragraph.find('{'), std::string::npos) << paragraph;
  }
  EXPECT_TRUE(summed({"It is great."}, std::nullopt, formal, {2, 1, 0, 0}).contains("from this film"));
}

TEST(ReviewSummary, TheLabelTurnsAtItsThresholds) {
  struct Case {
    const char *review, *label;
    std::vector<std::int64_t> rows = formal;
  };
  const Case cases[] = {{"Great, fun, solid.", " very positive "},
                        {"Great, fun.", " positive."},
                        {"Great, great, great!", " positive."},
                        {"Great, fun, solid, bad.", " positive."},
                        {"Great, bad.", ": mixed."},
                        {"Bad.", " mixed-to-negative,", formalAndBad},
                        {"Bad, lazy.", " mixed-to-negative,", formalAndBad},
                        {"Bad, lazy, messy.", " very negative,", formalAndBad}};
  for (const Case& row : cases) {
    const std::string paragraph = summed({row.review}, "It", row.rows, {0, 0, 0, 0});
    EXPECT_TRUE(paragraph.contains(row.label)) << row.review << ": " << paragraph;
  }
}

TEST(ReviewSummary, OnlyWholeWordsCount) {
  // No love in gloves, no waste in wasted, no mid in amid, no w in wow; and a word ends with its review.
  EXPECT_TRUE(summed({"Gloves, a wasted scoreboard amid wow", "fr", "npc."}, "It", casual, {0, 0, 0, 0})
                  .contains("some moments"));
  EXPECT_TRUE(summed({"It's great-ish."}, "It", formal, {0, 0, 0, 0}).contains(" positive"));
}

TEST(ReviewSummary, OneWordOfSlangDoesNotMakeItCasualAndBlankReviewsAreNotEnough) {
  EXPECT_TRUE(summed({"It is long, ngl."}, "It", formal, {0, 1, 0, 0}).contains("a few highlights"));
  EXPECT_TRUE(summed({"It is long, ngl.", "Npc."}, "It", casual, {0, 0, 0, 0}).contains("some moments"));
  for (const std::vector<std::string>& blank : {std::vector<std::string>{}, {"", " \n\t "}}) {
    EXPECT_EQ(summed(blank, "It", {}, {}), "Not enough reviews to generate a summary yet.");
  }
}

}  // namespace
}  // namespace tb
