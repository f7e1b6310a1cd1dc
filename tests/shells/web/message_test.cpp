#include "shells/web/message.h"

#include <gtest/gtest.h>

namespace tb {
namespace {

Bytes bytesOf(std::string_view text) {
  const auto raw = std::as_bytes(std::span(text));
  return {raw.begin(), raw.end()};
}

TEST(WebMessage, ReadsPieces) {
  MessageWriter writer;
  writer.number(2);
  for (const std::string_view key : {"saveAllFilmList", "myName"}) {
    writer.text(key);
    writer.number(static_cast<std::uint32_t>(Shape::recordList));
    writer.wideNumber(-3);
    writer.bytes(bytesOf(key));
  }
  const auto pieces = readPieces(writer.message()).value();
  ASSERT_EQ(pieces.size(), 2u);
  EXPECT_EQ(pieces[1].key, "myName");
  EXPECT_EQ(pieces[1].shape, Shape::recordList);
  EXPECT_EQ(pieces[1].piece, -3);
  EXPECT_EQ(pieces[1].bytes, bytesOf("myName"));
}

TEST(WebMessage, WritesChangesInOrder) {
  const std::vector<StoreChange> changes = {
      {.kind = StoreChange::Kind::dropAll},
      {.kind = StoreChange::Kind::put,
       .stored = {
           .key = "ключ", .shape = Shape::plainList, .piece = std::int64_t{1} << 40, .bytes = bytesOf("x")}}};
  const Bytes message = writeChanges(changes);
  MessageReader reader(message);
  EXPECT_EQ(reader.number(), 2u);
  EXPECT_EQ(reader.number(), 3u);  // dropAll, as web/src/runtime/pieces.ts counts them
  reader.text(), reader.number(), reader.wideNumber(), reader.bytes();
  EXPECT_EQ(reader.number(), 0u);
  EXPECT_EQ(reader.text(), "ключ");
  EXPECT_EQ(reader.number(), static_cast<std::uint32_t>(Shape::plainList));
  EXPECT_EQ(reader.wideNumber(), std::int64_t{1} << 40);
  EXPECT_EQ(reader.bytes(), bytesOf("x"));
}

TEST(WebMessage, ReadsTheLocale) {
  MessageWriter writer;
  for (const std::string_view text : {"€", "0", "\u00A0", ",", ".", "−"}) writer.text(text);
  for (int month = 1; month <= 12; ++month) writer.text("month " + std::to_string(month));
  for (int month = 1; month <= 12; ++month) writer.text("MONTH " + std::to_string(month));
  const Locale locale = readLocale(writer.message()).value();
  EXPECT_EQ(locale.currencySymbol, "€");
  EXPECT_FALSE(locale.currencyBeforeAmount);
  EXPECT_EQ(locale.currencyGap, "\u00A0");
  EXPECT_EQ(locale.groupSeparator, ".");
  EXPECT_EQ(locale.minusSign, "−");
  EXPECT_EQ(locale.months[11], "month 12");
  EXPECT_EQ(locale.monthCapitals[0], "MONTH 1");
}

}  // namespace
}  // namespace tb
