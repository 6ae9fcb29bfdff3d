// tests/fakes/held_file.h - a file as it is while another program saves by way of it.
#pragma once

#include <cstdint>
#include <filesystem>

namespace tallyhoop::test {

/// The temporary file of a save, held as long as this lives.
class HeldFile
{
public:
    /// @param file is there; it fails the test when somebody else holds it
    explicit HeldFile(const std::filesystem::path& file);
    ~HeldFile();
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;

private:
    std::intptr_t m_file;
};

/// @returns whether somebody holds what is at this path, so that a save by way of it has to wait
bool isHeld(const std::filesystem::path& path);

} // namespace tallyhoop::test
