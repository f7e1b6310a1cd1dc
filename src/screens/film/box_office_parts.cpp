#include "screens/film/box_office_parts.h"

#include <format>

#include "film/box_office_tables.h"

namespace tb {

std::string returnText(double gross, double budget) {
  return budget > 0 ? std::format("({:.0f}% RETURN)", returnOf(gross, budget)) : "";
}

}  // namespace tb
