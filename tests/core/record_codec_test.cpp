#include "core/record_codec.h"

#include <deque>
#include <gtest/gtest.h>
#include <limits>

#include "tests/core/property_list_file.h"
#include "tests/core/sample_record.h"

namespace tb {

// A recursive record type, for files with cycles.
struct Troupe {
  std::int64_t players = 0;
  std::vector<Troupe> guests;
};
RECORD_FIELDS(Troupe, players, guests);

namespace {

using plist::Array;
using plist::Data;
using plist::Date;
using plist::Dictionary;
using plist::ReadError;
using plist::Value;

std::vector<SampleRecord> samples() {
  SampleRecord full{.filmId = -5,
                    .gross = 1e9,
                    .isReleased = true,
                    .title = "Ça ira 🎬",
                    .poster = {Bytes(40, std::byte{3})},
                    .premiere = {725'846'400.5},
                    .sequelOf = 4,
                    .tagline = "",
                    .lead = {"hero", 12},
                    .cameo = SamplePart{"herself", 1},
                    .weeks = {1, 2, 300},
                    .earnings = {0.5, 1e12},
                    .genres = {"Drama", "Drame à clef"},
                    .cast = {{"a", 1}, {"b", 2}}};
  return {SampleRecord{}, full, SampleRecord{}, full};
}

template <RecordType Record = SampleRecord>
Bytes encode(const std::vector<Record>& records) {
  return encodeRecords<Record>(records.begin(), records.end());
}

Bytes partsFile(std::vector<Dictionary> parts) {
  Array array;
  for (Dictionary& part : parts) array.push_back(Value{std::move(part)});
  return plist::write(Value{std::move(array)});
}

using Parts = std::vector<SamplePart>;
using enum DecodeError::Kind;

TEST(RecordCodec, RoundTripsEveryKindOfField) {
  EXPECT_EQ(decodeRecords<SampleRecord>(encode(samples())), samples());
  EXPECT_EQ(decodeRecords<SampleRecord>(encode<SampleRecord>({})), std::vector<SampleRecord>{});
}

TEST(RecordCodec, ReadsLongRepetitiveLists) {
  SampleRecord record;
  record.title = std::string(500, 't');
  const std::vector<SampleRecord> list(52'000, record);
  const auto read = decodeRecords<SampleRecord>(encode(list));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->size(), list.size());
  EXPECT_EQ(read->back(), record);
}

TEST(RecordCodec, PlainListsAreArrays) {
  const std::deque<std::string> lines{"one", "two", "one"};
  const Bytes file = encodeValues<std::string>(lines.begin(), lines.end());
  EXPECT_EQ(plist::read(file), (Value{Array{Value{"one"}, Value{"two"}, Value{"one"}}}));
  EXPECT_EQ(decodeValues<std::string>(file), (std::vector<std::string>{"one", "two", "one"}));
  EXPECT_EQ(decodeValues<double>(plist::write(Value{Array{Value{std::int64_t{1}}, Value{0.5}}})),
            (std::vector<double>{1, 0.5}));
  EXPECT_EQ(decodeValues<std::int64_t>(file), std::unexpected(DecodeError{.kind = wrongKind}));
}

TEST(RecordCodec, ReadsListsWithExtraOrMovedKeys) {
  const Value one{std::int64_t{1}};
  EXPECT_EQ(decodeRecords<SamplePart>(partsFile({{{"role", Value{"a"}}, {"weeks", one}},
                                                 {{"weeks", one}, {"pay", Value{2.5}}, {"role", Value{"b"}}},
                                                 {{"rôle", one}, {"role", Value{"c"}}, {"weeks", one}}})),
            (Parts{{"a", 1}, {"b", 1}, {"c", 1}}));
}

// So a field that is added later empties nobody's list.
TEST(RecordCodec, GivesMissingFieldsTheirStartValue) {
  const Value text{"a"};
  EXPECT_EQ(decodeRecords<SamplePart>(partsFile({{{"role", text}}, {}})), (Parts{{"a", 0}, {}}));
}

TEST(RecordCodec, ReadsTheOthersAroundUnreadElements) {
  const Value one{std::int64_t{1}};
  const auto part = [&](const char* role) {
    return Value{Dictionary{{"role", Value{role}}, {"weeks", one}}};
  };
  const Value bad{Dictionary{{"role", one}, {"weeks", one}}};
  const Bytes file = plist::write(Value{Array{part("a"), bad, part("b"), one, part("c")}});
  Parts parts;
  const auto unread = decodeList(file, typeOf<SamplePart>, detail::vectorElements<SamplePart>.append, &parts);
  ASSERT_TRUE(unread);
  ASSERT_EQ(unread->size(), 2u);
  EXPECT_EQ((*unread)[0].index, 1u);
  EXPECT_EQ((*unread)[1].index, 3u);
  ASSERT_EQ(parts.size(), 5u);
  EXPECT_EQ(parts[2].role + parts[4].role, "bc");
  EXPECT_EQ(elementsIn(file), 5u);
}

TEST(RecordCodec, RejectsWrongKinds) {
  const Value one{std::int64_t{1}};
  const Dictionary good{{"role", Value{"a"}}, {"weeks", one}};
  EXPECT_EQ(decodeRecords<SamplePart>(partsFile({good, {{"role", one}, {"weeks", one}}})),
            std::unexpected(DecodeError{.kind = wrongKind, .field = "role"}));
  EXPECT_EQ(decodeRecords<SamplePart>(plist::write(Value{Array{Value{good}, one}})),
            std::unexpected(DecodeError{.kind = wrongKind}));
  EXPECT_EQ(decodeRecords<SamplePart>(plist::write(Value{good})),
            std::unexpected(DecodeError{.kind = wrongKind}));
  EXPECT_EQ(decodeRecords<SamplePart>({}), std::unexpected(DecodeError{}));
}

TEST(RecordCodec, RejectsHostileFiles) {
  using test::object;
  const auto decode = [](std::vector<std::string> objects) {
    return decodeRecords<SamplePart>(test::HandMadeFile{std::move(objects)}.bytes());
  };
  const auto refused = [](ReadError error) { return std::unexpected(DecodeError{.readError = error}); };
  const std::string role = "Trole", weeks = "Uweeks", one = object({0x10, 1});
  EXPECT_EQ(decode({object({0xA1, 9})}), refused(ReadError::badReference));
  EXPECT_EQ(decode({object({0xA1, 1}), object({0xD1, 2, 2}), one}), refused(ReadError::badText));
  EXPECT_EQ(decode({object({0xA1, 1}), object({0xD3, 2, 2, 3, 4, 4, 4}), role, weeks, one}),
            refused(ReadError::badObject));
  EXPECT_EQ(decode({object({0xA1, 1}), object({0xD2, 2, 3, 9, 4}), role, weeks, one}),
            refused(ReadError::badReference));

  const auto circle = decodeRecords<Troupe>(test::HandMadeFile{
      {object({0xA1, 1}), object({0xD2, 2, 3, 4, 0}), "Wplayers", "Vguests",
       one}}.bytes());
  ASSERT_FALSE(circle);
  EXPECT_EQ(circle.error(), DecodeError{.readError = ReadError::tooDeep});

  // A huge record with many references to it, alternating with another record.
  std::string pairs = object({0xAF, 0x11, 0xFF, 0xFF});
  for (int index = 0; index < 0xFFFF; ++index) pairs.push_back(static_cast<char>(1 + index % 2));
  std::string huge =
      object({0xDF, 0x11, 0x40, 0x00, 3, 4}) + std::string(0x4000 - 2, 5) + std::string(0x4000, 3);
  std::string other = huge;
  std::swap(other[4], other[5]);
  huge[4 + 0x4000 + 1] = 6;
  other[4 + 0x4000] = 6;
  EXPECT_EQ(decodeRecords<SamplePart>(
                test::HandMadeFile{.objects = {pairs, huge, other, role, weeks, "Qx", one}, .offsetSize = 4}
                    .bytes()),
            refused(ReadError::tooMuchWork));
}

TEST(RecordCodec, SurvivesTruncationAndFlippedBits) {
  const Bytes file = encode(samples());
  for (std::size_t size = 0; size < file.size(); ++size) {
    EXPECT_FALSE(decodeRecords<SampleRecord>(std::span(file).first(size))) << size;
  }
  std::size_t refused = 0;
  for (std::size_t bit = 0; bit < 8 * file.size(); ++bit) {
    Bytes changed = file;
    changed[bit / 8] ^= std::byte{1} << bit % 8;
    refused += !decodeRecords<SampleRecord>(changed);
  }
  EXPECT_GT(refused, file.size());
}

TEST(ValueConversion, ConvertsNumbersWithoutLoss) {
  const Value three{std::int64_t{3}}, threePointZero{3.0}, half{0.5}, yes{true};
  EXPECT_EQ(valueAs<double>(three), 3.0);
  EXPECT_EQ(valueAs<std::int64_t>(threePointZero), 3);
  EXPECT_EQ(valueAs<std::int64_t>(half), std::nullopt);
  EXPECT_EQ(valueAs<std::int64_t>(Value{-0x1p63}), std::numeric_limits<std::int64_t>::min());
  for (const double outside : {0x1p63, -0x1.0000000000001p63, std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(valueAs<std::int64_t>(Value{outside}), std::nullopt);
  }
  EXPECT_EQ(valueAs<bool>(Value{std::int64_t{0}}), false);
  EXPECT_EQ(valueAs<bool>(Value{1.0}), true);
  EXPECT_EQ(valueAs<bool>(three), std::nullopt);
  EXPECT_EQ(valueAs<bool>(half), std::nullopt);
  EXPECT_EQ(valueAs<std::int64_t>(yes), 1);
  EXPECT_EQ(valueAs<double>(yes), std::nullopt);
}

TEST(ValueConversion, RejectsOtherKinds) {
  EXPECT_EQ(valueAs<std::string>(toValue(std::string("3"))), "3");
  EXPECT_EQ(valueAs<Data>(toValue(Data{Bytes(2)})), Data{Bytes(2)});
  EXPECT_EQ(valueAs<Date>(toValue(Date{2})), Date{2});
  EXPECT_EQ(valueAs<std::int64_t>(toValue(std::string("3"))), std::nullopt);
  EXPECT_EQ(valueAs<std::string>(toValue(std::int64_t{3})), std::nullopt);
  EXPECT_EQ(valueAs<double>(toValue(Date{2})), std::nullopt);
  EXPECT_EQ(valueAs<Data>(Value{Array{}}), std::nullopt);
}

}  // namespace
}  // namespace tb
