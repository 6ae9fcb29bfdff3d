// screens/setup/setup_screen_save.cpp - the setup screen: finalizing the field and saving it.
#include "screens/setup/setup_screen.h"

#include "files/file_names.h"
#include "files/settings_file.h"
#include "files/setup_file.h"
#include "screens/help_topics.h"
#include "screens/saving.h"
#include "screens/setup/field_doubts.h"

namespace tallyhoop {

namespace {

// Texts are kept letter for letter, odd spellings included.
constexpr const char* kBlankFields = "You have selected FINALIZE and there are blank fields , this MUST be corrected!";
constexpr const char* kBlankTeamsCaption = "Initial TEAM FIELD NAMES are BLANK";
constexpr const char* kBlankTitlesCaption = "TITLE or REGION TITLES are BLANK";
constexpr const char* kBadPayoffs =
    "You have selected FINALIZE and the PAYOFF POINTS / ROUND fields must be between 1 & 99!";
constexpr const char* kBadPayoffsCaption = "PAYOFF POINTS / ROUND are INVALID";

constexpr const char* kDoubtsCaption = "Teams of the Field";
constexpr const char* kDoubtsBefore = "Some teams of this field may not be what you mean:\r\n \r\n";
constexpr const char* kDoubtsAfter = "\r\n \r\nTeams are told apart by their names only, in picks as in results.\r\n"
                                     "OK goes on all the same.  CANCEL leads to the first of them, and the\r\n"
                                     "\"Finalize Tournament\" option will be reset.";

constexpr const char* kFinalizeQuestion =
    "ARE YOU FINISHED WITH ALL SETUP OPTIONS??\r\n"
    "You selected the \"Finalize Tournament\" option and then selected to save this SETUP File.\r\n"
    "\r\n"
    "If you complete this option, you will not be able to make any addtional Setup changes.\r\n"
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
                                     "Menu: MENU Mode / DEMO-Reset to exit DEMO MODE.";

} // namespace

void SetupScreen::finalize()
{
    m_isFinalizing = true;
    // A disabled button cannot keep the focus. Left alone it would go on to the list, where pressing Enter once more
    // would put the list's missing selection into a team box.
    if (focused == &cmdFinalize)
        focused = controlAtTab(cmdFinalize.tabIndex - 1);
}

/// A save that has succeeded is not announced: the status says that there is nothing unsaved.
void SetupScreen::saveStartingField()
{
    const bool isSaved = trySaving();
    say(isSaved ? "" : "Not saved.");
    if (isSaved && m_isFinalizing)
        leave();
}

/// @returns false after the reason was shown
bool SetupScreen::trySaving()
{
    if (m_isFinalizing) {
        if (const std::optional<FieldFault> fault = fieldFault(fieldOnScreen())) {
            refuse(*fault);
            return false;
        }
        if (!doubtsAreConfirmed() || !finalizingIsConfirmed())
            return false;
    }
    if (demoModeIsOn(m_folder)) {
        m_platform.dialogs.show(
            {kDemoCaption, kDemoRefusal, ui::Buttons::Ok, ui::Icon::Exclamation, help_topic::kDemo});
        return false;
    }
    Field field = fieldOnScreen();
    if (!saveDataFile(m_platform, m_known, m_folder, file_name::kSetup, setupFile(field)))
        return false;
    m_saved = std::move(field);
    m_fieldIsWhole = true;
    return true;
}

/// Goes to the box with the fault and says what it lacks.
void SetupScreen::refuse(const FieldFault& fault)
{
    const auto refuseBox = [this](ui::TextBox& box, const char* title, const char* text) {
        focused = &box;
        m_platform.dialogs.show({title, text, ui::Buttons::Ok, ui::Icon::Exclamation});
    };
    if (const auto* team = std::get_if<BlankTeam>(&fault))
        refuseBox(txtRegion[team->row], kBlankTeamsCaption, kBlankFields);
    else if (std::holds_alternative<BlankTitle>(fault))
        refuseBox(TxtInfo[0], kBlankTitlesCaption, kBlankFields);
    else if (const auto* title = std::get_if<BlankRegionTitle>(&fault))
        refuseBox(TxtInfo[title->region + 1], kBlankTitlesCaption, kBlankFields);
    else if (const auto* payoff = std::get_if<BadPayoff>(&fault))
        refuseBox(txtInfo6[roundIndex(payoff->round)], kBadPayoffsCaption, kBadPayoffs);
}

/// @returns false when the person wants to change the doubtful teams, if there are any; then Finalize Tournament is as
///          if it had not been pressed
bool SetupScreen::doubtsAreConfirmed()
{
    const Field field = fieldOnScreen();
    const std::optional<TeamRow> doubt = firstDoubt(field);
    if (!doubt)
        return true;
    const auto answer = m_platform.dialogs.show({kDoubtsCaption, kDoubtsBefore + doubtsInFull(field) + kDoubtsAfter,
                                                 ui::Buttons::OkCancel, ui::Icon::Question, help_topic::kSetup});
    m_isFinalizing = answer != ui::Answer::Cancel;
    if (!m_isFinalizing)
        focused = &txtRegion[*doubt];
    return m_isFinalizing;
}

/// @returns false when the person cancels; then Finalize Tournament is as if it had not been pressed
bool SetupScreen::finalizingIsConfirmed()
{
    const auto answer = m_platform.dialogs.show({{}, kFinalizeQuestion, ui::Buttons::OkCancel, ui::Icon::None});
    m_isFinalizing = answer != ui::Answer::Cancel;
    return m_isFinalizing;
}

} // namespace tallyhoop
