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
std::optional<PoolPage> ReportsScreen::makeWebPage()
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
    return *page;
}

void ReportsScreen::saveWebPage()
{
    say({});
    m_refusalTopic.clear();
    listFiles();
    const std::optional<PoolPage> page = makeWebPage();
    if (!page)
        return;
    const auto file = saveAs(m_platform, m_folder,
                             {"Save as Web Page", "Web pages (*.HTML)", ".HTML", kPoolPageFile, poolPage(*page)});
    say(file ? withLack("Saved " + shown(file->filename()) + ".", *page) : "Not saved.");
}

bool ReportsScreen::isWebPageMailed() const { return isMailChosen() && chkWebPage.ticked; }

std::optional<PoolPage> ReportsScreen::writeWebPage()
{
    std::optional<PoolPage> page = makeWebPage();
    if (!page)
        return page;
    if (const Result<Done> written = m_folder.write(kPoolPageFile, poolPage(*page)); !written) {
        m_platform.dialogs.show({kTrouble,
                                 std::string{kPoolPageFile} + " could not be written.\r\n" + written.failure().message,
                                 ui::Buttons::Ok, ui::Icon::Critical});
        return std::nullopt;
    }
    return page;
}

std::string ReportsScreen::withLack(const std::string& words, const PoolPage& page)
{
    const std::string why = whyNoFinalSheet(page);
    return why.empty() ? words : words + " " + why;
}

} // namespace tallyhoop
