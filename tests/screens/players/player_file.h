// tests/screens/players/player_file.h - player lists written out by hand, column by column.
#pragma once

#include <initializer_list>
#include <string>

namespace tallyhoop::test {

inline std::string column(std::string text, std::size_t width)
{
    text.resize(width, ' ');
    return text;
}

/// A record as the file has it: each field in quotes, 25, 33, 43 and 14 characters wide.
inline std::string csv(const std::string& name, const std::string& file, const std::string& email = {},
                       const std::string& phone = {})
{
    return "\"" + column(name, 25) + "\",\"" + column(file, 33) + "\",\"" + column(email, 43) + "\",\"" +
           column(phone, 14) + "\"\r\n";
}

/// A player as the list on the screen shows it.
inline std::string row(const std::string& name, const std::string& file, const std::string& email = {},
                       const std::string& phone = {})
{
    return column(name, 25) + " " + column(file, 33) + " " + column(email, 43) + " " + column(phone, 14);
}

/// A whole file: the header and these records.
inline std::string playerFile(std::initializer_list<std::string> records)
{
    std::string bytes = "\"Name                     \",\"FileName                         \","
                        "\"Email                                      \",\"Phone         \"\r\n";
    for (const std::string& record : records)
        bytes += record;
    return bytes;
}

} // namespace tallyhoop::test
