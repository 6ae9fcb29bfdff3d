// screens/reports/reports_screen_web_page.cpp - the pool as one page for the browser, saved or mailed.
#include "screens/reports/reports_screen.h"

#include "files/prizes_file.h"
#include "output/pool_page_making.h"
#include "screens/outlook/pool_opening.h"
#include "screens/saving.h"
#include "screens/saving_as.h"
#include "ui/work.h"

#include <string>

namespace tallyhoop {

namespace {

constexpr const char* kTrouble = "Tallyhoop - frmPoolReports, Save as Web Page";
constexpr const char* kStopped = "The web page was cancelled.";

} // namespace

/// Damaged files are named by messages meanwhile. @returns nothing after it was said why there is no page
std::optional<std::string> ReportsScreen::makeWebPage()
{
    if (m_files.empty()) {
        say("There is no selection yet that the web page could show.");
        return std::nullopt;
    }
    const OpenedPool opened = openPool(m_folder, m_platform, m_board);
    if (opened.isCancelled) {
        say(kStopped);
        return std::nullopt;
    }
    showUnread(m_platform.dialogs, opened);
    const Read<Prizes> prizes = readPrizes(m_folder);
    if (prizes.trouble)
        showTrouble(m_platform.dialogs, *prizes.trouble);
    bool isCancelled = false;
    const Result<PoolPage> page = [&] {
        Work work{m_platform.progress, "Working out the web page", 0}; // nobody knows how long
        Result<PoolPage> made = makePoolPage(
            opened, prizes, ChanceKind::Alike, [&work] { return work.step(); }, m_pageRoad);
        isCancelled = work.cancelled();
        return made;
    }();
    if (isCancelled) {
        say(kStopped);
        return std::nullopt;
    }
    if (!page) {
        m_platform.dialogs.show({kTrouble, page.failure().message, ui::Buttons::Ok, ui::Icon::Critical});
        return std::nullopt;
    }
    return poolPage(*page);
}

void ReportsScreen::saveWebPage()
{
    say({});
    m_refusalTopic.clear();
    listFiles();
    const std::optional<std::string> page = makeWebPage();
    if (!page)
        return;
    const auto file =
        saveAs(m_platform, m_folder, {"Save as Web Page", "Web pages (*.HTML)", ".HTML", kPoolPageFile, *page});
    say(file ? "Saved " + shown(file->filename()) + "." : "Not saved.");
}

bool ReportsScreen::isWebPageMailed() const { return isMailChosen() && chkWebPage.ticked; }

bool ReportsScreen::writeWebPage()
{
    const std::optional<std::string> page = makeWebPage();
    if (!page)
        return false;
    if (const Result<Done> written = m_folder.write(kPoolPageFile, *page); !written) {
        m_platform.dialogs.show({kTrouble,
                                 std::string{kPoolPageFile} + " could not be written.\r\n" + written.failure().message,
                                 ui::Buttons::Ok, ui::Icon::Critical});
        return false;
    }
    return true;
}

} // namespace tallyhoop
