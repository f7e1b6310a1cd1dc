#pragma once

// Actions on whole careers, each with one commit.

#include <functional>

#include "screens/app.h"

namespace tb::crash {

// Runs `action` as a press in a game that is started for it.
void actInGame(SaveStore& store, Documents& documents, RandomSource& random,
               const std::function<void(Game&)>& action);

// In the slot in play.
void beginCareer(Game& game, const std::string& name);
void playWeek(Game& game);

void switchToSlot(Game& game, Int index);

// Of the newest backup.
void restoreBackup(Game& game);

}  // namespace tb::crash
