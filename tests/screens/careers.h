#pragma once

// Three deterministic careers.

#include "core/world_state.h"

namespace tb::test {

void beginner(WorldState& world);  // after two months: a job, a class, first answers
void working(WorldState& world);   // fifth year: a project in every state
void star(WorldState& world);      // thirtieth year: many records of every kind

}  // namespace tb::test
