#pragma once

// The fields of every record, for the save file. Rules include only the record headers.

#include "core/fields/career.h"
#include "core/fields/charts.h"
#include "core/fields/film.h"
#include "core/fields/life.h"
#include "core/fields/payouts.h"
#include "core/fields/platform.h"
#include "core/fields/shark_box.h"
#include "core/fields/social.h"
#include "core/fields/wealth.h"
