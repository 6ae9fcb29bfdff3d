// tests/screens/reports/reports_screen_fixture.h - a reports screen over a scratch folder, ready to be pressed.
#pragma once

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "reports/report_pool.h"
#include "screens/reports/reports_screen.h"

#include <gtest/gtest.h>
#include <initializer_list>

namespace tallyhoop::test {

enum Destination { kPrinter = 0, kFile = 1, kEmail = 2, kEmailAll = 3 };
enum Report {
    kStandings = 0,
    kListing = 1,
    kTeamSummary = 2,
    kTeamDetail = 3,
    kPlayerDetail = 4,
    kByPlayer = 5,
    kByTeam = 6
};

struct ReportsScreenTest : testing::Test {
    ScratchFolder folder;
    DataFolder dataFolder = folder.folder();
    FakePlatform platform;
    modTallyhoop state;
    FakeScreens screens;
    FakeBoard board{state};
    ReportsScreen screen{dataFolder, platform.services, state, screens, board};

    ReportsScreenTest() { state.setupLines[64] = "Office Pool 2001"; }

    void tick(std::initializer_list<Report> reports)
    {
        for (const Report report : reports)
            screen.chkOptions[static_cast<std::size_t>(report)].ticked = true;
    }

    void create(Destination destination)
    {
        ui::selectOption(screen.optDestination, static_cast<std::size_t>(destination));
        screen.cmdPrintSelections.click();
    }

    bool isTicked(Report report) const { return screen.chkOptions[static_cast<std::size_t>(report)].ticked; }

    /// @returns whether any report file or the work file is there
    bool anyReportWritten() const
    {
        for (int number = 1; number <= 7; ++number)
            if (folder.has("RPTOPT" + std::to_string(number) + ".TXT"))
                return true;
        return folder.has("TEMPPRT.TXT");
    }

    /// What a person does in the e-mail dialog.
    void sendFromTheDialog(MailDraft draft)
    {
        screens.whenLoaded = [this, draft](ScreenKind kind) {
            EXPECT_EQ(kind, ScreenKind::EMail);
            requested = state.mailDraft;
            const bool emailAll = state.mailDraft.emailAll;
            state.mailDraft = draft;
            state.mailDraft.emailAll = emailAll;
        };
    }

    MailDraft requested; ///< what the dialog found when it opened
};

inline ui::Message critical(std::string caption, std::string text)
{
    return {std::move(caption), std::move(text), ui::Buttons::Ok, ui::Icon::Critical};
}

inline ui::Message exclamation(std::string caption, std::string text)
{
    return {std::move(caption), std::move(text), ui::Buttons::Ok, ui::Icon::Exclamation};
}

} // namespace tallyhoop::test
