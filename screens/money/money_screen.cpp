// screens/money/money_screen.cpp - fees and prizes from the screen to the disk, and the final sheet made of them.
#include "screens/money/money_screen.h"

#include "base/lines.h"
#include "base/text.h"
#include "files/file_names.h"
#include "output/final_sheet_making.h"
#include "pool/projection.h"
#include "reports/outlook_rows.h"
#include "screens/help_topics.h"
#include "screens/money/money_words.h"
#include "screens/printer_setup.h"
#include "screens/printouts.h"
#include "screens/reports/report_output.h"
#include "screens/saving.h"
#include "ui/work.h"

#include <array>
#include <utility>

namespace tallyhoop {

namespace {

constexpr const char* kCaption = "Money";
constexpr const char* kSheetTrouble = "Tallyhoop - frmMoney, Final Sheet";

const ui::Message kNotSaved{"MONEY NOT SAVED",
                            "The changes of fees and prizes are not saved yet.\r\n"
                            "If you continue, they are forgotten.",
                            ui::Buttons::OkCancel,
                            ui::Icon::Question,
                            help_topic::kMoney,
                            true};

/// Shows everything that is wrong with the file: what is not understood is lost when the file is saved.
void showFaults(ui::Dialogs& dialogs, const std::vector<Failure>& faults)
{
    std::vector<std::string> lines;
    lines.reserve(faults.size() + 2);
    for (const Failure& fault : faults)
        lines.push_back(fault.message);
    lines.insert(lines.end(), {" ", "What could be read is on the screen."});
    dialogs.show({kCaption, joinLines(lines), ui::Buttons::Ok, ui::Icon::Critical, help_topic::kMoney});
}

} // namespace

MoneyScreen::MoneyScreen(const DataFolder& folder, OpenedPool opened, const ui::Platform& platform, Screens& screens)
    : ui::Screen{"frmMoney", kCaption},
      PrizeBoxes{this},
      m_folder{folder},
      m_opened{std::move(opened)},
      m_platform{platform},
      m_screens{screens}
{
    grdFees.columns = feeColumns();
    grdFees.wholeRows = true;
    grdFees.emptyNote = "No players yet: every selection saved in the program's folder is one.";
    grdFees.cellPressed = [this](std::size_t row, std::size_t column) {
        if (static_cast<FeeColumn>(column) == FeeColumn::Paid)
            toggle(row);
    };
    explain();
    cmdSave.isDefault = true;
    focused = &txtEntryFee;
}

void MoneyScreen::explain()
{
    grdFees.spokenName = "Who has paid";
    grdFees.explanation = "Click Paid, or press Space, to tick a player who has paid, or to take the tick away.";
    cmdTickAll.explanation = "Ticks everybody as having paid.";
    cmdUntickAll.explanation = "Takes all ticks away.";
    cmdFinalSheet.explanation =
        "Writes places and prizes to FINAL.TXT in the program's folder; possible from the last four on.";
    cmdPrint.explanation = "Prints places and prizes; possible from the last four on.";
    cmdPreview.explanation = "Shows places and prizes as they will be printed; possible from the last four on.";
    cmdSave.explanation = "Saves fees, prizes and ticks in PRIZES.CSV.";
    cmdExit.explanation = "Back to the board.";
}

std::string MoneyScreen::helpTopic() const { return help_topic::kMoney; }

void MoneyScreen::load()
{
    showUnread(m_platform.dialogs, m_opened);
    const std::filesystem::path file = m_folder.pathTo(file_name::kPrizes);
    m_known.note(file);
    const Read<Prizes> read = readPrizes(m_folder);
    if (read.trouble) {
        m_known.noteDamage(file);
        showFaults(m_platform.dialogs, readPrizesFaults(m_folder));
    }
    m_trouble = read.trouble;
    fill(read.value.table);
    m_fees = {m_opened.pool.entries, read.value.paid};
    m_saved = onScreen();
}

void MoneyScreen::closeRequested()
{
    if (!unsaved || m_platform.dialogs.show(kNotSaved) == ui::Answer::Ok)
        m_screens.unload(ScreenKind::Money);
}

bool MoneyScreen::keyPressed(ui::Control& control, const ui::KeyPress& press)
{
    const bool isSpace = press.key == ui::Key::Character && press.character == ' ' && !press.control && !press.alt;
    if (&control != &grdFees || !isSpace || !grdFees.current || grdFees.current->row >= m_fees.players())
        return false;
    toggle(grdFees.current->row);
    return true;
}

void MoneyScreen::toggle(std::size_t row)
{
    const bool hasPaid = !m_fees.hasPaid(row);
    m_fees.setPaid(row, hasPaid);
    say(asOneLine(nameInSentence(m_opened.pool.entries.at(row))) + (hasPaid ? " has paid." : " has not paid."));
}

void MoneyScreen::tickAll(bool hasPaid)
{
    m_fees.setAll(hasPaid);
    say(hasPaid ? "Everybody has paid." : "Nobody has paid.");
}

std::vector<std::string> MoneyScreen::onScreen() const
{
    std::vector<std::string> all = entered();
    const std::vector<std::string> paid = m_fees.filesOfPaid(m_opened.pool.entries);
    all.insert(all.end(), paid.begin(), paid.end());
    return all;
}

/// @returns nothing when something in the boxes cannot be used; then a message has said it, and the box has the focus
std::optional<PrizeTable> MoneyScreen::usableTable()
{
    PrizeTable table;
    const std::optional<BoxFault> fault = read(table);
    if (!fault)
        return table;
    focused = fault->box;
    m_platform.dialogs.show({kCaption, fault->text, ui::Buttons::Ok, ui::Icon::Exclamation, help_topic::kMoney});
    return std::nullopt;
}

void MoneyScreen::save()
{
    say({});
    const std::optional<PrizeTable> table = usableTable();
    if (!table)
        return;
    const std::string bytes = prizesFile({*table, m_fees.filesOfPaid(m_opened.pool.entries)});
    if (!saveDataFile(m_platform, m_known, m_folder, file_name::kPrizes, bytes)) {
        say("Not saved.");
        return;
    }
    m_trouble.reset();
    m_saved = onScreen();
    say("Fees and prizes are saved.");
}

/// @returns nothing when there is no sheet; then a message has said why
std::optional<ReportLines> MoneyScreen::sheetLines()
{
    say({});
    const std::optional<PrizeTable> table = usableTable();
    if (!table)
        return std::nullopt;
    const auto made = [&] {
        const Work work{m_platform.progress, kFinalSheetName, 1};
        return makeFinalSheet(m_opened, *table, m_trouble);
    }();
    if (!made) {
        m_platform.dialogs.show({kSheetTrouble, made.failure().message, ui::Buttons::Ok, ui::Icon::Critical});
        return std::nullopt;
    }
    return finalSheetLines(m_opened.pool.field.title, *made);
}

void MoneyScreen::saveSheet()
{
    const std::optional<ReportLines> lines = sheetLines();
    if (!lines)
        return;
    if (const Result<Done> written = m_folder.write(kFinalSheetFile, fileOf(*lines)); !written) {
        m_platform.dialogs.show(
            {kSheetTrouble, std::string{kFinalSheetFile} + " could not be written.\r\n" + written.failure().message,
             ui::Buttons::Ok, ui::Icon::Critical});
        return;
    }
    say(writtenSentence(std::array{m_folder.pathTo(kFinalSheetFile)}));
}

/// @returns nothing when there is nothing to be printed; then a message has said why, or the person has cancelled
std::optional<ui::TextPrintout> MoneyScreen::sheetPrintout(bool showDialog)
{
    const std::optional<ReportLines> lines = sheetLines();
    if (!lines)
        return std::nullopt;
    const auto setup = setUpPrinter(m_platform, showDialog, ui::Orientation::Portrait);
    if (!setup)
        return std::nullopt;
    return textPrintout(kFinalSheetName, *lines, *setup, m_platform.printer);
}

void MoneyScreen::printSheet()
{
    if (const std::optional<ui::TextPrintout> printout = sheetPrintout(true))
        say(printOut(m_platform, *printout).sentence);
}

void MoneyScreen::previewSheet()
{
    if (const std::optional<ui::TextPrintout> printout = sheetPrintout(false))
        say(showPreview(m_platform, m_folder.folder(), {*printout}));
}

bool MoneyScreen::canMakeSheet() const
{
    const Pool& pool = m_opened.pool;
    return pool.results && !pool.entries.empty() && finalFourState(pool.results->picks) != FinalFourState::Incomplete;
}

void MoneyScreen::showState()
{
    PrizeTable table;
    const std::optional<BoxFault> fault = PrizeBoxes::read(table);
    const std::size_t players = m_fees.players();
    const std::optional<Purse> purse = fault ? std::nullopt : std::optional{purseOf(table, players)};
    showAmounts(purse);
    lblPurse.text = purse ? purseInWords(*purse) : fault->text;
    lblTotal.text = totalInWords(m_opened.pool.results, table.ties);
    lblFees.text = feesInWords(table.entryFee, m_fees.paid(), players);
    showFees(table.entryFee);
    unsaved = onScreen() != m_saved;
    cmdTickAll.enabled = m_fees.paid() < players;
    cmdUntickAll.enabled = m_fees.paid() > 0;
    for (ui::Command* const output : {&cmdFinalSheet, &cmdPrint, &cmdPreview})
        output->enabled = canMakeSheet();
    status = m_opened.unsavedResults ? "The results as saved, not as shown on the board" : "";
}

void MoneyScreen::showFees(Money fee)
{
    std::vector<std::vector<std::string>> rows;
    std::vector<bool> muted;
    rows.reserve(m_fees.players());
    for (std::size_t player = 0; player < m_fees.players(); ++player) {
        rows.push_back(feeCells(m_opened.pool.entries[player], m_fees.hasPaid(player), fee));
        muted.push_back(m_fees.hasPaid(player));
    }
    if (rows == grdFees.rows)
        return;
    grdFees.rows = std::move(rows);
    grdFees.muted = std::move(muted);
    ++grdFees.revision;
}

} // namespace tallyhoop
