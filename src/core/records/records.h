#pragma once

// Every record of the game, one header an area. Field names are the save file's and the rules' at once; a
// comment stands where meaning, unit or a special value does not follow from the name.
//
// Three habits hold everywhere unless a comment says otherwise:
//   - a field whose name speaks of a week holds weekNumberForTracking, which never wraps;
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
