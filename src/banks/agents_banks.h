#pragma once

// Talent agents: agencies, letters to a performer, and log lines about the work that an agent finds. The rows
// are in banks/agents.txt.

#include "banks/banks.h"

#define AGENTS_BANKS(BANK)                      \
  BANK(agencies, 40, "")                        \
  BANK(agentSubject, 20, "name")                \
  BANK(agentSubjectWithTitle, 10, "title name") \
  BANK(agentBody, 25, "agent agency")           \
  BANK(agentBodyWithTitle, 25, "title agency")  \
  BANK(agentFeed, 50, "")                       \
  BANK(agentSubmitted, 20, "title agent")       \
  BANK(agentLinedUp, 20, "title agent")         \
  BANK(agentBooked, 20, "title agent")

DECLARE_BANKS(AGENTS_BANKS)
