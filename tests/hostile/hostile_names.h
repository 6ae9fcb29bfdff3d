// tests/hostile/hostile_names.h - names that somebody chose to do harm with, one of each kind, and where each is tried.
//
// A place is tried on one floor, the lowest that can see what a name does there:
//
//   in each field of each file, and read back       hostile/files_test.cpp               all names
//   as the name of a file                           hostile/folder_test.cpp              all
//   in the seven reports, and as their title        hostile/reports_test.cpp             all
//   pasted into a box                               qt/hostile_names_typed_test.cpp      all
//   printed, in a report and on the board           qt/hostile_names_printed_test.cpp    all
//   handed to a mail client                         qt/hostile_names_mail_test.cpp       all
//   in the windows                                  qt/hostile_names_test.cpp            Place::Window
//   in message boxes, input boxes and the preview   qt/hostile_names_dialogs_test.cpp    Place::Window
//   typed into a file dialog                        qt/hostile_names_dialogs_test.cpp    Place::FileDialog
#pragma once

#include <algorithm>
#include <iterator>
#include <ostream>
#include <set>
#include <string>
#include <vector>

namespace tallyhoop::test {

/// The places where only some names can do harm, and each takes time.
enum class Place {
    Window,     ///< which could take it for markup, a mnemonic, a format, a mark of the title
    FileDialog, ///< which could take it for several names, for another folder, for a pattern
};

/// A name as it may come out of a file: Windows-1252 bytes, no line ends. A defect may write and remove what it names:
/// no name may be that of a file of the machine on which the tests run.
struct HostileName {
    std::string kind; ///< letters only
    std::string text;
    std::set<Place> places = {}; ///< beside those where every name is tried
};

/// What a failing test says of it.
inline void PrintTo(const HostileName& hostile, std::ostream* out) { *out << hostile.kind; }

inline const std::vector<HostileName>& hostileNames()
{
    using enum Place;
    static const std::vector<HostileName> all{
        {"Bold", "<b>bold</b>", {Window}},
        {"Picture", "<img src=\"/nowhere/picture\">"},
        {"Link", "<a href=\"file:///nowhere\">x</a>"},
        {"Entity", "&amp;&lt;", {Window}},
        {"Ampersand", "Texas A&M &File", {Window}},
        {"DoubleQuotes", "\"quoted\",\"again\"", {FileDialog}},
        {"TwoFiles", "\"one\" \"two\"", {FileDialog}},
        {"Apostrophes", "O'Brien','x"},
        {"Semicolons", "a;rm -rf;b", {FileDialog}},
        {"ShellWords", "$(touch owned)`touch owned`|touch owned", {FileDialog}},
        {"ParentFolder", "../outside", {FileDialog}},
        {"ParentFolderOfWindows", "..\\outside", {FileDialog}},
        {"AbsolutePath", "/nowhere/outside", {FileDialog}},
        {"DriveLetter", "C:\\autoexec", {FileDialog}},
        {"Dots", "..", {FileDialog}},
        {"DeviceCon", "CON"},
        {"DeviceNul", "nul"},
        {"DeviceAux", "AUX.THC"},
        {"DevicePort", "COM1.txt"},
        {"DeviceRaisedPort", "com\xB9.txt"}, // Windows takes the raised 1, 2 and 3 for digits
        {"DeviceRaisedPrinter", "LPT\xB3"},
        {"DeviceConsole", "conin$"},
        {"RightToLeft", "\xE2\x80\xAE"
                        "exe.CHT\xE2\x80\x8F\xE2\x81\xA6"}, // the bytes of UTF-8, which ours are not
        {"TitleMark", "window[*]title", {Window}},
        {"Controls",
         "bell\x07"
         "back\x08"
         "escape\x1B[31m\x01\x7F",
         {Window}},
        {"FormFeed", "\x0Cnew page"},
        {"Tab", "a\tb"},
        {"Formats", "%s%n%00%x{}{0}%1", {Window}},
        {"Option", "--help"},
        {"ShortOption", "-a"},
        {"Markers", "*END*", {FileDialog}},
        {"Bar", "one|two"},
        {"Blanks", "   "},
        {"Accents", "\xC9\xE8\xDF\x81\x8D\x9F\xFF", {FileDialog}},
        {"Thousand", std::string(1000, 'W'), {Window, FileDialog}},
        {"TenThousand", std::string(10000, 'W')},
    };
    return all;
}

/// The names that can do harm in this place.
inline std::vector<HostileName> hostileNames(Place place)
{
    std::vector<HostileName> found;
    std::ranges::copy_if(hostileNames(), std::back_inserter(found),
                         [place](const HostileName& name) { return name.places.contains(place); });
    return found;
}

} // namespace tallyhoop::test
