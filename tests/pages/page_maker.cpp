// tests/pages/page_maker.cpp - makes the entry form, and the program's own file of a bracket to compare with.
//
//   page_maker page FIELD.THS [ORGANISER]             prints the page
//   page_maker file FIELD.THS NAME INITIALS TOTAL     prints the selection file; reads the places that were pressed
//                                                     (name and initials are in UTF-8)
//   page_maker name NAME INITIALS                     prints the name of that file, in UTF-8
//   page_maker read FIELD.THS                         reads a text or a selection file as an import does, and prints
//                                                     for each entry why it is refused, each reason as a line, or a
//                                                     line with the e-mail address and then the selection file
#include "base/windows1252.h"
#include "files/data_folder.h"
#include "files/selection_file.h"
#include "files/setup_file.h"
#include "intake/entry_readers.h"
#include "intake/entry_refusals.h"
#include "intake/review.h"
#include "pool/moves.h"
#include "reports/entry_form/entry_form.h"

#include <iostream>
#include <iterator>
#include <string>
#include <vector>

namespace tallyhoop {
namespace {

Field fieldOf(const std::string& file)
{
    constexpr std::size_t kMostBytes = 100'000;
    const Result<std::string> bytes = readFile(file, kMostBytes);
    return bytes ? readSetup(*bytes).value : Field{};
}

Bracket pressed(std::istream& places, Bracket bracket)
{
    for (int place = 0; places >> place;)
        bracket = advanced(bracket, Position{place});
    return bracket;
}

void print(const HandedIn& entry, const Field& field)
{
    const std::vector<std::string> reasons = refusalsOf(entry, field);
    for (const std::string& reason : reasons)
        std::cout << toUtf8(reason) << '\n';
    if (reasons.empty())
        std::cout << entry.email << '\n' << bytesToWrite(entry);
}

void printAll(const std::string& bytes, const Field& field)
{
    for (const HandedIn& entry : EntryReaders{field, {}}.read({"ENTRY.TXT", bytes})) // a selection may have that name
        print(entry, field);
}

int run(const std::vector<std::string>& words)
{
    if (words.size() >= 2 && words[0] == "page")
        std::cout << entryFormPage(fieldOf(words[1]), {words.size() > 2 ? words[2] : ""});
    else if (words.size() == 5 && words[0] == "file")
        std::cout << selectionFile({pressed(std::cin, startingBracket(fieldOf(words[1]))),
                                    upperCase(fromUtf8(words[3])), fromUtf8(words[2]), words[4], ""});
    else if (words.size() == 3 && words[0] == "name")
        std::cout << toUtf8(proposedFileName(fromUtf8(words[1]), fromUtf8(words[2])));
    else if (words.size() == 2 && words[0] == "read")
        printAll({std::istreambuf_iterator<char>{std::cin}, {}}, fieldOf(words[1]));
    else
        return 2;
    return std::cout.flush() ? 0 : 1;
}

} // namespace
} // namespace tallyhoop

int main(int count, char* words[]) { return tallyhoop::run({words + 1, words + count}); }
