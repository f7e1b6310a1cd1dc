// Parses arbitrary bytes as a property list: as a value, as records with fields of every kind, and as plain
// lists. Successful results are written and read again and must be equal. Compares files instead of values,
// so that NaN is equal to itself.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "core/property_list.h"
#include "core/record_codec.h"
#include "tests/core/sample_record.h"

namespace tb {
namespace {

void expect(bool holds) {
  if (!holds) std::abort();
}

// The written file can be smaller than the input (shorter references), so that its repetitions exceed the
// reader's limit. That requires a value of more than 16 MiB.
void fuzzValue(std::span<const std::byte> file) {
  const auto value = plist::read(file);
  if (!value) {
    expect(!plist::describe(value.error()).empty());
    return;
  }
  const Bytes written = plist::write(*value);
  const auto again = plist::read(written);
  if (again) {
    expect(plist::write(*again) == written);
  } else {
    expect(again.error() == plist::ReadError::tooMuchWork);
  }
}

void fuzzRecords(std::span<const std::byte> file) {
  const auto records = decodeRecords<SampleRecord>(file);
  if (!records) {
    expect(!describe(records.error()).empty());
    return;
  }
  const Bytes encoded = encodeRecords<SampleRecord>(records->begin(), records->end());
  const auto again = decodeRecords<SampleRecord>(encoded);
  expect(again && encodeRecords<SampleRecord>(again->begin(), again->end()) == encoded);
}

template <PlainType T>
void fuzzValues(std::span<const std::byte> file) {
  const auto values = decodeValues<T>(file);
  if (!values) return;
  const Bytes encoded = encodeValues<T>(values->begin(), values->end());
  const auto again = decodeValues<T>(encoded);
  expect(again && encodeValues<T>(again->begin(), again->end()) == encoded);
}

}  // namespace
}  // namespace tb

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto file = std::as_bytes(std::span(data, size));
  tb::fuzzValue(file);
  tb::fuzzRecords(file);
  tb::fuzzValues<std::int64_t>(file);
  tb::fuzzValues<double>(file);
  tb::fuzzValues<std::string>(file);
  tb::fuzzValues<tb::plist::Data>(file);
  tb::fuzzValues<tb::plist::Date>(file);
  return 0;
}
