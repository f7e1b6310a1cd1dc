#include "banks/names.h"

#include "banks/names_banks.h"

namespace tb {

namespace {

std::string nameFrom(RandomSource& random, Bank firstNames) {
  const std::string& first = drawRow(random, firstNames);
  return first + " " + drawRow(random, bank::lastNameBank);
}

}  // namespace

std::string inventedName(RandomSource& random) { return nameFrom(random, bank::firstNames); }

std::string inventedName(RandomSource& random, bool isMale) {
  return nameFrom(random, isMale ? bank::maleFirstNames : bank::femaleFirstNames);
}

}  // namespace tb
