#include "core/property_list.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "tests/core/property_list_file.h"

namespace tb {
namespace {

using plist::Array;
using plist::Data;
using plist::Date;
using plist::Dictionary;
using plist::ReadError;
using plist::Value;
using test::HandMadeFile;
using test::object;

using namespace std::string_literals;

std::expected<Value, ReadError> readObjects(std::vector<std::string> objects) {
  return plist::read(HandMadeFile{std::move(objects)}.bytes());
}

auto refused(ReadError error) { return std::unexpected(error); }

Value text(std::string held) { return Value{std::move(held)}; }
Value integer(std::int64_t held) { return Value{held}; }

// Values of every kind, with numbers and counts on both sides of every width limit.
Value everything() {
  Array integers;
  for (const std::int64_t edge : {std::int64_t{0}, std::int64_t{0xFF}, std::int64_t{0xFFFF},
                                  std::int64_t{0xFFFFFFFF}, std::numeric_limits<std::int64_t>::max() - 1}) {
    integers.push_back(integer(edge));
    integers.push_back(integer(edge + 1));
  }
  for (const std::int64_t negative :
       {std::int64_t{-1}, std::int64_t{-256}, std::numeric_limits<std::int64_t>::min()}) {
    integers.push_back(integer(negative));
  }
  Array sized;
  for (const std::size_t count : {0, 1, 14, 15, 255, 256, 65536}) {
    sized.push_back(text(std::string(count, 'x')));
    sized.push_back(text(std::string(count, 'x') + "é"));
    sized.push_back(Value{Data{Bytes(count, std::byte{7})}});
    sized.push_back(Value{Array(count, Value{true})});
  }
  Dictionary names;
  for (int index = 0; index < 300; ++index)
    names.emplace_back("key " + std::to_string(index), integer(index));
  return Value{Dictionary{
      {"booleans", Value{Array{Value{true}, Value{false}}}},
      {"integers", Value{std::move(integers)}},
      {"reals", Value{Array{Value{0.0}, Value{-0.0}, Value{0.1}, Value{3.0}, Value{-1e300}, Value{5e-324},
                            Value{std::numeric_limits<double>::infinity()}}}},
      {"dates", Value{Array{Value{Date{0}}, Value{Date{-1.5}}, Value{Date{725'846'400.25}}}}},
      {"sized", Value{std::move(sized)}},
      {"names", Value{std::move(names)}},
      {"a é 🎬 key", text("naïve 東京 🎬\0 end"s)},
      {"", Value{Array{Value{Array{}}, Value{Dictionary{}}}}},
  }};
}

TEST(PropertyList, RoundTripsEveryKindAndWidth) {
  const Value value = everything();
  const auto read = plist::read(plist::write(value));
  ASSERT_TRUE(read);
  EXPECT_EQ(*read, value);
  const auto* reals = read->find("reals")->as<Array>();
  EXPECT_TRUE(std::signbit(*(*reals)[1].as<double>()));
}

TEST(PropertyList, StoresRepeatedValuesOnce) {
  const Value once{
      Array{text(std::string(500, 'a')), text("é"), integer(70'000), Value{0.1}, Value{Data{Bytes(300)}}}};
  const Value often{Array(100, once)};
  // A container of five references takes 6 bytes, its offset 2, and the reference to it 1.
  EXPECT_LE(plist::write(often).size(), plist::write(once).size() + 100 * 9 + 20);
}

TEST(PropertyList, ReplacesIllFormedText) {
  const auto written = [](std::string held) {
    return *plist::read(plist::write(text(std::move(held))))->as<std::string>();
  };
  EXPECT_EQ(written("a\x80z"), "a\uFFFDz");
  EXPECT_EQ(written("\xE2\x82"), "\uFFFD");  // truncated: one for the sequence
  EXPECT_EQ(written("\xF0\x9F\x8Ez"), "\uFFFDz");
  EXPECT_EQ(written("\xC0\xAF"), "\uFFFD\uFFFD");            // an overlong slash
  EXPECT_EQ(written("\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD");  // a surrogate
  EXPECT_EQ(written("\xF4\x90\x80\x80"), "\uFFFD\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(written("\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"),
            "\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF");
}

TEST(PropertyList, ReadsFormsOfOtherWriters) {
  EXPECT_EQ(readObjects({object({0x22, 0x3F, 0xC0, 0, 0})}), Value{1.5});
  const std::string zeros(8, '\0'), ones(8, '\xFF');
  EXPECT_EQ(readObjects({"\x14" + zeros + object({0x7F}) + ones.substr(1)}),
            integer(std::numeric_limits<std::int64_t>::max()));
  EXPECT_EQ(readObjects({"\x14" + ones + ones.substr(1) + "\xFE"}), integer(-2));
  // A small count as an integer object of each width.
  EXPECT_EQ(readObjects({object({0x5F, 0x10, 1, 'a'})}), text("a"));
  EXPECT_EQ(readObjects({object({0x5F, 0x11, 0, 1, 'a'})}), text("a"));
  EXPECT_EQ(readObjects({object({0x5F, 0x12, 0, 0, 0, 1, 'a'})}), text("a"));
  EXPECT_EQ(readObjects({object({0x5F, 0x13, 0, 0, 0, 0, 0, 0, 0, 1, 'a'})}), text("a"));
  EXPECT_EQ(readObjects({object({0x62, 0xD8, 0x3C, 0xDF, 0xAC})}), text("🎬"));
}

TEST(PropertyList, ReadsAllSizesOfOffsetsAndReferences) {
  for (std::size_t size = 1; size <= 8; ++size) {
    HandMadeFile file{.offsetSize = size, .referenceSize = size};
    const auto to = [&](std::uint64_t reference) { return HandMadeFile::number(reference, size); };
    file.objects = {"\xD1" + to(1) + to(2), "Qa", "\xA2" + to(1) + to(3), object({0x10, 5})};
    EXPECT_EQ(plist::read(file.bytes()), (Value{Dictionary{{"a", Value{Array{text("a"), integer(5)}}}}}))
        << size;
  }
}

TEST(PropertyList, RejectsInvalidText) {
  for (const std::string& bad :
       {object({0x51, 0x80}), object({0x61, 0xD8, 0x3C}), object({0x61, 0xDF, 0xAC}),
        object({0x62, 0xD8, 0x3C, 0xD8, 0x3C}), object({0x62, 0xD8, 0x3C, 0, 'a'})}) {
    EXPECT_EQ(readObjects({bad}), refused(ReadError::badText));
  }
  EXPECT_EQ(readObjects({object({0xD1, 1, 1}), object({0x10, 1})}), refused(ReadError::badText));
}

TEST(PropertyList, RejectsUnknownMarkersAndWidths) {
  for (const int marker : {0x00, 0x01, 0x07, 0x0A, 0x0F, 0x20, 0x21, 0x24, 0x2F, 0x30,
                           0x32, 0x34, 0x70, 0x71, 0x80, 0x90, 0xB0, 0xC1, 0xE0, 0xF0}) {
    EXPECT_EQ(readObjects({object({marker}) + std::string(40, '\0')}), refused(ReadError::badObject))
        << marker;
  }
  const std::string zeros(8, '\0'), ones(8, '\xFF');
  for (const std::string& number :
       {"\x14" + zeros + ones, "\x14" + ones + zeros, "\x15" + std::string(32, '\0')}) {
    EXPECT_EQ(readObjects({number}), refused(ReadError::badObject));
  }
}

TEST(PropertyList, ChecksCounts) {
  for (const int kind : {0x40, 0x50, 0x60, 0xA0, 0xD0}) {
    const int counted = kind | 0x0F;
    std::vector<std::string> all = {object({kind | 2}), object({counted}), object({counted, 0x11, 0}),
                                    object({counted, 0x14}) + std::string(16, '\0'),
                                    object({counted, 0x51, 0})};
    for (const std::uint64_t huge : {std::uint64_t{100}, std::uint64_t{1} << 32, std::uint64_t{1} << 62,
                                     (std::uint64_t{1} << 63) + 1, ~std::uint64_t{0}}) {
      all.push_back(object({counted, 0x13}) + HandMadeFile::number(huge, 8));
    }
    for (const std::string& each : all) EXPECT_EQ(readObjects({each}), refused(ReadError::badObject));
  }
}

TEST(PropertyList, RejectsBadTrailers) {
  const HandMadeFile good{{"Qa"}};
  const Bytes file = good.bytes();
  ASSERT_TRUE(plist::read(file));
  const auto with = [&](std::size_t at, std::uint64_t value, std::size_t size) {
    Bytes changed = file;
    const Bytes number = HandMadeFile::toBytes(HandMadeFile::number(value, size));
    std::ranges::copy(number, changed.end() - 32 + static_cast<std::ptrdiff_t>(at));
    return plist::read(changed);
  };
  const auto badTrailer = refused(ReadError::badTrailer);
  for (const std::uint64_t size : {0, 9, 255}) {
    EXPECT_EQ(with(6, size, 1), badTrailer);
    EXPECT_EQ(with(7, size, 1), badTrailer);
  }
  for (const std::uint64_t wrong :
       {std::uint64_t{0}, std::uint64_t{2}, std::uint64_t{1} << 63, ~std::uint64_t{0}}) {
    EXPECT_EQ(with(8, wrong, 8), badTrailer);
  }
  EXPECT_EQ(with(16, 1, 8), badTrailer);
  for (const std::uint64_t wrong :
       {std::uint64_t{0}, std::uint64_t{7}, std::uint64_t{12}, ~std::uint64_t{0}}) {
    EXPECT_EQ(with(24, wrong, 8), badTrailer);
  }
  EXPECT_EQ(plist::read({}), refused(ReadError::notAPropertyList));
  EXPECT_EQ(plist::read(HandMadeFile::toBytes("bplist01" + std::string(40, '\0'))),
            refused(ReadError::notAPropertyList));
}

TEST(PropertyList, RejectsCyclesAndMissingObjects) {
  EXPECT_EQ(readObjects({object({0xA1, 0})}), refused(ReadError::badReference));
  EXPECT_EQ(readObjects({object({0xA1, 1}), object({0xD1, 2, 0}), "Qa"}), refused(ReadError::badReference));
  EXPECT_EQ(readObjects({object({0xA1, 1})}), refused(ReadError::badReference));
  EXPECT_EQ(readObjects({object({0xD1, 9, 0})}), refused(ReadError::badReference));
  HandMadeFile wide{.objects = {"\xA1" + std::string(8, '\xFF')}, .referenceSize = 8};
  EXPECT_EQ(plist::read(wide.bytes()), refused(ReadError::badReference));
}

TEST(PropertyList, RejectsDuplicateKeys) {
  EXPECT_EQ(readObjects({object({0xD2, 1, 1, 2, 2}), "Qa", "Qb"}), refused(ReadError::badObject));
  EXPECT_EQ(readObjects({object({0xD2, 1, 2, 1, 1}), "Qa", object({0x61, 0, 'a'})}),
            refused(ReadError::badObject));
}

TEST(PropertyList, LimitsNesting) {
  const auto nested = [](std::size_t depth) {
    Value value{Array{}};
    for (std::size_t level = 1; level < depth; ++level) value = Value{Array{std::move(value)}};
    return value;
  };
  EXPECT_EQ(plist::read(plist::write(nested(plist::maximumDepth))), nested(plist::maximumDepth));
  EXPECT_EQ(plist::read(plist::write(nested(plist::maximumDepth + 1))), refused(ReadError::tooDeep));
}

TEST(PropertyList, LimitsMemory) {
  std::vector<std::string> laughs;  // thirty levels with ten references each
  for (int level = 1; level <= 30; ++level)
    laughs.push_back("\xAA" + std::string(10, static_cast<char>(level)));
  laughs.push_back("Qa");
  EXPECT_EQ(readObjects(laughs), refused(ReadError::tooMuchWork));

  const std::string longData =
      object({0x4F, 0x12}) + HandMadeFile::number(1'000'000, 4) + std::string(1'000'000, 'x');
  HandMadeFile copies{.objects = {object({0xAF, 0x11, 1, 0}) + std::string(256, '\1'), longData},
                      .offsetSize = 4};
  EXPECT_EQ(plist::read(copies.bytes()), refused(ReadError::tooMuchWork));
}

TEST(PropertyList, SurvivesAnyFlippedBit) {
  const Bytes file = plist::write(Value{Dictionary{{"a", Value{Array{integer(1), Value{2.5}, Value{true}}}},
                                                   {"b", text("né")},
                                                   {"c", Value{Data{Bytes(20)}}}}});
  std::size_t refused = 0;
  for (std::size_t bit = 0; bit < 8 * file.size(); ++bit) {
    Bytes changed = file;
    changed[bit / 8] ^= std::byte{1} << bit % 8;
    const auto read = plist::read(changed);
    refused += !read;
    if (read) EXPECT_EQ(plist::write(*plist::read(plist::write(*read))), plist::write(*read)) << bit;
  }
  EXPECT_GT(refused, file.size());
}

}  // namespace
}  // namespace tb
