// tests/pool/outlook/close_chances.h - chances that may differ by their rounding.
#pragma once

#include "pool/outlook/first_places.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {

inline void expectClose(const FirstChances& found, const FirstChances& expected, double tolerance = 1e-6)
{
    ASSERT_NEAR(found.alone, expected.alone, tolerance);
    ASSERT_NEAR(found.together, expected.together, tolerance);
    ASSERT_NEAR(found.share, expected.share, tolerance);
}

} // namespace tallyhoop::test
