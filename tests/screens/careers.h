#pragma once

// Three careers as they would be found in a store, the same in every run.

#include "core/world_state.h"

namespace tb::test {

void beginner(WorldState& world);  // two months in: a job, a class, the first answers
void working(WorldState& world);   // the fifth year: one project in every state that a project has
void star(WorldState& world);      // the thirtieth year: many records of every kind

}  // namespace tb::test
