// screens/setup/setup_screen.cpp - the setup screen: from the folder to the boxes and back, and what is shown of its
// state.
#include "screens/setup/setup_screen.h"

#include "base/text.h"
#include "files/file_names.h"
#include "files/settings_file.h"
#include "files/setup_file.h"
#include "screens/demo_mode.h"
#include "screens/help_display.h"
#include "screens/help_topics.h"
#include "screens/saving.h"
#include "screens/setup/field_doubts.h"
#include "screens/setup/setup_design.h"

#include <utility>
#include <vector>

namespace tallyhoop {

namespace {

constexpr const char* kCaption = "Define Starting Field & Options";
constexpr const char* kOverrideCaption = "Override &Selecting Team Names";
constexpr const char* kSelectingCaption = "Continue &Selecting";

constexpr const char* kCommentCaption = "Comment Pasted";
constexpr const char* kBetweenSentences = "  ";
constexpr const char* kSavedStatus = "There are no unsaved changes.";
constexpr const char* kUnsavedStatus = "There are changes that are not saved yet.";
constexpr const char* kFinalizeStatus = "Finalize Tournament takes effect with File, Save.";
constexpr const char* kDemoNews =
    "The sample pool is there: leave this screen, and choose File, Open Selection to look at one of its players.";
constexpr const char* kNoListStatus =
    "There is no list of team names: choose Override Selecting Team Names to type them.";
constexpr const char* kUnreadableFieldStatus = "The field could not be read whole; a save keeps the old file.";
constexpr const char* kUnreadableListStatus =
    "The list of team names could not be read whole; a save keeps the old file.";

} // namespace

SetupScreen::SetupScreen(const DataFolder& folder, const ui::Platform& platform, Screens& screens, Field& field)
    : Screen{"frmPoolEntry", kCaption}, m_folder{folder}, m_platform{platform}, m_screens{screens}, m_field{field}
{
    design(*this);
    lstTeamNames.pressed = [this] { m_picker.listPressed(); };
    lstTeamNames.doubleClicked = [this] { m_picker.takeSelected(); };
    for (const TeamRow row : allTeamRows())
        txtRegion[row].edited = [this, row] { m_picker.boxEdited(row); };
}

void SetupScreen::load()
{
    readPool();
    m_editor.load(); // second: its message follows that about the field
}

/// Takes the field and the demo mode that the folder holds now.
void SetupScreen::readPool()
{
    m_known.note(m_folder.pathTo(file_name::kSetup));
    const ReadField read = readField(m_folder, m_field);
    m_fieldIsWhole = read.isWhole;
    if (!read.isWhole)
        m_known.noteDamage(m_folder.pathTo(file_name::kSetup));
    if (read.trouble)
        showTrouble(m_platform.dialogs, *read.trouble);
    m_field = read.value;
    m_isDemo = demoModeIsOn(m_folder);
    m_isFinalizing = false;
    putOnScreen(m_field);
    m_history.begin(textsOnScreen());
    m_saved = fieldOnScreen();
    focused = &txtRegion[0];
}

void SetupScreen::putOnScreen(const Field& field)
{
    for (const TeamRow row : allTeamRows())
        txtRegion[row].text = field.teams[row];
    TxtInfo[0].text = field.title;
    for (std::size_t region = 0; region < field.regionTitles.size(); ++region)
        TxtInfo[region + 1].text = field.regionTitles[region];
    for (std::size_t round = 0; round < txtInfo6.size(); ++round)
        txtInfo6[round].text = field.payoffs.texts()[round];
    m_seeds = field.seeds;
    txtComment1.text = field.comment1;
    txtComment2.text = field.comment2;
}

/// @returns the texts as they are in their boxes; the rest is empty
Field SetupScreen::textsOnScreen() const
{
    Field field;
    for (const TeamRow row : allTeamRows())
        field.teams[row] = txtRegion[row].text;
    field.title = TxtInfo[0].text;
    for (std::size_t region = 0; region < field.regionTitles.size(); ++region)
        field.regionTitles[region] = TxtInfo[region + 1].text;
    std::array<std::string, kRounds> payoffs;
    for (std::size_t round = 0; round < payoffs.size(); ++round)
        payoffs[round] = txtInfo6[round].text;
    field.payoffs = PayoffTexts{payoffs};
    field.seeds = m_seeds;
    field.comment1 = txtComment1.text;
    field.comment2 = txtComment2.text;
    return field;
}

/// @returns what a save writes, each text exactly as it is in its box
Field SetupScreen::fieldOnScreen() const
{
    Field field = textsOnScreen();
    // A bar that is typed into a comment is a line break in the file.
    field.comment1 = decodeLineBreaks(field.comment1);
    field.comment2 = decodeLineBreaks(field.comment2);
    field.finalized = m_isFinalizing ? "1" : "0";
    return field;
}

/// Undo and redo. @param texts nothing when there is no such step
void SetupScreen::goBack(const std::optional<Field>& texts)
{
    if (!texts)
        return;
    putOnScreen(*texts);
    say({});
    const auto row = focused == nullptr ? std::nullopt : txtRegion.indexOf<TeamRow>(*focused);
    if (row)
        m_picker.boxGotFocus(*row); // its text is another one, which is selected again
}

std::array<std::string, kRowsPerRegion> SetupScreen::teamsOfFirstRegion() const
{
    std::array<std::string, kRowsPerRegion> teams;
    for (std::size_t row = 0; row < teams.size(); ++row)
        teams[row] = txtRegion[row].text;
    return teams;
}

void SetupScreen::showState()
{
    // What was said before the change is no longer true of what is there now.
    if (m_history.note(textsOnScreen()) && news().number == m_newsBefore)
        say({});
    m_newsBefore = news().number;
    mnuUndo.enabled = m_history.canUndo();
    mnuRedo.enabled = m_history.canRedo();
    lblDemoMode.visible = m_isDemo;
    mnuDemoReset.enabled = m_isDemo;
    // A finalized pool of the person's own must not be replaced by the sample.
    mnuDemoSet.enabled = !m_isDemo && m_field.mayBeReplaced();

    const bool isOverridden = m_picker.isOverridden();
    cmdOverride.caption = isOverridden ? kSelectingCaption : kOverrideCaption;
    lstTeamNames.enabled = cmdAddName.enabled = cmdChangeName.enabled = cmdDeleteName.enabled = !isOverridden;
    m_editor.showState();
    m_picker.showState();
    cmdFinalize.enabled = !m_isFinalizing;

    showSeeds();
    showExplanations();
    showStatus();
}

void SetupScreen::showSeeds()
{
    for (const TeamRow row : allTeamRows()) {
        const std::string& seed = seedOf(m_seeds, row);
        lblSeed[row].text = seed;
        txtRegion[row].spokenName = "Region " + std::to_string(regionOf(row) + 1) + ", seed " + seed;
    }
}

void SetupScreen::showExplanations()
{
    const bool isOverridden = m_picker.isOverridden();
    for (const TeamRow row : allTeamRows())
        txtRegion[row].explanation = explanationOfTeamBox(isOverridden);
    cmdOverride.explanation = explanationOfOverride(isOverridden);
}

void SetupScreen::showStatus()
{
    // Never empty: a line that comes and goes would move everything above it. What is cut off when it is too long is at
    // its end.
    const Field field = fieldOnScreen();
    std::vector<std::string> sentences{field == m_saved ? kSavedStatus : kUnsavedStatus};
    if (m_isFinalizing)
        sentences.emplace_back(kFinalizeStatus);
    if (!m_fieldIsWhole)
        sentences.emplace_back(kUnreadableFieldStatus);
    if (std::string doubts = doubtsInShort(field); !doubts.empty())
        sentences.push_back(std::move(doubts));
    if (m_editor.isDamaged())
        sentences.emplace_back(kUnreadableListStatus);
    else if (!m_editor.isRead())
        sentences.emplace_back(kNoListStatus);
    status = joined(sentences, kBetweenSentences);
}

// The sample field is there to be looked at: the help on demo mode says what can and cannot be done with it.
std::string SetupScreen::helpTopic() const { return m_isDemo ? help_topic::kDemo : help_topic::kSetup; }

bool SetupScreen::keyPressed(ui::Control& control, const ui::KeyPress& press)
{
    // Escape is easily pressed by mistake; it would leave the screen, which drops unsaved edits without a question.
    if (press.key == ui::Key::Escape)
        return true;
    if (&control == &lstTeamNames)
        return m_picker.listKey(press);
    if (const auto row = txtRegion.indexOf<TeamRow>(control))
        return m_picker.boxKey(*row, press);
    if (sayCommentIsFull(control, press))
        return true;
    const bool isUpOrDown = press.key == ui::Key::Up || press.key == ui::Key::Down;
    return isUpOrDown && !isComment(control) && dynamic_cast<ui::TextBox*>(&control) != nullptr;
}

void SetupScreen::gotFocus(ui::Control& control)
{
    if (const auto row = txtRegion.indexOf<TeamRow>(control))
        m_picker.boxGotFocus(*row);
}

void SetupScreen::lostFocus(ui::Control& control)
{
    if (&control == &lstTeamNames)
        m_picker.listLostFocus();
}

bool SetupScreen::pasted(ui::TextBox& box, const std::string& text)
{
    if (isComment(box))
        return refusesComment(box, text);
    const auto row = txtRegion.indexOf<TeamRow>(box);
    return row && m_picker.pasted(*row, text, m_platform.dialogs);
}

bool SetupScreen::isComment(const ui::Control& control) const
{
    return &control == &txtComment1 || &control == &txtComment2;
}

/// @returns whether the comment has no room for the text, after saying so
bool SetupScreen::refusesComment(const ui::TextBox& comment, const std::string& pasted)
{
    const std::size_t length = comment.text.size() - static_cast<std::size_t>(comment.selectionLength) + pasted.size();
    if (length <= static_cast<std::size_t>(comment.maxLength))
        return false;
    m_platform.dialogs.show({kCommentCaption,
                             "A comment has room for " + std::to_string(comment.maxLength) +
                                 " characters.\r\nWith what you pasted it would have " + std::to_string(length) +
                                 ", so nothing was inserted.",
                             ui::Buttons::Ok, ui::Icon::Exclamation});
    return true;
}

/// @returns whether the key would make a comment longer than it may be, after saying so
bool SetupScreen::sayCommentIsFull(const ui::Control& control, const ui::KeyPress& press)
{
    if (!isComment(control) || press.control || press.alt ||
        (press.key != ui::Key::Character && press.key != ui::Key::Enter))
        return false;
    const auto& comment = static_cast<const ui::TextBox&>(control);
    if (comment.selectionLength > 0 || comment.text.size() < static_cast<std::size_t>(comment.maxLength))
        return false;
    say("A comment has room for " + std::to_string(comment.maxLength) + " characters.");
    return true;
}

void SetupScreen::leave()
{
    // Names that could not be written stay here, where they can be seen.
    if (!m_editor.saveChanges())
        return;
    m_screens.load(ScreenKind::Board);
    m_screens.unload(ScreenKind::Setup);
}

void SetupScreen::unloading()
{
    // Nothing is asked twice: after any answer there are no changes left to ask about.
    m_editor.saveChanges();
}

void SetupScreen::startDemoMode()
{
    if (enterDemo(m_folder, m_platform))
        reload(demoModeIsOn(m_folder) ? kDemoNews : "");
}

void SetupScreen::resetDemoMode()
{
    if (const std::optional<std::string> news = leaveDemo(m_folder, m_platform))
        reload(*news);
}

void SetupScreen::reload(const std::string& news)
{
    if (!m_editor.saveChanges()) {
        // Names that could not be written stay here, beside the pool that is there now.
        readPool();
        say(news);
        return;
    }
    m_screens.unload(ScreenKind::Setup);
    m_screens.load(ScreenKind::Setup, news);
}

void SetupScreen::showHelpText() { showHelp(m_folder, m_platform, helpTopic()); }

} // namespace tallyhoop
