#include <gtest/gtest.h>

#include "shells/console/text.h"

namespace tb::console {

TEST(ConsoleText, MeasuresColumns) {
  EXPECT_EQ(columnsOf("Zoë"), 3);
  EXPECT_EQ(columnsOf("Zoe\u0308"), 3) << "a combining mark takes no room";
  EXPECT_EQ(columnsOf("ラーメン"), 8);
  EXPECT_EQ(columnsOf("배우"), 4);
  EXPECT_EQ(columnsOf("🎬"), 2);
  EXPECT_EQ(columnsOf("⚡️"), 2) << "wide by itself, so that the selector adds nothing";
  EXPECT_EQ(columnsOf("⚙️"), 2) << "one column without its selector, up to two with it";
  EXPECT_EQ(columnsOf("⚙"), 1);
  EXPECT_EQ(columnsOf("e\u0301\uFE0F"), 2) << "never less than a terminal takes";
  EXPECT_EQ(columnsOf("🇩🇪"), 2);
  EXPECT_EQ(columnsOf("•–…½"), 4);
  EXPECT_EQ(columnsOf("a\x07\u200Bb"), 2);
  EXPECT_EQ(columnsOf("\xFF\xFE"), 2) << "each is shown as a replacement character";
}

TEST(ConsoleText, WrapsLinesAtWords) {
  using Lines = std::vector<std::string>;
  EXPECT_EQ(wrapped("to be or not", 5), (Lines{"to be", "or", "not"}));
  EXPECT_EQ(wrapped("one\n\ntwo", 9), (Lines{"one", "", "two"}));
  EXPECT_EQ(wrapped("", 9), (Lines{""}));
  EXPECT_EQ(wrapped("  a   b  ", 9), (Lines{"a b"}));
  EXPECT_EQ(wrapped("a Rumpelstiltskin b", 8), (Lines{"a", "Rumpelst", "iltskin", "b"}));
  EXPECT_EQ(wrapped("ラーメン屋", 5), (Lines{"ラー", "メン", "屋"}))
      << "a wide character is never cut in half";
  EXPECT_EQ(wrapped("nai\u0308ve", 3), (Lines{"nai\u0308", "ve"})) << "a mark stays with its letter";
  EXPECT_EQ(wrapped("屋屋", 1), (Lines{"屋", "屋"})) << "what cannot fit still gets on";
}

TEST(ConsoleText, RemovesControlSequences) {
  EXPECT_EQ(cleaned("a\x1b[31mred\x1b[0m"), "ared");
  EXPECT_EQ(cleaned("a\x1b]0;title\x07"
                    "b"),
            "a]0;titleb");
  EXPECT_EQ(cleaned("\x1b[A\x1b"), "");
  EXPECT_EQ(cleaned("a\tb\rc\x7f\u0085"), "a bc");
  EXPECT_EQ(cleaned("one\ntwo"), "one\ntwo");
  EXPECT_EQ(cleaned("\u202Eevil\u2066"), "evil");
  EXPECT_EQ(cleaned("\xC3(\xED\xA0\x80"), "\uFFFD(\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(cleaned("Zoë 🎬 ラ"), "Zoë 🎬 ラ");
}

TEST(ConsoleText, CountsPerceivedCharacters) {
  EXPECT_EQ(firstCharacters("Zoë Lark", 3), "Zoë");
  EXPECT_EQ(firstCharacters("e\u0301e\u0301e", 2), "e\u0301e\u0301");
  EXPECT_EQ(firstCharacters("👩\u200D🎤!", 1), "👩\u200D🎤");
  EXPECT_EQ(firstCharacters("ab", 9), "ab");
  EXPECT_EQ(firstCharacters("ab", 0), "");
  EXPECT_EQ(fitted("Metropolitan", 8), "Metro...");
  EXPECT_EQ(fitted("ラーメン屋", 8), "ラー...");
}

}  // namespace tb::console
