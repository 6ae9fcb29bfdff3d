// tests/screens/reports/reports_screen_fixture.h - a reports screen over a scratch folder, ready to be pressed.
#pragma once

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "pool/outlook/quick_road.h"
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
    FakeScreens screens;
    Field field = defaultField();
    MailDraft draft;
    FakeBoard board;
    ReportsScreen screen{dataFolder, platform.services, screens, field, draft, board, kQuickRoad};

    ReportsScreenTest() { field.title = "Office Pool 2001"; }

    void tick(std::initializer_list<Report> reports)
    {
        for (const Report report : reports)
            screen.chkOptions[report].ticked = true;
    }

    void tickAll() { tick({kStandings, kListing, kTeamSummary, kTeamDetail, kPlayerDetail, kByPlayer, kByTeam}); }

    void create(Destination destination)
    {
        ui::selectOption(screen.optDestination, static_cast<std::size_t>(destination));
        screen.cmdPrintSelections.click();
    }

    bool isTicked(Report report) const { return screen.chkOptions[report].ticked; }

    /// @returns whether any report file or the work file is there
    bool anyReportWritten() const
    {
        for (int number = 1; number <= 7; ++number)
            if (folder.has("RPTOPT" + std::to_string(number) + ".TXT"))
                return true;
        return folder.has("TEMPPRT.TXT");
    }

    /// What a person does in the e-mail dialog.
    void sendFromTheDialog(const MailDraft& written)
    {
        screens.whenLoaded = [this, written](ScreenKind kind) {
            EXPECT_EQ(kind, ScreenKind::Email);
            requested = draft;
            draft = written;
            draft.toEverybody = requested.toEverybody;
            draft.unsent = requested.unsent;
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
