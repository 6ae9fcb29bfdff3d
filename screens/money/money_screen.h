// screens/money/money_screen.h - the entry fee, the prizes, who has paid, and the final sheet.
#pragma once

#include "files/data_folder.h"
#include "files/known_files.h"
#include "files/prizes_file.h"
#include "reports/final_sheet.h"
#include "screens/money/fee_list.h"
#include "screens/money/prize_boxes.h"
#include "screens/outlook/pool_opening.h"
#include "screens/screens.h"
#include "ui/platform.h"
#include "ui/screen.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {

/// Edits PRIZES.CSV. Nothing reaches the disk before Save. The final sheet goes by the saved results and by what is on
/// the screen.
class MoneyScreen : public ui::Screen, public PrizeBoxes
{
public:
    MoneyScreen(const DataFolder& folder, OpenedPool opened, const ui::Platform& platform, Screens& screens);

    ui::Label lblTotal{this, "lblTotal"};
    ui::Label lblPurse{this, "lblPurse"};
    ui::Grid grdFees{this, "grdFees"};
    ui::Command cmdTickAll{this, "cmdTickAll", "&Tick All", [this] { tickAll(true); }};
    ui::Command cmdUntickAll{this, "cmdUntickAll", "&Untick All", [this] { tickAll(false); }};
    ui::Label lblFees{this, "lblFees"};
    ui::Command cmdFinalSheet{this, "cmdFinalSheet", "Save &Final Sheet", [this] { saveSheet(); }};
    ui::Command cmdPrint{this, "cmdPrint", "&Print Final Sheet", [this] { printSheet(); }};
    ui::Command cmdPreview{this, "cmdPreview", "Pre&view Final Sheet", [this] { previewSheet(); }};
    ui::Command cmdSave{this, "cmdSave", "&Save", [this] { save(); }};
    ui::Command cmdExit{this, "cmdExit", "E&xit", [this] { closeRequested(); }};

    std::string helpTopic() const override;
    void load() override;
    void showState() override;
    void closeRequested() override;
    bool keyPressed(ui::Control& control, const ui::KeyPress& press) override;

private:
    void explain();
    void toggle(std::size_t row);
    void tickAll(bool hasPaid);
    void save();
    void saveSheet();
    void printSheet();
    void previewSheet();

    std::vector<std::string> onScreen() const;
    std::optional<PrizeTable> usableTable();
    std::optional<ReportLines> sheetLines();
    std::optional<ui::TextPrintout> sheetPrintout(bool showDialog);
    bool canMakeSheet() const;
    void showFees(Money fee);

    const DataFolder& m_folder;
    const OpenedPool m_opened;
    const ui::Platform& m_platform;
    Screens& m_screens;
    KnownFiles m_known;               ///< the file as it was read
    std::optional<Failure> m_trouble; ///< why the file was not read whole, until it is saved
    FeeList m_fees;
    std::vector<std::string> m_saved; ///< what was on the screen when it was like the file
};

} // namespace tallyhoop
