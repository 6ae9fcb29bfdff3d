// screens/reports/report_output.h - a report as it goes out: a printout in mid-page, or attachments of a message.
#pragma once

#include "reports/report_layout.h"
#include "reports/report_table.h"
#include "screens/hand_overs.h"
#include "screens/printer_setup.h"
#include "ui/mail.h"
#include "ui/printer.h"

#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace tallyhoop {

/// @returns the printer's word for the way a report's page is turned
ui::Orientation orientationOf(PageOrientation orientation);

/// @returns the characters of the longest line, trailing blanks not counted
std::size_t longestLine(std::span<const std::string> lines);

/// Says how far a block of text is shifted to the right so that it is in the middle of a page, at 12 characters to the
/// inch and with half an inch kept free.
/// @param pageWidthTwips printable width, 1440 to the inch
/// @returns twips; 0 when the text is wider than the page
int originTwips(int pageWidthTwips, std::size_t longestLine);

/// @param title the print job's name
ui::TextPrintout textPrintout(const std::string& title, const ReportLines& lines, const PrinterSetup& setup,
                              ui::Printer& printer);

/// @returns "Written to the program's folder: RPTOPT1.TXT, RPTOPT3.TXT."
std::string writtenSentence(std::span<const std::filesystem::path> files);

/// Makes the message that carries report files: the draft's text, then ten blanks as places for the attachments.
/// @param files at most eight, in order
ui::MailMessage reportMessage(const MailDraft& draft, std::span<const std::filesystem::path> files);

} // namespace tallyhoop
