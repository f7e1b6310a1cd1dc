#pragma once

// The questions that a relationship puts to the performer. The rows are in banks/relationship_questions.txt.

#include "banks/banks.h"

#define RELATIONSHIP_QUESTIONS_BANKS(BANK) BANK(relationshipQuestions, 540, "name")

DECLARE_BANKS(RELATIONSHIP_QUESTIONS_BANKS)
