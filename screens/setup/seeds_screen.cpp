// screens/setup/seeds_screen.cpp - entering the seeds of the first-round rows.
#include "screens/setup/seeds_screen.h"

#include "base/numbers.h"
#include "screens/help_topics.h"

#include <algorithm>
#include <optional>

namespace tallyhoop {

namespace {

constexpr const char* kCaption = "Seed Positions Entry";
constexpr const char* kErrorCaption = "SEED Entry ERROR";
constexpr const char* kErrorText = "You have entered invalid entries for the SEED postions.\r\n" // sic
                                   "Numbers must be between 1 & 16 without duplicating";
constexpr int kLongestSeed = 4;
constexpr int kSeeds = kRowsPerRegion;

using SeedTexts = std::array<std::string, kRowsPerRegion>;

/// @returns the whole numbers of sixteen seeds, nothing when one is outside 1..16 or there twice
std::optional<std::array<int, kSeeds>> seedNumbers(const SeedTexts& texts)
{
    // The range is checked before rounding, so 0.6 is refused although it rounds to 1.
    const auto outside = [](const std::string& text) {
        const double value = leadingNumber(text);
        return value < 1 || value > kSeeds;
    };
    if (std::ranges::any_of(texts, outside))
        return std::nullopt;

    std::array<int, kSeeds> numbers{};
    std::array<bool, kSeeds + 1> seen{};
    for (std::size_t row = 0; row < texts.size(); ++row) {
        const auto number = static_cast<int>(roundHalfEven(leadingNumber(texts[row])));
        bool& seenBefore = seen.at(static_cast<std::size_t>(number));
        if (seenBefore)
            return std::nullopt;
        seenBefore = true;
        numbers[row] = number;
    }
    return numbers;
}

} // namespace

SeedsScreen::SeedsScreen(SetupScreen& setup, const ui::Platform& platform, modTallyhoop& state, Screens& screens)
    : Screen{"frmPoolSeatings", kCaption}, m_setup{setup}, m_platform{platform}, m_state{state}, m_screens{screens}
{
    for (std::size_t row = 0; row < txtSeed.size(); ++row) {
        lblRegion[row].text = "Team" + std::to_string(row + 1);
        txtSeed[row].tabIndex = static_cast<int>(row);
        txtSeed[row].maxLength = kLongestSeed;
        txtSeed[row].explanation = "1 to 16, each number once.";
    }
    cmdComplete.tabIndex = kRowsPerRegion;
    cmdComplete.isDefault = true;
    cmdComplete.mnemonic = 'o'; // Escape cancels as well, so the C is the cancelling one's
    cmdCancel.mnemonic = 'c';
    cmdComplete.explanation = "Takes these seeds over; save the field to keep them.";
    cmdCancel.explanation = "Leaves the seeds as they were.";
    cmdCancel.tabIndex = kRowsPerRegion + 1;
}

std::string SeedsScreen::helpTopic() const { return help_topic::kSeeds; }

void SeedsScreen::load()
{
    for (std::size_t row = 0; row < txtSeed.size(); ++row) {
        txtSeed[row].text = m_setup.lblSeed[row].text;
        lblRegion[row].text = m_setup.txtRegion[row].text;
        txtSeed[row].spokenName = "Seed of row " + std::to_string(row + 1) + ", " + lblRegion[row].text;
    }
    focused = &txtSeed[0];
}

void SeedsScreen::closeRequested() { cancel(); }

void SeedsScreen::complete()
{
    SeedTexts texts;
    for (std::size_t row = 0; row < texts.size(); ++row)
        texts[row] = txtSeed[row].text;
    const auto numbers = seedNumbers(texts);
    if (!numbers) {
        m_platform.dialogs.show({kErrorCaption, kErrorText, ui::Buttons::Ok, ui::Icon::None});
        return;
    }
    for (std::size_t row = 0; row < numbers->size(); ++row)
        m_state.seedLabels[row] = std::to_string((*numbers)[row]);
    m_setup.showSeeds();
    m_screens.unload(ScreenKind::SeedPositions);
}

void SeedsScreen::cancel() { m_screens.unload(ScreenKind::SeedPositions); }

} // namespace tallyhoop
