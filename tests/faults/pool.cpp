// tests/faults/pool.cpp - a pool with old reports, and what a folder or a screen holds as text.
#include "faults/writers.h"
#include "files/file_names.h"
#include "files/prizes_file.h"
#include "files/setup_file.h"
#include "reports/final_sheet.h"
#include "reports/outlook.h"
#include "reports/page/pool_page.h"
#include "reports/report_pool.h"
#include "reports/report_table.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace tallyhoop::test {

namespace {

namespace fs = std::filesystem;

} // namespace

void putPool(const ScratchFolder& folder)
{
    putFourPlayers(folder);
    Field field = defaultField();
    field.finalized = "1";
    folder.put(file_name::kSetup, setupFile(field));
    folder.put(file_name::kTeamNames, crlf({"*START*", "Akron", "Duke", "Texas", "*END*"}));
    folder.put(file_name::kWorkFile, "an older report");
    for (const ReportKind& kind : reportTable())
        folder.put(kind.file, "an older report");
    folder.put(kOutlookFile, "an older report");
    folder.put(kFinalSheetFile, "an older report");
    folder.put(kPoolPageFile, "an older page");
    folder.put(file_name::kPrizes, prizesFile({}));
}

std::vector<std::pair<std::string, std::string>> filesIn(const fs::path& folder)
{
    std::vector<std::pair<std::string, std::string>> files;
    for (const fs::directory_entry& entry : fs::directory_iterator{folder}) {
        const std::string name = entry.path().filename().string();
        if (name == kFiller)
            continue;
        if (entry.is_directory()) {
            files.emplace_back(name + "/", "");
            continue;
        }
        std::ifstream stream{entry.path(), std::ios::binary};
        files.emplace_back(name, std::string{std::istreambuf_iterator<char>{stream}, {}});
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string textOf(const ui::Screen& screen)
{
    std::string text;
    const auto add = [&text](const std::string& name, const std::string& value) {
        text += name + " = " + value + "\n";
    };
    for (const ui::Control* control : screen.controls()) {
        if (const auto* label = dynamic_cast<const ui::Label*>(control))
            add(label->name, label->text);
        else if (const auto* box = dynamic_cast<const ui::TextBox*>(control))
            add(box->name, box->text);
        else if (const auto* list = dynamic_cast<const ui::ListBox*>(control)) {
            for (const std::string& row : list->rows)
                add(list->name, row);
            add(list->name, list->selected ? std::to_string(*list->selected) : "-");
        }
    }
    return text;
}

} // namespace tallyhoop::test
