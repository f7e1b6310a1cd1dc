#pragma once

// Parts of the screens about dating and relationships.

#include <optional>
#include <string>

#include "life/separation.h"
#include "screens/stage.h"

namespace tb {

// Of a message that is being written, in seconds per letter.
inline constexpr double letterTime = 0.03;

[[nodiscard]] view::Picture portraitOf(const Matches& match);
[[nodiscard]] view::Picture childPicture(const WorldState& world, const Child& child);

// The relationship's meter. It is full at 100, and reaches 105.
[[nodiscard]] view::Meter meterNode(const Matches& partner);

// "Together for 3 weeks", "Engaged (together for 5 months)", "Married (together for 2 years)".
[[nodiscard]] std::string togetherWords(const WorldState& world, const Matches& partner);

// "3 weeks ago", from 4 weeks on in months.
[[nodiscard]] std::string agoWords(const WorldState& world, std::int64_t week);

// The prompt of a match and the answer to it.
[[nodiscard]] view::Node promptNode(const Matches& match);

// A scene with a portrait in lights.
[[nodiscard]] view::Moment glow(std::string title, std::string line, view::Picture picture);

// Shows the notice about a partner who left; the news is out when it is closed. Does nothing for none.
void tellSeparation(Stage& stage, const std::optional<Separation>& separation);

// Shows a notice, and a tabloid with this title and line when it is closed.
void tellScandal(Stage& stage, Notice notice, std::string title, std::string line, view::Picture picture);

}  // namespace tb
