// tests/fakes/scratch_folder.cpp - made below the temporary folder and removed with everything in it.
#include "fakes/scratch_folder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>

namespace tallyhoop::test {

ScratchFolder::ScratchFolder()
{
    const std::filesystem::path parent = std::filesystem::temp_directory_path();
    std::random_device random;
    while (m_path.empty() || !std::filesystem::create_directory(m_path)) // throws when it may not
        m_path = parent / ("tallyhoop-test-" + std::to_string(random()));
}

ScratchFolder::~ScratchFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::filesystem::path ScratchFolder::put(std::string_view name, std::string_view bytes) const
{
    const std::filesystem::path file = m_path / name;
    std::ofstream stream{file, std::ios::binary};
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    EXPECT_TRUE(stream.flush()) << "cannot write " << file;
    return file;
}

std::string ScratchFolder::get(std::string_view name) const
{
    std::ifstream stream{m_path / name, std::ios::binary};
    EXPECT_TRUE(stream) << "no file " << name;
    return {std::istreambuf_iterator<char>{stream}, {}};
}

bool ScratchFolder::has(std::string_view name) const { return std::filesystem::exists(m_path / name); }

std::string crlf(std::initializer_list<std::string_view> lines)
{
    std::string bytes;
    for (std::string_view line : lines) {
        bytes += line;
        bytes += "\r\n";
    }
    return bytes;
}

} // namespace tallyhoop::test
