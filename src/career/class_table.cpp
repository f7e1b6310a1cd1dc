#include "career/class_table.h"

#include <algorithm>

namespace tb {

const std::array<JulliardClass, 47> julliardClasses = {{
    {.id = 1, .title = "Physical Acting I", .classCode = "106", .percentage = 25, .classLevel = 1},
    {.id = 2, .title = "Partnering I", .classCode = "112", .percentage = 25, .classLevel = 1},
    {.id = 3, .title = "Improvisation", .classCode = "114", .percentage = 25, .classLevel = 1},
    {.id = 4, .title = "Culture Initiative", .classCode = "117", .percentage = 25, .classLevel = 1},
    {.id = 5, .title = "Scene Study I", .classCode = "124", .percentage = 25, .classLevel = 1},
    {.id = 6, .title = "Self to Character I", .classCode = "125", .percentage = 25, .classLevel = 1},
    {.id = 7, .title = "Alexander Technique I", .classCode = "131-141", .percentage = 25, .classLevel = 1},
    {.id = 8, .title = "Movement for Actors", .classCode = "133", .percentage = 25, .classLevel = 1},
    {.id = 9, .title = "Movement I", .classCode = "134-144", .percentage = 25, .classLevel = 1},
    {.id = 10, .title = "Music Studies", .classCode = "135-145", .percentage = 25, .classLevel = 1},
    {.id = 11, .title = "Speech and Dialects I", .classCode = "137-147", .percentage = 25, .classLevel = 1},
    {.id = 12, .title = "Voice and Text I", .classCode = "139-149", .percentage = 25, .classLevel = 1},
    {.id = 13, .title = "Stage Combat: Unarmed", .classCode = "143", .percentage = 25, .classLevel = 1},
    {.id = 14, .title = "Legacies in Theater", .classCode = "111-112", .percentage = 25, .classLevel = 1},
    {.id = 15, .title = "Poetry", .classCode = "122", .percentage = 25, .classLevel = 1},
    {.id = 16, .title = "Foundations of Knowledge", .classCode = "111", .percentage = 25, .classLevel = 1},
    {.id = 17, .title = "College Writing", .classCode = "102", .percentage = 25, .classLevel = 1},
    {.id = 18, .title = "Scene Study II", .classCode = "214-224", .percentage = 50, .classLevel = 2},
    {.id = 19, .title = "Self to Character II", .classCode = "225", .percentage = 50, .classLevel = 2},
    {.id = 20, .title = "Physical Comedy", .classCode = "228", .percentage = 50, .classLevel = 2},
    {.id = 21, .title = "Alexander Technique II", .classCode = "231-241", .percentage = 50, .classLevel = 2},
    {.id = 22, .title = "Singing", .classCode = "236-246", .percentage = 50, .classLevel = 2},
    {.id = 23, .title = "Speech and Dialects II", .classCode = "237-247", .percentage = 50, .classLevel = 2},
    {.id = 24, .title = "Suzuki", .classCode = "238-248", .percentage = 50, .classLevel = 2},
    {.id = 25, .title = "Voice and Text II", .classCode = "239-249", .percentage = 50, .classLevel = 2},
    {.id = 26, .title = "Stage Combat: Armed", .classCode = "243", .percentage = 50, .classLevel = 2},
    {.id = 27, .title = "Drama Performances", .classCode = "410", .percentage = 25, .classLevel = 4},
    {.id = 28,
     .title = "Society, Politics, and Culture",
     .classCode = "112",
     .percentage = 25,
     .classLevel = 1},
    {.id = 29, .title = "Physical Acting II", .classCode = "244", .percentage = 50, .classLevel = 2},
    {.id = 30, .title = "Singing for Performance", .classCode = "306", .percentage = 75, .classLevel = 3},
    {.id = 31, .title = "Speech and Dialects III", .classCode = "307-347", .percentage = 75, .classLevel = 3},
    {.id = 32, .title = "Partnering II", .classCode = "313", .percentage = 75, .classLevel = 3},
    {.id = 33, .title = "Scene Study III", .classCode = "314-324", .percentage = 75, .classLevel = 3},
    {.id = 34, .title = "Self to Character III", .classCode = "325", .percentage = 75, .classLevel = 3},
    {.id = 35, .title = "Alexander Technique III", .classCode = "331-341", .percentage = 75, .classLevel = 3},
    {.id = 36, .title = "Makeup Techniques Workshop", .classCode = "333", .percentage = 75, .classLevel = 3},
    {.id = 37, .title = "Voice and Text III", .classCode = "339-349", .percentage = 75, .classLevel = 3},
    {.id = 38, .title = "Physical Acting", .classCode = "340", .percentage = 75, .classLevel = 3},
    {.id = 39, .title = "Character in Motion", .classCode = "342", .percentage = 75, .classLevel = 3},
    {.id = 40, .title = "Acting on Camera I", .classCode = "346", .percentage = 75, .classLevel = 3},
    {.id = 41, .title = "Scene Study IV", .classCode = "414", .percentage = 100, .classLevel = 4},
    {.id = 42, .title = "Alexander Technique IV", .classCode = "431", .percentage = 100, .classLevel = 4},
    {.id = 43, .title = "Movement IV", .classCode = "434", .percentage = 100, .classLevel = 4},
    {.id = 44, .title = "Acting on Camera II", .classCode = "435", .percentage = 100, .classLevel = 4},
    {.id = 45, .title = "American Theater Landscape", .classCode = "449", .percentage = 100, .classLevel = 4},
    {.id = 46, .title = "Actor Presentations", .classCode = "411", .percentage = 100, .classLevel = 4},
    {.id = 47,
     .title = "Bridge to the Profession",
     .classCode = "447-448",
     .percentage = 100,
     .classLevel = 4},
}};

const JulliardClass* classWithId(std::int64_t id) {
  const auto found = std::ranges::find(julliardClasses, id, &JulliardClass::id);
  return found == julliardClasses.end() ? nullptr : &*found;
}

}  // namespace tb
