// The paragraph above the reviews, worked out by hand from the words in them.

#include "film/review_summary.h"

#include <gtest/gtest.h>

#include "tests/scripted_random.h"

namespace tb {
namespace {

using test::ScriptedRandom;

struct Draws {
  std::int64_t verdict;
  std::int64_t balance;
  std::int64_t consensus;
  std::int64_t advice;
};

// How many rows the four banks of a mood hold, in each register.
struct Rows {
  std::int64_t verdict = 15;
  std::int64_t balance;
  std::int64_t consensus = 6;
  std::int64_t advice;
};
constexpr Rows casual = {.balance = 8, .advice = 2};
constexpr Rows formal = {.balance = 7, .advice = 1};

std::string summed(const std::vector<std::string>& reviews, const std::optional<std::string>& title,
                   const Rows& rows, const Draws& draws) {
  ScriptedRandom random;
  random.range(rows.verdict, draws.verdict).range(rows.balance, draws.balance);
  random.range(rows.consensus, draws.consensus).range(rows.advice, draws.advice);
  const std::string paragraph = summarizeReviews(random, reviews, title);
  EXPECT_EQ(random.left(), 0U);
  return paragraph;
}

TEST(ReviewSummary, SpeaksTheLanguageOfReviewsWithSlang) {
  // ngl, lowkey and the w in it; love, loved, iconic, amazing; no topic on either side.
  EXPECT_EQ(
      summed({"  Ngl I loved it. ", "", "Lowkey iconic, amazing."}, "Salt Road", casual, {0, 3, 0, 0}),
      "\"Salt Road\" is a certified heater. Straight up. Biggest wins: some moments. Smallest gripes: a "
      "couple rough spots. Group verdict: very positive, with confetti. Run it, trust — this one’s a "
      "certified rewatch");
  // "no cap" is "cap", too; fun.
  EXPECT_EQ(summed({"No cap, fun story."}, std::nullopt, casual, {14, 0, 0, 1}),
            "Say what you like, this film did its thing, and its thing worked. Plus column: story. Minus "
            "column: a couple rough spots. The plus column's longer. So yeah: positive, and nobody had to be "
            "bribed. Worth a spin, no cap, just don't expect fireworks in every scene.");
  // ate, mid; fire against mid; cast and ate, plot and ending: two topics of two words, in their order.
  EXPECT_EQ(summed({"The cast ate. Mid plot, fire ending."}, "Salt Road", casual, {2, 1, 4, 0}),
            "It's a coin toss with \"Salt Road\", and the coin landed on its edge. Love for performances and "
            "story, smoke for a couple rough spots. Add it up, carry the one, and you get a shrug. Watch it "
            "with a friend you like arguing with.");
  // bop, vibe, the w of slow; bad.
  EXPECT_EQ(summed({"Bop soundtrack, slow drag, bad vibe."}, "Salt Road", casual, {0, 5, 0, 1}),
            "\"Salt Road\" fumbled it, going by the reviews, then picked it up and dropped it again. What "
            "bugged everyone: pacing. What almost saved it: soundtrack. Where it nets out: "
            "mixed-to-negative, said with a wince. Only if "
            "you're curious, and keep the remote close.");
  // The "ate" of hated counts as slang and as a word for performances; lazy writing before the rest.
  EXPECT_EQ(
      summed({"Hated it, trash, what a waste. Cooked. Boring, lazy writing, confusing."}, "Salt Road", casual,
             {12, 3, 1, 0}),
      "\"Salt Road\" took the L, framed it and hung it in the lobby. The rap sheet: writing and pacing. "
      "In its defense: performances and story, allegedly. Even the bots didn't like it. Skip it, touch some "
      "grass, call your mom.");
}

TEST(ReviewSummary, SpeaksFormallyOfReviewsWithout) {
  // beautiful, solid, excellent; shot, shots and gorgeous before acting.
  EXPECT_EQ(
      summed({"A beautiful, solid piece. Truly excellent acting and gorgeous shots."}, "Salt Road", formal,
             {0, 0, 0, 0}),
      "\"Salt Road\" earns widespread praise across the reviews. Particular admiration is reserved for "
      "visuals and performances, and only passing mention is made of a few rough edges. In summary, the "
      "response is very positive by a wide margin. Highly recommended, preferably with the telephone "
      "switched off.");
  // great; music and plot, one word each; predictable.
  EXPECT_EQ(summed({"The music is great.", "The plot is predictable."}, std::nullopt, formal, {2, 1, 0, 0}),
            "Most viewers came away from this film satisfied. Its appeal, according to the reviews, lies in "
            "soundtrack and story; its limits show in writing. The general feeling may be recorded as "
            "positive. Overall: recommended, just keep expectations realistic.");
  EXPECT_EQ(summed({"It is long."}, "Salt Road", formal, {14, 0, 0, 0}),
            "Neither enthusiasm nor disappointment has the upper hand where \"Salt Road\" is concerned. "
            "Reviewers most often praise the a few highlights, while criticizing the a few rough edges. The "
            "consensus lands at: mixed. Prospective viewers may wish to consult their own taste before the "
            "reviews.");
  // bad; tone and inconsistent before script, which is a story as well.
  EXPECT_EQ(summed({"The script is bad and the tone is inconsistent."}, "Salt Road",
                   {.verdict = 14, .balance = 7, .advice = 1}, {1, 6, 2, 0}),
            "\"Salt Road\" falls somewhat short of what its viewers hoped for. Held back by: tone and "
            "writing. Helped a little by: story. The doubters make up the larger party, and the better "
            "organized one. Best approached with patience, or on an evening with nothing else planned.");
  // terrible, awful, pain; plot hole, plot holes and no sense; cgi, effects and green screen.
  EXPECT_EQ(
      summed({"Terrible, awful, a pain. The green screen effects and the cgi are a disaster, and the "
              "plot holes make no sense."},
             "Salt Road", {.verdict = 14, .balance = 7, .advice = 1}, {13, 0, 5, 0}),
      "Warnings to other viewers make up a large part of the response to \"Salt Road\". Complaints "
      "about plot and cgi dominate, and mentions of story are brief. The reviews, read together, amount "
      "to a caution. Viewers are advised to make other arrangements, such as an early night.");
}

TEST(ReviewSummary, TheLabelTurnsAtItsThresholds) {
  struct Case {
    const char* review;
    const char* label;
    std::int64_t verdicts = 15;
  };
  const Case cases[] = {{"Great, fun, solid.", " very positive "},
                        {"Great, fun.", " positive."},
                        {"Great, great, great!", " positive."},
                        {"Great, fun, solid, bad.", " positive."},
                        {"Great, bad.", ": mixed."},
                        {"Bad.", " mixed-to-negative,", 14},
                        {"Bad, lazy.", " mixed-to-negative,", 14},
                        {"Bad, lazy, messy.", " very negative,", 14}};
  for (const Case& row : cases) {
    const std::string paragraph =
        summed({row.review}, "It", {.verdict = row.verdicts, .balance = 7, .advice = 1}, {0, 0, 0, 0});
    EXPECT_TRUE(paragraph.contains(row.label)) << row.review << ": " << paragraph;
  }
}

TEST(ReviewSummary, OneWordOfSlangDoesNotMakeItCasual) {
  EXPECT_TRUE(summed({"It is long, ngl."}, "It", formal, {0, 1, 0, 0}).contains("a few highlights"));
  EXPECT_TRUE(summed({"It is long, ngl.", "Npc."}, "It", casual, {0, 0, 0, 0}).contains("some moments"));
}

TEST(ReviewSummary, BlankReviewsAreNotEnough) {
  ScriptedRandom random;
  const std::vector<std::string> blank = {"", " \n\t "};
  EXPECT_EQ(summarizeReviews(random, blank, "It"), "Not enough reviews to generate a summary yet.");
  EXPECT_EQ(summarizeReviews(random, {}), "Not enough reviews to generate a summary yet.");
}

}  // namespace
}  // namespace tb
