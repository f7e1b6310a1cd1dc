#include "banks/banks.h"

#include "banks/texts.h"
#include "core/stop.h"

namespace tb {

std::span<const std::string> rowsOf(Bank bank) {
  static const Banks banks = readBanks(texts());
  const auto found = banks.find(bank.name);
  if (found == banks.end()) stopTheGame("a bank is not in the texts");
  return found->second;
}

const std::string& drawRow(RandomSource& random, Bank bank) { return RandomElement(random, rowsOf(bank)); }

}  // namespace tb
