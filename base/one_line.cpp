// base/one_line.cpp - the line breaks first, then the blanks that stand together.
#include "base/one_line.h"

#include "base/text.h"

namespace tallyhoop {

std::string onOneLine(std::string_view words)
{
    std::string line;
    for (const char character : asOneLine(std::string{words})) {
        const bool isSecondBlank = character == ' ' && line.ends_with(' ');
        if (!isSecondBlank)
            line.push_back(character);
    }
    return withoutOuterBlanks(line);
}

} // namespace tallyhoop
