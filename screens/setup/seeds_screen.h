// screens/setup/seeds_screen.h - the small modal screen that says which seed stands on which first-round row.
#pragma once

#include "screens/setup/setup_screen.h"

#include <array>

namespace tallyhoop {

/// Sixteen boxes beside the first region's teams; what is entered holds for all four regions.
class SeedsScreen : public ui::Screen
{
public:
    /// @param setup the setup screen this one was opened from: it waits until this one closes
    SeedsScreen(SetupScreen& setup, const ui::Platform& platform, modTallyhoop& state, Screens& screens);

    ui::ControlArray<ui::Label, kRowsPerRegion> lblRegion{this, "lblRegion"};
    ui::ControlArray<ui::TextBox, kRowsPerRegion> txtSeed{this, "txtSeed"};
    ui::Command cmdComplete{this, "cmdComplete", "Complete", [this] { complete(); }};
    ui::Command cmdCancel{this, "cmdCancel", "Cancel", [this] { cancel(); }};

    std::string helpTopic() const override;
    void load() override;
    void closeRequested() override;

private:
    void complete();
    void cancel();

    SetupScreen& m_setup;
    ui::Platform m_platform;
    modTallyhoop& m_state;
    Screens& m_screens;
};

} // namespace tallyhoop
