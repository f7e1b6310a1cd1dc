#include "banks/names.h"

#include "banks/banks.h"

namespace tb {

namespace {

std::string nameFrom(RandomSource& random, Bank firstNames) {
  const std::string& first = drawRow(random, firstNames);
  return first + " " + drawRow(random, Bank::lastNameBank);
}

}  // namespace

std::string inventedName(RandomSource& random) { return nameFrom(random, Bank::firstNames); }

std::string inventedName(RandomSource& random, bool isMale) {
  return nameFrom(random, isMale ? Bank::maleFirstNames : Bank::femaleFirstNames);
}

}  // namespace tb
