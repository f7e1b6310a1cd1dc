#pragma once

// The game state: a flat struct of variables and record lists, each named after its key in the store. The
// members are generated from core/world_variables.def, which also says how each is loaded and restarted
// (core/variables.h).

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
#define VARIABLE(Type, key, start, restart, load, ...) Type key = start;
#define RECORDS(Record, key, restart, load, ...) List<Record> key;
#define RUNTIME(Type, name, start, restart) Type name = start;
#include "core/world_variables.def"
};

}  // namespace tb
