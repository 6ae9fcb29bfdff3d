// screens/setup/field_completeness.h - what a field must have before it can be made final.
#pragma once

#include "pool/field.h"

#include <cstddef>
#include <optional>

namespace tallyhoop {

/// Something that keeps a field from being final.
struct FieldGap {
    enum class Kind {
        Team,   ///< blank; index = its row 0..63
        Title,  ///< blank; index = 0 for the pool's title, 1..4 for a region's
        Payoff, ///< not 1..99; index = its round 1..6 less one
    };

    Kind kind{};
    std::size_t index = 0;

    friend bool operator==(const FieldGap&, const FieldGap&) = default;
};

/// @returns the first gap: teams come before titles, titles before payoffs; nothing when the field is complete
std::optional<FieldGap> firstGapOf(const Field& field);

} // namespace tallyhoop
