// screens/setup/setup_screen_save.cpp - the setup screen: finalizing the field and saving it.
#include "screens/setup/setup_screen.h"

#include "base/numbers.h"
#include "base/text.h"
#include "files/settings_file.h"
#include "files/setup_file.h"
#include "screens/help_topics.h"

namespace tallyhoop {

namespace {

constexpr const char* kBlankFields =
    "You have selected FINALIZE and there are blank fields , this MUST be corrected!"; // sic
constexpr const char* kBlankTeamsCaption = "Initial TEAM FIELD NAMES are BLANK";
constexpr const char* kBlankTitlesCaption = "TITLE or REGION TITLES are BLANK";
constexpr const char* kBadPayoffs =
    "You have selected FINALIZE and the PAYOFF POINTS / ROUND fields must be between 1 & 99!";
constexpr const char* kBadPayoffsCaption = "PAYOFF POINTS / ROUND are INVALID";
constexpr double kLeastPayoff = 1;
constexpr double kMostPayoff = 99;

constexpr const char* kFinalizeQuestion =
    "ARE YOU FINISHED WITH ALL SETUP OPTIONS??\r\n"
    "You selected the \"Finalize Tournament\" option and then selected to save this SETUP File.\r\n"
    "\r\n"
    "If you complete this option, you will not be able to make any addtional Setup changes.\r\n" // sic
    "THE SETUP FUNCTION FOR THE TOURNAMENT WILL BE CONSIDERED FINAL!\r\n"
    "\r\n"
    "If you ARE FINISHED with your setup, then this is fine.  Select OK and the file will be saved.\r\n"
    "\r\n"
    "Otherwise, select CANCEL and the \"Finalize Tournament\" option will be reset.";

constexpr const char* kDemoCaption = "DEMO MODE SAVE ATTEMPT";
constexpr const char* kDemoRefusal = "You are attempting to save the Setup information while\r\n"
                                     "you are in DEMO Mode.  This is not allowed!\r\n"
                                     " \r\n"
                                     "See Help for information on DEMO MODE or select\r\n"
                                     "Menu: MENU Mode / DEMO-Reset to exit DEMO MODE."; // sic

} // namespace

void SetupScreen::finalize()
{
    FinalizeState = "1";
    cmdFinalize.enabled = false;
    // A disabled button cannot keep the focus. Left alone it would go on to the list, where pressing Enter once more
    // would put the list's missing selection into a team box.
    if (focused == &cmdFinalize)
        focused = controlAtTab(cmdFinalize.tabIndex - 1);
    showStatus();
}

void SetupScreen::saveStartingField()
{
    const bool finalizing = FinalizeState == "1";
    if (finalizing && !(isComplete() && finalizingIsConfirmed()))
        return;
    if (demoModeIsOn(m_folder)) {
        m_platform.dialogs.show(
            {kDemoCaption, kDemoRefusal, ui::Buttons::Ok, ui::Icon::Exclamation, help_topic::kDemo});
        return;
    }
    const SetupLines lines = linesOnScreen();
    if (!WriteStartingField(m_folder, m_platform.dialogs, m_known, lines))
        return;
    m_saved = lines;
    showStatus();
    if (finalizing)
        leave();
}

/// Says what keeps the field from being finalized: the first offending box only.
bool SetupScreen::isComplete()
{
    for (std::size_t i = 0; i < txtRegion.size(); ++i) {
        if (isBlankField(txtRegion[i].text)) {
            refuse(txtRegion[i], kBlankTeamsCaption, kBlankFields);
            return false;
        }
    }
    for (std::size_t i = 0; i < TxtInfo.size(); ++i) {
        if (isBlankField(TxtInfo[i].text)) {
            refuse(TxtInfo[i], kBlankTitlesCaption, kBlankFields);
            return false;
        }
    }
    for (std::size_t round = 0; round < txtInfo6.size(); ++round) {
        const double points = leadingNumber(txtInfo6[round].text);
        if (points < kLeastPayoff || points > kMostPayoff) {
            refuse(txtInfo6[round], kBadPayoffsCaption, kBadPayoffs);
            return false;
        }
    }
    return true;
}

void SetupScreen::refuse(ui::Control& box, const char* title, const char* text)
{
    focused = &box;
    m_platform.dialogs.show({title, text, ui::Buttons::Ok, ui::Icon::Exclamation});
}

bool SetupScreen::finalizingIsConfirmed()
{
    if (m_platform.dialogs.show({{}, kFinalizeQuestion, ui::Buttons::OkCancel, ui::Icon::None}) != ui::Answer::Cancel)
        return true;
    FinalizeState = "0";
    cmdFinalize.enabled = true;
    showStatus();
    return false;
}

/// @returns what a save writes, each field exactly as it stands in its box
SetupLines SetupScreen::linesOnScreen() const
{
    SetupLines lines;
    for (std::size_t i = 0; i < txtRegion.size(); ++i)
        lines[setup_line::kTeam + i] = txtRegion[i].text;
    for (std::size_t i = 0; i < TxtInfo.size(); ++i)
        lines[setup_line::kTitle + i] = TxtInfo[i].text;
    for (std::size_t round = 0; round < txtInfo6.size(); ++round)
        lines[setup_line::kPayoff + round] = txtInfo6[round].text;
    for (std::size_t row = 0; row < kRowsPerRegion; ++row)
        lines[setup_line::kSeed + row] = m_state.seedLabels[row];
    lines[setup_line::kComment1] = encodeLineBreaks(txtComment1.text);
    lines[setup_line::kComment2] = encodeLineBreaks(txtComment2.text);
    lines[setup_line::kFinalized] = FinalizeState;
    lines[setup_line::kEnd] = kEndMarker;
    return lines;
}

} // namespace tallyhoop
