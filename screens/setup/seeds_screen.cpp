// screens/setup/seeds_screen.cpp - entering the seeds of the first-round rows.
#include "screens/setup/seeds_screen.h"

#include "pool/field_check.h"
#include "screens/help_topics.h"

#include <optional>
#include <utility>

namespace tallyhoop {

namespace {

constexpr const char* kCaption = "Seed Positions Entry";
constexpr const char* kErrorCaption = "SEED Entry ERROR";
// Kept letter for letter, odd spelling included.
constexpr const char* kErrorText = "You have entered invalid entries for the SEED postions.\r\n"
                                   "Numbers must be between 1 & 16 without duplicating";
constexpr int kLongestSeed = 4;

} // namespace

SeedsScreen::SeedsScreen(std::array<std::string, kRowsPerRegion> teams, SeedTexts& seeds, ui::Dialogs& dialogs,
                         Screens& screens)
    : Screen{"frmPoolSeatings", kCaption},
      m_teams{std::move(teams)},
      m_seeds{seeds},
      m_dialogs{dialogs},
      m_screens{screens}
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
        txtSeed[row].text = m_seeds.at(row);
        lblRegion[row].text = m_teams.at(row);
        txtSeed[row].spokenName = "Seed of row " + std::to_string(row + 1) + ", " + m_teams.at(row);
    }
    focused = &txtSeed[0];
}

void SeedsScreen::complete()
{
    SeedTexts typed;
    for (std::size_t row = 0; row < typed.size(); ++row)
        typed[row] = txtSeed[row].text;
    const std::optional<SeedTexts> seeds = wholeSeeds(typed);
    if (!seeds) {
        m_dialogs.show({kErrorCaption, kErrorText, ui::Buttons::Ok, ui::Icon::None});
        return;
    }
    m_seeds = *seeds;
    m_screens.unload(ScreenKind::Seeds);
}

void SeedsScreen::cancel() { m_screens.unload(ScreenKind::Seeds); }

} // namespace tallyhoop
