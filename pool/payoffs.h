// pool/payoffs.h - what a right pick brings.
#pragma once

#include "base/result.h"
#include "pool/position.h"

#include <array>
#include <cstdint>
#include <string>

namespace tallyhoop {

/// Whole points for a right pick in rounds 1..6.
using Payoffs = std::array<std::int16_t, kRounds>;

/// The payoffs as the organiser typed them, and as numbers, which they are turned into once and for all.
class PayoffTexts
{
public:
    PayoffTexts() : PayoffTexts{std::array<std::string, kRounds>{}} {}

    /// @param texts rounds 1..6; each counts as the number it begins with, 0 when it begins with none
    explicit PayoffTexts(std::array<std::string, kRounds> texts);

    const std::array<std::string, kRounds>& texts() const { return m_texts; }

    /// @param round 1..6
    const std::string& text(int round) const { return m_texts.at(roundIndex(round)); }

    /// @returns the numbers; a failure when one of them does not fit 16 bits
    const Result<Payoffs>& points() const { return m_points; }

    friend bool operator==(const PayoffTexts& left, const PayoffTexts& right) { return left.m_texts == right.m_texts; }

private:
    std::array<std::string, kRounds> m_texts;
    Result<Payoffs> m_points;
};

} // namespace tallyhoop
