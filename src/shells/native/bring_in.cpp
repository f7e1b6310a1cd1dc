#include "shells/native/bring_in.h"

#include <fstream>
#include <system_error>

#include "core/format.h"
#include "core/load_world.h"
#include "core/save_backups.h"
#include "core/save_file.h"
#include "core/stored_value.h"

namespace tb {

namespace {

constexpr std::uintmax_t largestFile =
    64 * 1024 * 1024;  // bytes; a career of a hundred years needs half of it

std::string careerIn(const WorldState& world) {
  if (world.enterPlayerDetails == 0) return "a career that has not begun";
  return tb::format("{}, week {} of {}", world.myName, world.weekNumber, world.yearNumber);
}

}  // namespace

std::expected<void, std::string> writeCareerFile(const SaveStore& store, const std::filesystem::path& file) {
  const Bytes save = exportedSave(store);
  std::ofstream stream(file, std::ios::binary);
  stream.write(reinterpret_cast<const char*>(save.data()), static_cast<std::streamsize>(save.size()));
  stream.close();
  if (stream) return {};
  return std::unexpected(tb::format("{} could not be written.", file.string()));
}

std::expected<Bytes, std::string> readCareerFile(const std::filesystem::path& file) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  if (!error && size > largestFile) {
    return std::unexpected(tb::format("{} is too large to be a save of Top Billing.", file.string()));
  }
  Bytes bytes(error ? 0 : static_cast<std::size_t>(size));
  std::ifstream stream(file, std::ios::binary);
  stream.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  if (error || !stream) return std::unexpected(tb::format("{} could not be read.", file.string()));
  return bytes;
}

std::expected<std::string, std::string> questionAbout(std::span<const std::byte> file,
                                                      const SaveStore& inPlay, RandomSource& random) {
  ScratchPort port;
  SaveStore store(port);
  const ImportedSave imported = importSave(store, file);
  if (!imported.refusal.empty()) return std::unexpected(imported.refusal);
  Game game{.store = store, .random = random};
  const std::vector<Damage> damages = loadWorld(game);
  std::string question = tb::format("The file has {}.\n", careerIn(game.world));
  if (!imported.remark.empty()) question += imported.remark + "\n";
  if (const auto damage = describe(damages)) question += *damage + "\n";
  const plist::Dictionary values = inPlay.dictionary();
  if (!hasBegun(values)) return question + "Bring it in?";
  return question + tb::format("It takes the place of {}, which stays among the backups. Replace it?",
                               storedValue<std::string>(values, "myName"));
}

std::expected<void, std::string> bringIn(std::span<const std::byte> file, SaveStore& store,
                                         Documents& documents, plist::Date now) {
  const plist::Dictionary values = store.dictionary();
  if (hasBegun(values) && !SaveBackupManager::backUp(documents, values, now)) {
    return std::unexpected("The career in play could not be backed up. Nothing was changed.");
  }
  const ImportedSave imported = importSave(store, file);
  if (!imported.refusal.empty()) return std::unexpected(imported.refusal);
  return store.commit();
}

}  // namespace tb
