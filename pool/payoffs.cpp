// pool/payoffs.cpp - payoff texts turned into numbers.
#include "pool/payoffs.h"

#include "base/numbers.h"

#include <utility>

namespace tallyhoop {

namespace {

Result<Payoffs> pointsOf(const std::array<std::string, kRounds>& texts)
{
    Payoffs payoffs{};
    for (std::size_t round = 0; round < texts.size(); ++round) {
        const Result<std::int16_t> payoff = wholeNumber(texts[round]);
        if (!payoff)
            return Failure{"The payoff of round " + std::to_string(round + 1) + " cannot be used. " +
                           payoff.failure().message};
        payoffs[round] = *payoff;
    }
    return payoffs;
}

} // namespace

PayoffTexts::PayoffTexts(std::array<std::string, kRounds> texts)
    : m_texts{std::move(texts)}, m_points{pointsOf(m_texts)}
{
}

} // namespace tallyhoop
