// bench/report_once.cpp - makes one report, or none, in a process of its own, so that its peak memory is known:
// folder of the pool, the report's place in the table ("none" only opens the screen).
//
// Prints the seconds it took, those of the processor, the peak memory in KiB, and every message that was shown.
#include "bench/peak_memory.h"
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "files/setup_file.h"
#include "screens/reports/reports_screen.h"

#include <charconv>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <string>

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("usage: tallyhoop_bench_report FOLDER REPORT\n", stderr);
        return 2;
    }
    using namespace tallyhoop;
    const std::string_view wanted{argv[2]};
    std::size_t report = 0;
    const bool any = std::from_chars(wanted.begin(), wanted.end(), report).ec == std::errc{} && report < kReports;

    const DataFolder folder{argv[1]};
    test::FakePlatform platform;
    test::FakeBoard board;
    test::FakeScreens screens;
    MailDraft draft;
    const Field field = readField(folder).value;
    ReportsScreen reports{folder, platform.services, screens, field, draft, board};
    reports.load();
    ui::selectOption(reports.optDestination, 1); // to the report's file
    reports.chkOptions[report].ticked = any;

    const std::clock_t processorBegin = std::clock();
    const auto begin = std::chrono::steady_clock::now();
    if (any)
        reports.cmdPrintSelections.click();
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
    const double processor = static_cast<double>(std::clock() - processorBegin) / CLOCKS_PER_SEC;
    std::printf("%.6f %.6f %ld\n", took.count(), processor, bench::peakKilobytes());
    for (const ui::Message& message : platform.dialogs.shown)
        std::printf("%s: %s\n", message.caption.c_str(), message.text.c_str());
    return 0;
}
