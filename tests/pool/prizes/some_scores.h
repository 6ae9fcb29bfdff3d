// tests/pool/prizes/some_scores.h - scores of which only the points and the prediction matter.
#pragma once

#include "pool/scoring.h"

#include <cstdint>

namespace tallyhoop::test {

inline PlayerScore scoreOf(int points, int predicted)
{
    PlayerScore score;
    score.points = static_cast<std::int16_t>(points);
    score.finalPoints = static_cast<std::int16_t>(predicted);
    return score;
}

} // namespace tallyhoop::test
