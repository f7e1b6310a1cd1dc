#pragma once

// All records, one header per area. Field names are the names in the save file. A field has a comment when
// its name does not say its meaning, unit or special values.
//
// Unless a comment says otherwise:
//   - a field named after a week holds weekNumberForTracking, which never wraps;
//   - flags are the integers 0 and 1;
//   - money is in dollars, a rate or share is a fraction (0.01 is 1 %).

#include "core/records/career.h"
#include "core/records/charts.h"
#include "core/records/film.h"
#include "core/records/life.h"
#include "core/records/payouts.h"
#include "core/records/platform.h"
#include "core/records/shark_box.h"
#include "core/records/social.h"
#include "core/records/wealth.h"
