// screens/import/import_screen_files.cpp - what is read, and what is written.
#include "screens/import/import_screen.h"

#include "base/numbers.h"
#include "base/text.h"
#include "intake/gathering.h"
#include "intake/limits.h"
#include "intake/review_words.h"
#include "screens/import/entry_words.h"
#include "ui/work.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace tallyhoop {

namespace {

namespace fs = std::filesystem;

constexpr const char* kPatterns = "*.THC *.EML *.TXT *.CSV";
constexpr const char* kStopped = "Stopped: nothing was added to the list.";
constexpr const char* kNothingThere = "There is no file of the kinds that are read: .THC, .EML, .TXT, .CSV.";

/// @returns how many files will be read, for the progress; those of a folder included
std::size_t filesIn(const std::vector<fs::path>& chosen)
{
    std::size_t files = chosen.size();
    for (const fs::path& path : chosen) {
        std::error_code error;
        fs::directory_iterator entry{path, error};
        for (; !error && entry != fs::directory_iterator{} && files < kMostFilesHandedIn; entry.increment(error))
            files += EntryReaders::isRead(shown(entry->path().filename())) ? 1 : 0;
    }
    return std::min(files, kMostFilesHandedIn);
}

} // namespace

void ImportScreen::chooseFiles()
{
    const std::string filter = "Selections, mails, texts, spreadsheets (" + std::string{kPatterns} + ")";
    const std::vector<fs::path> files =
        m_platform.dialogs.openFiles({"Choose Files", filter, kPatterns, m_lastFolder, {}});
    if (files.empty())
        return;
    m_lastFolder = files.front().parent_path();
    readFiles(files);
}

void ImportScreen::chooseFolder()
{
    const std::optional<fs::path> folder = m_platform.dialogs.chooseFolder("Choose Folder", m_lastFolder);
    if (!folder)
        return;
    m_lastFolder = *folder;
    readFiles({*folder});
}

/// A text stays in the box while none of it can be imported: it may be mended there and read again.
void ImportScreen::readText()
{
    const auto before = static_cast<std::ptrdiff_t>(m_pile.size());
    take(m_readers.readPasted(txtPasted.text));
    const std::vector<ReviewRow>& rows = m_pile.review().rows;
    const auto isOfUse = [](const ReviewRow& row) { return row.effect != Effect::Refused; };
    if (std::any_of(rows.begin() + before, rows.end(), isOfUse))
        txtPasted.text.clear();
}

void ImportScreen::readFiles(const std::vector<fs::path>& chosen)
{
    std::vector<HandedIn> entries;
    {
        Work work{m_platform.progress, "Reading what was handed in", filesIn(chosen)};
        entries = gatherEntries(chosen, m_readers, [&] { return work.step(); });
        if (work.cancelled()) {
            say(kStopped);
            return;
        }
    }
    if (entries.empty())
        say(kNothingThere);
    else
        take(std::move(entries));
}

void ImportScreen::take(std::vector<HandedIn> entries)
{
    const std::size_t known = m_pile.size();
    const std::size_t count = entries.size();
    Work work{m_platform.progress, "Looking at the entries", known + count};
    if (!m_pile.add(std::move(entries), [&] { return work.step(); })) {
        say(kStopped);
        return;
    }
    listChanged();
    grdEntries.current = ui::GridCell{known, static_cast<std::size_t>(EntryColumn::Name)};
    focused = &grdEntries;
    const std::string more = known == 0 ? "" : counted(count, "entry was", "entries were") + " added. ";
    say(more + m_pile.review().summary);
}

/// Typing has no limit but patience; a paste can be anything.
bool ImportScreen::pasted(ui::TextBox& box, const std::string& text)
{
    if (&box != &txtPasted || text.size() + txtPasted.text.size() <= kMostBytesHandedIn)
        return false;
    say("This text is too large: 1 MB can be read at a time. Save it as a .TXT file in parts instead.");
    return true;
}

void ImportScreen::import()
{
    EntryPile::Imported imported;
    {
        Work work{m_platform.progress, "Importing selections", m_pile.ticked()};
        imported = m_pile.import(m_platform.clock.now(), [&] { return work.step(); });
    }
    m_summary = imported.outcome.summary + aboutBoard(imported.files);
    m_shared.board.selectionsWereWritten(imported.files);
    grdEntries.current.reset();
    if (m_pile.size() > 0)
        grdEntries.current = ui::GridCell{0, static_cast<std::size_t>(EntryColumn::Name)};
    focused = &txtSummary;
    listChanged();
    say(m_summary.substr(0, m_summary.find('\r')));
}

/// @returns a paragraph to follow the summary; empty when nothing on the board is concerned
std::string ImportScreen::aboutBoard(const std::vector<fs::path>& written) const
{
    const fs::path open = m_shared.board.openFile();
    const auto isOpen = [&](const fs::path& file) { return isSameFile(file, open); };
    if (open.empty() || !m_shared.board.holdsUnsavedChanges() || std::ranges::none_of(written, isOpen))
        return {};
    return "\r\n\r\n" + shown(open.filename()) +
           " is open on the board with changes that are not saved: they are still there. Saving them asks before it "
           "replaces what was imported.";
}

void ImportScreen::copySummary()
{
    m_platform.clipboard.put(m_summary);
    say("The summary is on the clipboard.");
}

} // namespace tallyhoop
