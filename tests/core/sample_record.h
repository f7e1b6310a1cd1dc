#pragma once

// Two records with fields of every supported type.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/property_list.h"
#include "core/record_fields.h"

namespace tb {

struct SamplePart {
  std::string role;
  std::int64_t weeks = 0;

  bool operator==(const SamplePart&) const = default;
};
RECORD_FIELDS(SamplePart, role, weeks);

struct SampleRecord {
  std::int64_t filmId = 0;
  double gross = 0;
  bool isReleased = false;
  std::string title;
  plist::Data poster;
  plist::Date premiere;
  std::optional<std::int64_t> sequelOf;
  std::optional<std::string> tagline;
  SamplePart lead;
  std::optional<SamplePart> cameo;
  std::vector<std::int64_t> weeks;
  std::vector<double> earnings;
  std::vector<std::string> genres;
  std::vector<SamplePart> cast;

  bool operator==(const SampleRecord&) const = default;
};
RECORD_FIELDS(SampleRecord, filmId, gross, isReleased, title, poster, premiere, sequelOf, tagline, lead,
              cameo, weeks, earnings, genres, cast);

}  // namespace tb
