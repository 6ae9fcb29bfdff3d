// screens/import/import_screen.cpp - ticks and keys; everything shown is derived in showState().
#include "screens/import/import_screen.h"

#include "base/numbers.h"
#include "base/text.h"
#include "intake/limits.h"
#include "intake/review_words.h"
#include "screens/board/board_geometry.h"
#include "screens/help_topics.h"
#include "screens/import/entry_words.h"

#include <utility>

namespace tallyhoop {

namespace {

namespace fs = std::filesystem;

const ui::Message kNotImported{"ENTRIES NOT IMPORTED",
                               "There are entries that are ticked, or a text that was not read:\r\n"
                               "they are not imported yet. If you continue, the list is forgotten.",
                               ui::Buttons::OkCancel,
                               ui::Icon::Question,
                               help_topic::kImport,
                               true};

std::string nameIn(const ReviewRow& row)
{
    const std::string name = withoutOuterBlanks(row.handedIn.entry.name);
    return name.empty() ? "This entry" : asOneLine(name.substr(0, kLongestNameHandedIn));
}

} // namespace

ImportScreen::ImportScreen(const DataFolder& folder, const ui::Platform& platform, Screens& screens,
                           const Shared& shared, TakeMailApart takeMailApart)
    : ui::Screen{"frmImportSelections", "Import Selections"},
      EntryBoard{this},
      m_folder{folder},
      m_platform{platform},
      m_screens{screens},
      m_shared{shared},
      m_readers{shared.field, std::move(takeMailApart)},
      m_pile{folder, shared.field},
      m_lastFolder{folder.folder()}
{
    txtPasted.multiLine = txtDetails.multiLine = txtSummary.multiLine = true;
    txtDetails.locked = txtSummary.locked = true;
    arrangeTable();
    explain();
    focused = &cmdChooseFiles;
}

void ImportScreen::arrangeTable()
{
    grdEntries.columns = entryColumns();
    grdEntries.wholeRows = true;
    grdEntries.emptyNote = "Choose files or a folder, paste a text, or drop files onto this window.";
    grdEntries.rowReached = [](std::size_t) {}; // showState() shows its bracket
    grdEntries.cellPressed = [this](std::size_t row, std::size_t column) { pressCell(row, column); };
}

void ImportScreen::explain()
{
    explanation = "Nothing is written before Import: what is ticked then becomes selections and players.";
    cmdChooseFiles.explanation = "Reads selections, mails, texts and spreadsheets that you choose: several at once.";
    cmdChooseFolder.explanation = "Reads every selection, mail, text and spreadsheet in a folder.";
    txtPasted.spokenName = "Texts or mails to read";
    txtPasted.explanation = "Paste one entry or many, as they came by mail; quoted or wrapped lines do not matter.";
    cmdReadText.explanation = "Adds the entries in the pasted text to the list.";
    grdEntries.spokenName = "Entries";
    cmdTickAll.explanation =
        "Ticks every complete entry that would change something: late ones, too, but no doubtful ones.";
    cmdUntickAll.explanation = "Takes all ticks away.";
    cmdEmptyList.explanation = "Forgets all entries of the list; no file is changed.";
    cmdImport.explanation = "Writes every entry that is ticked, and enters its player into the player list.";
    txtDetails.spokenName = "About this entry";
    txtDetails.explanation = "All that is known of the chosen entry, and every reason why it is refused.";
    txtSummary.spokenName = "What was imported";
    txtSummary.explanation = "What was written and what was not.";
    cmdCopy.explanation = "Puts the summary on the clipboard.";
    cmdExit.explanation = "Back to the board.";
}

std::string ImportScreen::helpTopic() const { return help_topic::kImport; }

void ImportScreen::load()
{
    const std::vector<fs::path> dropped = std::exchange(m_shared.droppedFiles, {});
    if (!dropped.empty())
        readFiles(dropped);
}

void ImportScreen::unloading() { m_shared.droppedFiles.clear(); }

void ImportScreen::closeRequested()
{
    const bool isWorthAQuestion = m_pile.ticked() > 0 || !withoutOuterBlanks(txtPasted.text).empty();
    if (!isWorthAQuestion || m_platform.dialogs.show(kNotImported) == ui::Answer::Ok)
        m_screens.unload(ScreenKind::Import);
}

bool ImportScreen::keyPressed(ui::Control& control, const ui::KeyPress& press)
{
    if (const std::optional<Position> position = positionOfLabel(control))
        return pressedPlace(*position, press);
    const bool isSpace = press.key == ui::Key::Character && press.character == ' ' && !press.control && !press.alt;
    if (&control != &grdEntries || !isSpace || !currentRow())
        return false;
    toggle(*currentRow());
    return true;
}

bool ImportScreen::pressedPlace(Position position, const ui::KeyPress& press)
{
    static const BoardGeometry kShape = layOutBoard(1000, 600);
    const std::optional<Direction> direction = directionOf(press.key);
    if (!direction || press.control || press.alt)
        return false;
    focused = &lblRegion[neighbour(kShape, position, *direction)];
    return true;
}

void ImportScreen::gotFocus(ui::Control& control)
{
    if (const std::optional<Position> position = positionOfLabel(control))
        makeTabStop(*position);
}

void ImportScreen::pressCell(std::size_t row, std::size_t column)
{
    if (static_cast<EntryColumn>(column) == EntryColumn::Tick)
        toggle(row);
}

void ImportScreen::toggle(std::size_t row)
{
    const std::vector<ReviewRow>& rows = m_pile.review().rows;
    if (rows.at(row).effect == Effect::Refused) {
        say(nameIn(rows[row]) + " is refused and cannot be ticked: " + rows[row].reasons.front());
        return;
    }
    const std::size_t before = m_pile.ticked();
    const bool isTicked = !rows[row].isTicked;
    m_pile.setTicked(row, isTicked);
    listChanged();
    const bool isInstead = isTicked && m_pile.ticked() == before;
    say(nameIn(rows[row]) + ": " + (isTicked ? ui::kTicked : ui::kNotTicked) +
        (isInstead ? ", instead of another entry for the same file." : "."));
}

void ImportScreen::tickAllComplete()
{
    const std::size_t leftOut = m_pile.tickAllComplete();
    listChanged();
    std::string words = counted(m_pile.ticked(), "entry is ticked.", "entries are ticked.");
    if (leftOut > 0)
        words += " " + counted(leftOut, "was left out, being doubtful: its row says why.",
                               "were left out, being doubtful: their rows say why.");
    say(words);
}

void ImportScreen::untickAll()
{
    m_pile.untickAll();
    listChanged();
    say("No entry is ticked.");
}

void ImportScreen::emptyList()
{
    m_pile.clear();
    grdEntries.current.reset();
    focused = &cmdChooseFiles;
    listChanged();
    say("The list is empty; no file was changed.");
}

std::optional<std::size_t> ImportScreen::currentRow() const
{
    if (!grdEntries.current || grdEntries.current->row >= m_pile.size())
        return std::nullopt;
    return grdEntries.current->row;
}

bool ImportScreen::isOnBoard(const ReviewRow& row) const
{
    const fs::path open = m_shared.board.openFile();
    return row.effect == Effect::Replaces && !open.empty() && m_shared.board.holdsUnsavedChanges() &&
           isSameFile(row.file, open);
}

void ImportScreen::showState()
{
    if (std::exchange(m_isListStale, false))
        showList();
    showCurrent();
    const std::size_t ticked = m_pile.ticked();
    const bool isEmpty = m_pile.size() == 0;
    lblCounts.text = isEmpty ? "Nothing is handed in yet." : m_pile.review().summary;
    status = isEmpty ? std::string{} : std::to_string(ticked) + " of " + std::to_string(m_pile.size()) + " ticked";
    cmdReadText.enabled = !withoutOuterBlanks(txtPasted.text).empty();
    cmdTickAll.enabled = cmdUntickAll.enabled = cmdEmptyList.enabled = !isEmpty;
    cmdImport.enabled = ticked > 0;
    txtSummary.text = m_summary;
    lblSummary.visible = txtSummary.visible = cmdCopy.visible = !m_summary.empty();
    grdEntries.explanation = grdEntries.current
                                 ? explanationOf(static_cast<EntryColumn>(grdEntries.current->column))
                                 : "Choose an entry to see its bracket; Space ticks it, or takes its tick away.";
}

void ImportScreen::showList()
{
    grdEntries.rows.clear();
    grdEntries.muted.clear();
    const std::vector<ReviewRow>& rows = m_pile.review().rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        grdEntries.rows.push_back(entryCells(rows[i], i, isOnBoard(rows[i])));
        grdEntries.muted.push_back(rows[i].effect == Effect::Refused);
    }
    ++grdEntries.revision;
}

void ImportScreen::showCurrent()
{
    const std::optional<std::size_t> current = currentRow();
    const ReviewRow* const row = current ? &m_pile.review().rows[*current] : nullptr;
    showEntry(m_shared.field, row);
    lblEntry.text = row != nullptr ? entryHeading(*row, *current) : "No entry is chosen";
    txtDetails.text = row != nullptr ? entryDetails(*row, isOnBoard(*row)) : std::string{};
}

} // namespace tallyhoop
