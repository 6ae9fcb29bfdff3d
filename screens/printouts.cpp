// screens/printouts.cpp - asks for files and folders, prints and saves, and says what has become of it.
#include "screens/printouts.h"

#include "base/text.h"
#include "base/windows1252.h"
#include "files/data_folder.h"
#include "files/file_names.h"
#include "screens/printing_trouble.h"
#include "screens/saving_as.h"
#include "ui/work.h"

#include <functional>
#include <optional>
#include <string_view>
#include <utility>

namespace tallyhoop {

namespace {

namespace fs = std::filesystem;

constexpr const char* kPdfExtension = ".PDF";

/// Thousands of pages take a moment to paint; the pointer is normal again before a failure is shown.
bool deliverBusily(const ui::Platform& platform, const std::string& what, const std::function<Result<Done>()>& deliver)
{
    const Result<Done> delivered = [&] {
        const Work work{platform.progress, what, 1};
        return deliver();
    }();
    if (!delivered)
        showPrintingTrouble(platform.dialogs);
    return static_cast<bool>(delivered);
}

/// @returns the name of a PDF file after a title, such as "Demo Prophet_DP.PDF" after "Demo Prophet_DP.THC"
std::string pdfName(std::string title)
{
    if (endsWithFolded(title, file_name::kSelectionExtension))
        title.resize(title.size() - std::string_view{file_name::kSelectionExtension}.size());
    return withoutUnsafeCharacters(title + kPdfExtension);
}

/// @returns where the printouts go, one file each; empty when the person cancelled
std::vector<fs::path> chooseFiles(ui::Dialogs& dialogs, const fs::path& folder,
                                  const std::vector<ui::Printout>& printouts)
{
    if (printouts.size() == 1) {
        const std::string& title = ui::titleOf(printouts.front());
        const auto file = chooseFileToSave(
            dialogs, {"Save as PDF: " + title, "PDF files (*.PDF)", "*.PDF", folder, pdfName(title)}, kPdfExtension);
        return file ? std::vector{*file} : std::vector<fs::path>{};
    }
    const auto chosen = dialogs.chooseFolder("Save as PDF: choose the folder", folder);
    if (!chosen)
        return {};
    std::vector<fs::path> files;
    files.reserve(printouts.size());
    for (const ui::Printout& printout : printouts)
        files.push_back(DataFolder{*chosen}.pathTo(pdfName(ui::titleOf(printout))));
    return files;
}

/// @param saved as many of the files, from the first
std::string savedSentence(const std::vector<fs::path>& files, std::size_t saved)
{
    if (saved == 0)
        return {};
    if (files.size() == 1)
        return "Saved " + shown(files.front().filename()) + ".";
    const std::string all = std::to_string(files.size());
    return "Saved " + (saved < files.size() ? std::to_string(saved) + " of " : std::string{}) + all + " PDF files in " +
           shown(files.front().parent_path()) + ".";
}

} // namespace

std::string printedSentence(std::span<const std::string> titles) { return "Printed " + joined(titles, ", ") + "."; }

PrintOutcome printOut(const ui::Platform& platform, const ui::Printout& printout)
{
    if (!platform.printer.isThere()) {
        showPrintingTrouble(platform.dialogs);
        return {kNoPrinter};
    }
    const std::string& title = ui::titleOf(printout);
    const fs::path file = platform.printer.outputFile();
    if (!deliverBusily(platform, title, [&] { return platform.printer.print(printout); }))
        return {};
    if (!file.empty())
        return {savedSentence({file}, 1)};
    return {printedSentence(std::span{&title, 1}), true};
}

std::string saveAsPdf(const ui::Platform& platform, const fs::path& folder, const std::vector<ui::Printout>& printouts)
{
    if (printouts.empty())
        return {};
    const std::vector<fs::path> files = chooseFiles(platform.dialogs, folder, printouts);
    if (files.empty() || !mayReplace(platform.dialogs, files))
        return {};
    for (std::size_t i = 0; i < files.size(); ++i)
        if (!deliverBusily(platform, ui::titleOf(printouts[i]),
                           [&] { return platform.printer.savePdf(printouts[i], files[i]); }))
            return savedSentence(files, i);
    return savedSentence(files, files.size());
}

std::string showPreview(const ui::Platform& platform, const fs::path& folder, std::vector<ui::Printout> printouts)
{
    if (printouts.empty())
        return {};
    std::string said;
    const auto print = [&](const ui::Printout& printout) {
        if (platform.printer.choosePrinter())
            said = printOut(platform, printout).sentence;
    };
    const auto save = [&](const ui::Printout& printout) { said = saveAsPdf(platform, folder, {printout}); };
    platform.printer.preview({std::move(printouts), print, save});
    return said;
}

} // namespace tallyhoop
