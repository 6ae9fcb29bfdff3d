// screens/saving.cpp - the texts, and the check whether somebody else has changed the file.
#include "screens/saving.h"

#include "base/text.h"
#include "files/file_names.h"
#include "files/player_names_file.h"
#include "files/pool_backup.h"
#include "files/replace_file.h"
#include "screens/file_changes.h"
#include "screens/help_topics.h"

#include <cstdint>
#include <system_error>
#include <utility>

namespace tallyhoop {

namespace {

constexpr const char* kCheckSpace = " Check for adequate space in the Application Directory";

ui::Message writingTrouble(std::string_view shownPath, std::string_view advice)
{
    return {"** ERROR IN WRITING FILE **",
            "There is a problem writing file: " + std::string{shownPath} + "\r\n" + std::string{advice},
            ui::Buttons::Ok, ui::Icon::Critical};
}

ui::Message changedMeanwhile(std::string_view shownPath)
{
    return {"** FILE HAS BEEN CHANGED **",
            "Another program has changed the file: " + std::string{shownPath} +
                "\r\nsince it was opened or last saved here.\r\n"
                " \r\n"
                "If you continue, the changes of the other program will be lost..\r\n"
                " \r\n"
                "Do you want to replace the file?",
            ui::Buttons::YesNo,
            ui::Icon::Question,
            {},
            true,
            "&Show Changes"};
}

/// @param reason of the system, when there is one
ui::Message cannotBeKept(const std::filesystem::path& file, const Failure& reason)
{
    return {"** ERROR IN WRITING FILE **",
            joinLines({"This file is there, but could not be read, or not whole:", shown(file), " ",
                       "It was not replaced, because it could not be kept first:", reason.message}),
            ui::Buttons::Ok, ui::Icon::Critical};
}

ui::Message keptIn(const std::filesystem::path& file, const std::filesystem::path& backup)
{
    return {"",
            joinLines({"This file could not be read, or not whole, and has been replaced now:", shown(file), " ",
                       "What it held before is kept in the folder:", shown(backup)}),
            ui::Buttons::Ok, ui::Icon::Information};
}

/// Everything about one save that stays the same while the person is asked.
struct Saving {
    const ui::Platform& platform;
    KnownFiles& known;
    const std::filesystem::path& file;
    std::string_view bytes;
    std::string_view shownPath;
    std::string_view advice;
    DescribeChanges changesIn;
};

void showChanges(const Saving& saving)
{
    const FileContent now = KnownFiles::contentOf(saving.file);
    std::vector<std::string> lines;
    if (!now.isThere)
        lines = {"The file is not there any more."};
    else if (now.trouble)
        lines = {"The file cannot be read:", now.trouble->message};
    else
        lines = fewEnoughForAMessage(saving.changesIn(now.bytes));
    if (lines.empty())
        lines = {"Nothing that can be seen is different."};
    lines.insert(lines.begin(), {shown(saving.file), " "});
    saving.platform.dialogs.show({"CHANGES IN THE FILE", joinLines(lines), ui::Buttons::Ok, ui::Icon::Information});
}

bool mayChangesBeLost(const Saving& saving)
{
    for (;;) {
        const ui::Answer answer = saving.platform.dialogs.show(changedMeanwhile(shown(saving.file)));
        if (answer != ui::Answer::More)
            return answer == ui::Answer::Yes;
        showChanges(saving);
    }
}

void showWritingTrouble(ui::Dialogs& dialogs, std::string_view shownPath, std::string_view advice,
                        const Failure& failure)
{
    dialogs.show(writingTrouble(shownPath, advice));
    if (failure.message == kHeldByAnother)
        showTrouble(dialogs, failure);
}

/// Replaces the file, after what would be lost unread is kept. Shows why not, except when somebody else has changed it.
KnownFiles::Replaced replaceKeeping(const Saving& saving, const FileContent& seen)
{
    ui::Dialogs& dialogs = saving.platform.dialogs;
    std::optional<std::filesystem::path> backup;
    if (saving.known.wouldLoseUnread(saving.file, seen)) {
        const Result<std::filesystem::path> kept = backUpFile(saving.file, saving.platform.clock.now());
        if (!kept) {
            dialogs.show(cannotBeKept(saving.file, kept.failure()));
            return KnownFiles::Replaced::No;
        }
        backup = *kept;
    }
    const KnownFiles::Outcome outcome = saving.known.replace(saving.file, saving.bytes, seen);
    if (outcome.replaced == KnownFiles::Replaced::No)
        showWritingTrouble(dialogs, saving.shownPath, saving.advice, outcome.failure);
    if (backup && outcome.replaced == KnownFiles::Replaced::Yes) {
        dialogs.show(keptIn(saving.file, *backup));
    } else if (backup) {
        std::error_code ignored;
        std::filesystem::remove_all(*backup, ignored); // the file itself is still there
    }
    return outcome.replaced;
}

} // namespace

bool saveFile(const ui::Platform& platform, KnownFiles& known, const std::filesystem::path& file,
              std::string_view bytes, std::string_view shownPath, std::string_view advice,
              const DescribeChanges& changesIn)
{
    const auto changedLinesIn = [bytes](std::string_view theirs) { return changedLines(bytes, theirs); };
    const Saving saving{platform, known, file, bytes, shownPath, advice, changesIn ? changesIn : changedLinesIn};
    FileContent seen = KnownFiles::contentOf(file);
    bool mustAsk = known.wouldUndoChanges(file, seen, bytes);
    for (;;) {
        if (mustAsk && !mayChangesBeLost(saving))
            return false;
        const KnownFiles::Replaced replaced = replaceKeeping(saving, seen);
        if (replaced != KnownFiles::Replaced::ChangedMeanwhile)
            return replaced == KnownFiles::Replaced::Yes;
        seen = KnownFiles::contentOf(file);
        mustAsk = true; // what somebody else saves while the person is asked, is asked about too
    }
}

bool saveDataFile(const ui::Platform& platform, KnownFiles& known, const DataFolder& folder, std::string_view name,
                  std::string_view bytes)
{
    return saveFile(platform, known, folder.pathTo(name), bytes, folder.shownPathOf(name), kCheckSpace);
}

void createDataFile(ui::Dialogs& dialogs, const DataFolder& folder, std::string_view name, std::string_view bytes,
                    bool& troubleSaid)
{
    const Result<Done> created = replaceFile(folder.pathTo(name), bytes, [&] { return !folder.exists(name); });
    if (created || troubleSaid || folder.exists(name))
        return;
    troubleSaid = true;
    showWritingTrouble(dialogs, folder.shownPathOf(name), kCheckSpace, created.failure());
}

void showReadingTrouble(ui::Dialogs& dialogs, const std::filesystem::path& file)
{
    dialogs.show({"** ERROR IN OPENING FILE - ReadSelections Routine **",
                  "There is a problem opening: " + shown(file) + "\r\n\r\n The program will attempt to continue ......",
                  ui::Buttons::Ok, ui::Icon::Critical});
    std::error_code ignored;
    const std::uintmax_t size = std::filesystem::file_size(file, ignored);
    if (!ignored && size > kMostBytesOfSelection)
        showTrouble(dialogs, Failure{joinLines({"This file is larger than 1 MB, and no selection is as large as that:",
                                                shown(file), " ", "Nothing of it was read."})});
}

std::vector<FolderFile> listSelections(ui::Dialogs& dialogs, const DataFolder& folder)
{
    Read<std::vector<FolderFile>> listed = folder.list(file_name::kSelectionExtension);
    if (listed.trouble)
        showListingTrouble(dialogs, folder, *listed.trouble);
    return std::move(listed.value);
}

void showListingTrouble(ui::Dialogs& dialogs, const DataFolder& folder, const Failure& reason)
{
    showTrouble(dialogs, Failure{joinLines({"The selections in this folder cannot be listed, or not all of them:",
                                            shown(folder.folder()), reason.message})});
}

std::string showFolder(const ui::Platform& platform, const DataFolder& folder)
{
    const std::string where = shown(folder.folder());
    return platform.programs.openFolder(folder.folder()) ? "The folder of the pool: " + where
                                                         : "The folder cannot be shown here. It is " + where;
}

void showTrouble(ui::Dialogs& dialogs, const Failure& failure)
{
    dialogs.show({"", failure.message, ui::Buttons::Ok, ui::Icon::Critical});
}

void showFaultyPlayerList(ui::Dialogs& dialogs, const Failure& fault)
{
    dialogs.show({"** ERROR Found in PLAYERNAMES.CSV file **", fault.message, ui::Buttons::Ok, ui::Icon::Critical,
                  help_topic::kRepair});
}

bool playerListIsSound(ui::Dialogs& dialogs, const DataFolder& folder)
{
    const Result<Done> checked = checkPlayerNames(folder);
    if (!checked)
        showFaultyPlayerList(dialogs, checked.failure());
    return static_cast<bool>(checked);
}

} // namespace tallyhoop
