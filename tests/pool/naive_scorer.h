// tests/pool/naive_scorer.h - scoring once more, slow and simple-minded, to check the real one against.
#pragma once

#include "pool/scoring.h"

namespace tallyhoop::test {

/// Answers the question for each place on its own, with texts and recursion, remembering nothing.
Score scoreNaively(const Bracket& picks, const Bracket& results, const Payoffs& payoffs);

} // namespace tallyhoop::test
