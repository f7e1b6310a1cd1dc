// Opens damaged careers and plays them: nothing stops the process, takes long or is lost without a word.
//
//   damage_test [values COUNT [FIRST] | each TEXT | files COUNT]
//
// `values` doctors several values of a career at a time, COUNT times; `each` those whose name has TEXT, one
// at a time; `files` brings in damaged files. Without arguments: 300 of the first and of the last.

#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <print>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include "core/load_world.h"
#include "core/save_file.h"
#include "tests/damage/doctoring.h"
#include "tests/damage/tourist.h"
#include "tests/journeys/device.h"
#include "tests/screens/careers.h"

namespace tb::test {
namespace {

constexpr int weeks = 10;
constexpr unsigned patience = 120;  // seconds, for a case
constexpr std::chrono::milliseconds longestAction{2'000};

// What a case returns to the parent, as its exit code.
enum Outcome { fine = 0, slow = 1, unsaid = 2, refused = 3 };

using Prepare = void (*)(WorldState&);
constexpr Prepare careers[] = {beginner, working, star};

Outcome play(App& app) {
  Tourist tourist(app);
  tourist.visitAllScreens();
  tourist.playWeeks(weeks);
  tourist.visitAllScreens();
  return tourist.longestAction() > longestAction ? slow : fine;
}

Outcome playDoctored(Prepare career, const std::vector<Doctoring>& doctorings) {
  SeededRandom random(5);
  Device device(random);
  device.begin([&](WorldState& world) {
    career(world);
    for (const Doctoring& doctoring : doctorings) doctoring.apply(world);
    world.enterPlayerDetails = 1;
  });
  return play(device.app());
}

// --- Damaged files ---

Bytes careerFile(Prepare career) {
  MemoryPort port;
  SaveStore store(port);
  SeededRandom random(5);
  storeCareer(store, random, career);
  return exportedSave(store);
}

plist::Value oddValue(SeededRandom& chance) {
  switch (RandomRange(chance, 7)) {
    case 0:
      return plist::Value{std::string("odd")};
    case 1:
      return plist::Value{RandomRange(chance, 2) == 0 ? INT64_MIN : INT64_MAX};
    case 2:
      return plist::Value{std::nan("")};
    case 3:
      return plist::Value{1e300};
    case 4:
      return plist::Value{plist::Array(static_cast<std::size_t>(RandomRange(chance, 9)), plist::Value{-1.5})};
    case 5:
      return plist::Value{plist::Data{Bytes(40, std::byte{3})}};
    default:
      return plist::Value{-RandomRange(chance, 100)};
  }
}

std::size_t somewhere(SeededRandom& chance, std::size_t size) {
  return static_cast<std::size_t>(RandomRange(chance, static_cast<std::int64_t>(size)));
}

void flipBits(Bytes& file, SeededRandom& chance) {
  for (std::int64_t flips = 1 + RandomRange(chance, 12); flips > 0; --flips) {
    file[somewhere(chance, file.size())] ^= std::byte{1} << RandomRange(chance, 8);
  }
}

void changeValues(Bytes& file, SeededRandom& chance) {
  plist::Value root = *plist::read(file);
  auto& values = std::get<plist::Dictionary>(root.held);
  for (std::int64_t changes = 1 + RandomRange(chance, 20); changes > 0; --changes) {
    plist::Value& value = values[somewhere(chance, values.size())].second;
    auto* const data = std::get_if<plist::Data>(&value.held);
    switch (RandomRange(chance, 3)) {
      case 0:
        value = oddValue(chance);
        break;
      case 1:
        value = values[somewhere(chance, values.size())].second;
        break;
      default:
        if (data != nullptr && !data->bytes.empty()) flipBits(data->bytes, chance);
    }
  }
  file = plist::write(root);
}

Bytes damagedFile(Bytes file, std::uint64_t seed) {
  SeededRandom chance(seed);
  switch (seed % 4) {
    case 0:
      flipBits(file, chance);
      break;
    case 1:
      file.resize(somewhere(chance, file.size()));
      break;
    default:
      changeValues(file, chance);
  }
  return file;
}

// Whether the loaded careers differ in a variable.
bool isLoss(SaveStore& whole, SaveStore& damaged) { return whole.dictionary() != damaged.dictionary(); }

Outcome playFile(const Bytes& whole, std::uint64_t seed) {
  const Bytes file = damagedFile(whole, seed);
  MemoryPort port, wholePort;
  SaveStore store(port), wholeStore(wholePort);
  const ImportedSave imported = importSave(store, file);
  if (!imported.refusal.empty()) return refused;
  static_cast<void>(importSave(wholeStore, whole));
  if (isLoss(wholeStore, store) && imported.remark.empty()) return unsaid;
  SeededRandom random(5);
  App app(store, random);
  return play(app);
}

// --- Running ---

// Runs a case in a process of its own. Returns whether it went well.
bool passes(const std::string& name, const std::function<Outcome()>& run, int& refusals) {
  const pid_t child = fork();
  if (child == 0) {
    if (std::getenv("DAMAGE_LOG") == nullptr) dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
    alarm(patience);
    _exit(run());
  }
  int status = 0;
  waitpid(child, &status, 0);
  const int outcome = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  refusals += outcome == refused;
  if (outcome == fine || outcome == refused) return true;
  if (WIFSIGNALED(status)) std::println("{}: stopped by signal {}", name, WTERMSIG(status));
  if (outcome == slow) std::println("{}: an action took more than {}", name, longestAction);
  if (outcome == unsaid) std::println("{}: a loss was not said", name);
  std::fflush(stdout);
  return false;
}

int runValues(int first, int count) {
  const std::vector<Doctoring> all = allDoctorings();
  int failures = 0, refusals = 0;
  for (int number = first; number < first + count; ++number) {
    SeededRandom chance(static_cast<std::uint64_t>(number));
    std::vector<Doctoring> some;
    for (std::int64_t more = 1 + RandomRange(chance, 60); more > 0; --more) {
      some.push_back(all[somewhere(chance, all.size())]);
    }
    std::string names = std::format("values {}:", number);
    for (const Doctoring& doctoring : some) names += " " + doctoring.name + ",";
    failures += !passes(names, [&] { return playDoctored(careers[number % 3], some); }, refusals);
  }
  std::println("{} careers with doctored values: {} failed", count, failures);
  return failures;
}

int runEach(const std::string& text) {
  int failures = 0, refusals = 0, count = 0;
  for (const Doctoring& doctoring : allDoctorings()) {
    if (!doctoring.name.contains(text)) continue;
    count += 1;
    failures += !passes(doctoring.name, [&] { return playDoctored(star, {doctoring}); }, refusals);
  }
  std::println("{} doctored values: {} failed", count, failures);
  return failures;
}

int runFiles(int count) {
  int failures = 0, refusals = 0;
  for (int number = 0; number < count; ++number) {
    const auto seed = static_cast<std::uint64_t>(number);
    const Bytes whole = careerFile(careers[number / 4 % 3]);
    failures += !passes(std::format("file {}", number), [&] { return playFile(whole, seed); }, refusals);
  }
  std::println("{} damaged files: {} refused, {} failed", count, refusals, failures);
  return failures;
}

}  // namespace
}  // namespace tb::test

int main(int count, char** words) {
  const std::string what = count > 1 ? words[1] : "";
  const std::string which = count > 2 ? words[2] : "";
  int failures = 0;
  if (what == "values") {
    failures = tb::test::runValues(count > 3 ? std::stoi(words[3]) : 0, std::stoi(which));
  } else if (what == "each") {
    failures = tb::test::runEach(which);
  } else if (what == "files") {
    failures = tb::test::runFiles(std::stoi(which));
  } else {
    failures = tb::test::runValues(0, 300) + tb::test::runFiles(300);
  }
  return failures > 0 ? EXIT_FAILURE : EXIT_SUCCESS;
}
