// tests/pool/outlook/without_avx2.h - the outlook as on a processor without AVX2.
#pragma once

#include "pool/outlook/lanes.h"

namespace tallyhoop::test {

/// As long as it lives.
class WithoutAvx2
{
public:
    WithoutAvx2() : m_before{useAvx2(false)} {}
    ~WithoutAvx2() { useAvx2(m_before); }
    WithoutAvx2(const WithoutAvx2&) = delete;
    WithoutAvx2& operator=(const WithoutAvx2&) = delete;

private:
    bool m_before;
};

} // namespace tallyhoop::test
