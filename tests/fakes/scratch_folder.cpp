// tests/fakes/scratch_folder.cpp - made below the temporary folder and removed with everything in it.
#include "fakes/scratch_folder.h"

#include "files/entry_at.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>

namespace tallyhoop::test {

namespace {

/// @param name as tests write it: UTF-8, but on systems where any bytes are a name
std::filesystem::path pathOf(std::string_view name)
{
#ifdef _WIN32
    return std::u8string{name.begin(), name.end()};
#else
    return name;
#endif
}

} // namespace

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
    const std::filesystem::path file = m_path / pathOf(name);
    std::ofstream stream{file, std::ios::binary};
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    EXPECT_TRUE(stream.flush()) << "cannot write " << file;
    return file;
}

std::string ScratchFolder::get(std::string_view name) const
{
    std::ifstream stream{m_path / pathOf(name), std::ios::binary};
    EXPECT_TRUE(stream) << "no file " << name;
    return {std::istreambuf_iterator<char>{stream}, {}};
}

bool ScratchFolder::has(std::string_view name) const
{
    const std::filesystem::path path = m_path / pathOf(name);
    return entryAt(path) == path;
}

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
