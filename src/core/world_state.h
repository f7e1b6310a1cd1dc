#pragma once

// The one game state: a flat set of named variables and record lists, each named after the key under which
// it is saved. Its members come from one table, core/world_variables.def; how each is saved and loaded and
// what a restart does to it stand in the same table (core/variables.h).

#include <cstdint>
#include <string>

#include "core/list.h"
#include "core/news.h"
#include "core/plain_types.h"
#include "core/records/records.h"

namespace tb {

using Int = std::int64_t;
using Real = double;
using Flag = bool;
using String = std::string;
using Image = plist::Data;
using IntList = List<std::int64_t>;
using RealList = List<double>;
using TextList = List<std::string>;

struct WorldState {
#define VARIABLE(Type, key, start, restart, load) Type key = start;
#define RECORDS(Record, key, restart, load) List<Record> key;
#define RUNTIME(Type, name, start, restart) Type name = start;
#include "core/world_variables.def"
};

}  // namespace tb
