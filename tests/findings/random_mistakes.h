#pragma once

// Texts as people write them, with the mistakes that they make.

#include "diagnosis_check.h"
#include "tests/compare/random.h"

// A right text of a kind, for any of kProcessors.
DiagnosisCase random_case(Random& random);

// Puts a mistake into a text: a misspelt name, a lost blank, the marks of another format.
void make_mistake(Random& random, std::string& text);
