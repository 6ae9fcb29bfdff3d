// tests/reports/approved_reports.h - whole reports compared with those worked out without the program.
//
// tests/approved/WORKSHEET.md says how each file came about.
#pragma once

#include "base/lines.h"
#include "fakes/scratch_folder.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <vector>

namespace tallyhoop::test {

inline const std::filesystem::path kApproved{TALLYHOOP_APPROVED_REPORTS};

inline const std::string kSmallTitle = "Office Pool 2001";
inline const std::string kMessyTitle = "B\xFCro-Pool \x84M\xE4rz\x93 2001";

/// Puts the files of the pool with awkward names into a folder.
inline void putMessyPool(const ScratchFolder& folder)
{
    for (const auto& file : std::filesystem::directory_iterator{kApproved / "messy"})
        if (!file.path().filename().string().starts_with("RPTOPT"))
            std::filesystem::copy_file(file.path(), folder.path() / file.path().filename());
}

/// Fails on the first line that differs, which says more than two whole reports would.
/// @param pool "small" or "messy"
/// @param file such as "RPTOPT1.TXT"
inline void expectApproved(const std::string& made, const std::string& pool, const std::string& file)
{
    std::ifstream stream{kApproved / pool / file, std::ios::binary};
    ASSERT_TRUE(stream) << "cannot read " << pool << "/" << file;
    const std::string approved{std::istreambuf_iterator<char>{stream}, {}};
    const std::vector<std::string> madeLines = linesOf(made);
    const std::vector<std::string> approvedLines = linesOf(approved);
    for (std::size_t i = 0; i < std::min(madeLines.size(), approvedLines.size()); ++i)
        ASSERT_EQ(madeLines[i], approvedLines[i]) << pool << "/" << file << ", line " << i + 1;
    ASSERT_EQ(madeLines.size(), approvedLines.size()) << pool << "/" << file;
    ASSERT_EQ(made, approved) << pool << "/" << file;
}

} // namespace tallyhoop::test
