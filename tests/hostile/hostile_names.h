// tests/hostile/hostile_names.h - names that somebody chose to do harm with, one of each kind.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace tallyhoop::test {

/// A name as it may come out of a file: Windows-1252 bytes, no line ends.
struct HostileName {
    std::string kind; ///< letters only
    std::string text;
};

/// What a failing test says of it.
inline void PrintTo(const HostileName& hostile, std::ostream* out) { *out << hostile.kind; }

inline const std::vector<HostileName>& hostileNames()
{
    static const std::vector<HostileName> all{
        {"Bold", "<b>bold</b>"},
        {"Picture", "<img src=\"/etc/passwd\">"},
        {"Link", "<a href=\"file:///etc/passwd\">x</a>"},
        {"Entity", "&amp;&lt;"},
        {"Ampersand", "Texas A&M &File"},
        {"DoubleQuotes", "\"quoted\",\"again\""},
        {"Apostrophes", "O'Brien','x"},
        {"Semicolons", "a;rm -rf;b"},
        {"ShellWords", "$(touch owned)`touch owned`|touch owned"},
        {"ParentFolder", "../outside"},
        {"ParentFolderOfWindows", "..\\outside"},
        {"AbsolutePath", "/etc/passwd"},
        {"DriveLetter", "C:\\autoexec"},
        {"Dots", ".."},
        {"DeviceCon", "CON"},
        {"DeviceNul", "nul"},
        {"DeviceAux", "AUX.THC"},
        {"DevicePort", "COM1.txt"},
        {"DeviceRaisedPort", "com\xB9.txt"}, // Windows takes the raised 1, 2 and 3 for digits
        {"DeviceRaisedPrinter", "LPT\xB3"},
        {"DeviceConsole", "conin$"},
        {"RightToLeft", "\xE2\x80\xAE"
                        "exe.CHT\xE2\x80\x8F\xE2\x81\xA6"}, // the bytes of UTF-8, which ours are not
        {"TitleMark", "window[*]title"},
        {"Controls", "bell\x07"
                     "back\x08"
                     "escape\x1B[31m\x01\x7F"},
        {"FormFeed", "\x0Cnew page"},
        {"Tab", "a\tb"},
        {"Formats", "%s%n%00%x{}{0}%1"},
        {"Option", "--help"},
        {"ShortOption", "-a"},
        {"Markers", "*END*"},
        {"Bar", "one|two"},
        {"Blanks", "   "},
        {"Accents", "\xC9\xE8\xDF\x81\x8D\x9F\xFF"},
        {"TenThousand", std::string(10000, 'W')},
    };
    return all;
}

} // namespace tallyhoop::test
