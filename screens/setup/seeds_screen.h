// screens/setup/seeds_screen.h - the small modal screen where each first-round row gets its seed.
#pragma once

#include "pool/field.h"
#include "screens/screens.h"
#include "ui/dialogs.h"
#include "ui/screen.h"

#include <array>
#include <string>

namespace tallyhoop {

/// Sixteen boxes beside the first region's teams; what is entered is valid for all four regions.
class SeedsScreen : public ui::Screen
{
public:
    /// @param teams of the first region, as they are on the setup screen
    /// @param seeds of the field on the setup screen; changed by Complete only. The setup screen waits until this one
    ///              closes, and then shows them
    SeedsScreen(std::array<std::string, kRowsPerRegion> teams, SeedTexts& seeds, ui::Dialogs& dialogs,
                Screens& screens);

    ui::ControlArray<ui::Label, kRowsPerRegion> lblRegion{this, "lblRegion"};
    ui::ControlArray<ui::TextBox, kRowsPerRegion> txtSeed{this, "txtSeed"};
    ui::Command cmdComplete{this, "cmdComplete", "Complete", [this] { complete(); }};
    ui::Command cmdCancel{this, "cmdCancel", "Cancel", [this] { cancel(); }};

    std::string helpTopic() const override;
    void load() override;
    void closeRequested() override { cancel(); }

private:
    void complete();
    void cancel();

    std::array<std::string, kRowsPerRegion> m_teams;
    SeedTexts& m_seeds;
    ui::Dialogs& m_dialogs;
    Screens& m_screens;
};

} // namespace tallyhoop
