// screens/board/board_picture.h - what the board shows of the bracket, on screen and on paper.
#pragma once

#include "pool/field.h"
#include "pool/scoring.h"
#include "screens/board/board_geometry.h"
#include "ui/colour.h"

#include <array>
#include <optional>
#include <string>

namespace tallyhoop {

/// Whose names are on a board with markers.
enum class MarkedNames {
    Picks,   ///< those of the player whose picks are marked
    Results, ///< the markers say what a player chosen in the list of scores has made of these games
};

struct BoardPicture {
    const Field& field;
    const Bracket& bracket;
    const Verdicts* verdicts = nullptr; ///< nullptr = the picks are not marked
    bool demo = false;
    MarkedNames names = MarkedNames::Picks;
    const Bracket* results = nullptr; ///< that the picks were marked with; nullptr = not known here
    std::string marked = {};          ///< whose marks are beside the results, in words; empty for picks

    /// @returns the verdict on a pick; None where nothing is marked
    Verdict verdictAt(Position position) const { return verdicts ? (*verdicts)[position] : Verdict::None; }
};

/// The score of the picks, as the board shows it.
struct ShownScore {
    int points = 0;    ///< earned
    int maxPoints = 0; ///< earned and still possible

    friend bool operator==(const ShownScore&, const ShownScore&) = default;
};

/// @returns "Points: 80 / 120"; empty for no score
std::string scoreText(const std::optional<ShownScore>& score);

inline constexpr const char* kDemoModeCaption = "Demonstration Mode";
inline constexpr const char* kChampionCaption = "CHAMPION";
inline constexpr const char* kInitialsCaption = "Initials";
inline constexpr const char* kNameCaption = "Name";
inline constexpr const char* kFinalPointsCaption = "Predict total points in Championship game";

/// Rounds 1..4 on the left, the same on the right, the semi-final, the final.
inline constexpr std::array<const char*, kRoundCaptions> kRoundNames = {
    "1st round:", "2nd round:",     "Regional semi:",  "Regional final:", "1st round:",
    "2nd round:", "Regional semi:", "Regional final:", "Semi-final:",     "Final game:"};

/// @returns the round 1..6 that one of these captions names
constexpr int roundOfCaption(std::size_t caption) { return static_cast<int>(caption < 4 ? caption + 1 : caption - 3); }

/// How a pick is marked: the colours are fixed, and each has a background on which it is read comfortably.
struct PickMark {
    const char* text = ""; ///< "=" right, "X" wrong, empty for all others
    ui::Colour colour{};
    ui::Colour background{};
};

PickMark markOf(Verdict verdict);

} // namespace tallyhoop
