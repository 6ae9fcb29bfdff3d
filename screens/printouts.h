// screens/printouts.h - printouts to the printer, to a preview and to PDF files, whichever screen they come from.
#pragma once

#include "ui/platform.h"

#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace tallyhoop {

/// What there is instead of a printer, where none is installed.
inline constexpr const char* kNoPrinter = "No printer is installed: Preview and Save as PDF work without one.";

/// What has become of a printout.
struct PrintOutcome {
    std::string sentence;   ///< for the status line; empty when a message has said it
    bool isOnPaper = false; ///< it went to a printer, not to a file, and nothing failed
};

/// Prints under a busy pointer, and says so when that fails.
PrintOutcome printOut(const ui::Platform& platform, const ui::Printout& printout);

/// @returns "Printed Tournament Standings, Player Listing."
std::string printedSentence(std::span<const std::string> titles);

/// Saves printouts as PDF files under a busy pointer, and says so when that fails. The person names the file of one
/// printout, and the folder of several, which are called as their titles are. A name without the extension ".PDF" in
/// any case gets it; existing files are replaced after one question.
/// @param folder where the dialog begins
/// @returns what has happened, a sentence for the status line, with those that were saved before one that could not be;
///          empty when nothing was, or the person does not want it after all
std::string saveAsPdf(const ui::Platform& platform, const std::filesystem::path& folder,
                      const std::vector<ui::Printout>& printouts);

/// Shows printouts in one window, from which each can be printed, on a printer that the person chooses, or saved.
/// @param printouts nothing is shown when there are none
/// @returns the sentence of what was done last
std::string showPreview(const ui::Platform& platform, const std::filesystem::path& folder,
                        std::vector<ui::Printout> printouts);

} // namespace tallyhoop
