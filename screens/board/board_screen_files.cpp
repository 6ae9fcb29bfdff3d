#include "screens/board/board_screen.h"

#include "base/numbers.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "files/file_names.h"
#include "files/selection_file.h"
#include "files/settings_file.h"

namespace tallyhoop {

namespace {

constexpr const char* kFilterName = "PoolSelections (*.THC)";
constexpr const char* kPattern = "*.THC";
constexpr const char* kNotFinalizedCaption = "INVALID REQUEST TO SAVE FILE";
constexpr const char* kNotFinalizedText =
    "The SETUP OPTION must be completed and FINALIZED before a Pool Selection can be saved!";
constexpr const char* kBlankCaption = "Required fields are BLANK or invalid";
constexpr const char* kInitialsBlank = "Player Initails field is BLANK, this MUST be corrected!"; // sic
constexpr const char* kNameBlank = "Player Name field is BLANK, this MUST be corrected!";
constexpr const char* kPointsInvalid =
    "Final Game - you must enter a valid prediction (between 50 & 250) for the total score of this game";
constexpr double kFewestPoints = 50;
constexpr double kMostPoints = 250;

/// The file that a person means by a chosen name: with our ending, and an existing one whatever the case of its
/// letters.
std::filesystem::path meantFile(std::filesystem::path chosen)
{
    if (!endsWithFolded(shown(chosen.filename()), file_name::kSelectionEnding))
        chosen += file_name::kSelectionEnding;
    std::error_code missing;
    if (std::filesystem::exists(chosen, missing))
        return chosen;
    const DataFolder folder{chosen.parent_path()};
    const std::string name = shown(chosen.filename());
    // A letter that our code page lacks is shown as "?": such a name means itself only.
    const bool isShownWhole = name.find('?') == std::string::npos;
    return isShownWhole && folder.exists(name) ? folder.pathOf(name).value_or(chosen) : chosen;
}

ui::Message question(std::string text) { return {"", std::move(text), ui::Buttons::YesNo, ui::Icon::Question}; }

} // namespace

void BoardScreen::NewSelection()
{
    leaveScoreDisplay();
    const BoardSnapshot before = snapshot();
    BoardHistory history = m_history;
    clearBoard();
    ClearMarks();
    mnuGameResults.enabled = isFinalized(m_state.setupLines);
    loadBoard();
    hideDefaultColors();
    mnuSaveSelection.enabled = true;
    // The load forgets the past; a person who chose New by mistake wants it back.
    m_history = std::move(history);
    m_history.remember(before);
    ++m_sheet;
    offerHistory();
}

void BoardScreen::OpenSelection()
{
    const auto file =
        m_platform.dialogs.openFile({"Open Selection", kFilterName, kPattern, m_folder.folder(), std::string{}});
    if (!file)
        return;
    leaveScoreDisplay();
    showSelection(*file);
}

void BoardScreen::showSelection(const std::filesystem::path& file)
{
    dropHandOver();
    m_known.note(file);
    ReadSelections(file, m_platform.dialogs, m_state.selectionLines);
    showBoard(m_state.selectionLines);
    m_state.selectionFile.OpenedFile = file;
    m_resultsMode = false;
    mnuGameResults.enabled = true;
    mnuScoreSelections.enabled = resultsExist();
    ClearMarks();
    txtPointScore.text.clear();
    lockFields(false);
    hideDefaultColors();
    mnuSaveSelection.enabled = true;
    unsaved = false;
    m_history.clear();
    offerHistory();
    describeDocument();
    hint = "Opened " + shown(file.filename()) + ".";
}

void BoardScreen::SaveSelection()
{
    if (!mayBeSaved())
        return;
    if (m_resultsMode) {
        saveResults();
        return;
    }
    const auto chosen = m_platform.dialogs.saveFile({"Save Selection", kFilterName, kPattern, m_folder.folder(),
                                                     proposedFileName(txtPlayerName.text, txtPlayerInitials.text)});
    if (chosen)
        saveUnder(meantFile(*chosen));
}

bool BoardScreen::mayBeSaved()
{
    if (!isFinalized(m_state.setupLines)) {
        m_platform.dialogs.show({kNotFinalizedCaption, kNotFinalizedText, ui::Buttons::Ok, ui::Icon::Exclamation});
        return false;
    }
    if (isBlankField(txtPlayerInitials.text)) {
        refuse(txtPlayerInitials, kInitialsBlank);
        return false;
    }
    if (isBlankField(txtPlayerName.text)) {
        refuse(txtPlayerName, kNameBlank);
        return false;
    }
    if (!finalPointsPass()) {
        refuse(txtFinalPoints, kPointsInvalid);
        return false;
    }
    return true;
}

/// Results may be saved before the final game is played: only the upper bound holds for them.
bool BoardScreen::finalPointsPass() const
{
    const double points = leadingNumber(txtFinalPoints.text);
    return points <= kMostPoints && (m_resultsMode || points >= kFewestPoints);
}

void BoardScreen::refuse(ui::TextBox& box, const std::string& text)
{
    if (!box.locked)
        focused = &box;
    m_platform.dialogs.show({kBlankCaption, text, ui::Buttons::Ok, ui::Icon::Exclamation});
}

void BoardScreen::saveResults()
{
    captureBoard();
    const auto file = m_folder.pathOf(file_name::kResults);
    if (!file || !SaveSelections(*file, m_platform.dialogs, m_known, m_state.selectionLines))
        return;
    unsaved = false;
    m_history.boardWasSaved(m_sheet, m_state.selectionFile.OpenedFile);
    hint = "The results are saved.";
}

void BoardScreen::saveUnder(const std::filesystem::path& chosen)
{
    if (m_state.selectionFile.OpenedFile.empty())
        saveNew(chosen);
    else
        saveOpenedAs(chosen);
}

void BoardScreen::saveOpenedAs(const std::filesystem::path& chosen)
{
    const std::filesystem::path opened = m_state.selectionFile.OpenedFile;
    if (isSameFile(chosen, opened)) {
        writeSelection(opened, SaveKind::SameName);
        return;
    }
    if (demoModeIsOn(m_folder)) {
        m_platform.dialogs.show({"",
                                 "You are not allowed to save a New File \r\n"
                                 "Name when executing under DEMO Mode",
                                 ui::Buttons::Ok, ui::Icon::Exclamation});
        return;
    }
    const std::string text = "You opened the file:    " + shown(opened) + "\r\n" +
                             "Now you are attempting to save this \r\n" + "  file under the name:    " + shown(chosen) +
                             "\r\n\r\n" + "IS THIS CORRECT?";
    if (m_platform.dialogs.show(question(text)) == ui::Answer::Yes)
        writeSelection(chosen, SaveKind::NewFile);
}

void BoardScreen::saveNew(const std::filesystem::path& chosen)
{
    if (demoModeIsOn(m_folder)) {
        m_platform.dialogs.show({"",
                                 "You are not allowed to save a New File \r\n"
                                 "when executing under DEMO Mode",
                                 ui::Buttons::Ok, ui::Icon::Exclamation});
        return;
    }
    std::error_code missing;
    const bool exists = std::filesystem::exists(chosen, missing);
    const std::string text = "Do you want to replace the existing file ?\r\n" + shown(chosen);
    if (exists && m_platform.dialogs.show(question(text)) != ui::Answer::Yes)
        return;
    if (writeSelection(chosen, exists ? SaveKind::Replaced : SaveKind::NewFile))
        m_screens.load(ScreenKind::PlayerNames);
}

bool BoardScreen::writeSelection(const std::filesystem::path& file, SaveKind kind)
{
    captureBoard();
    if (!SaveSelections(file, m_platform.dialogs, m_known, m_state.selectionLines))
        return false;
    m_state.selectionFile.OpenedFile = file;
    m_state.handOver = PlayerHandOver{txtPlayerName.text + "," + txtPlayerInitials.text, file, kind};
    unsaved = false;
    m_history.boardWasSaved(m_sheet, m_state.selectionFile.OpenedFile);
    describeDocument();
    const bool scored = isSameFile(file, m_folder.folder() / file.filename());
    hint = "Saved " + shown(file.filename()) +
           (scored ? "." : ". Only files in the program's folder are scored; this one is elsewhere.");
    return true;
}

} // namespace tallyhoop
