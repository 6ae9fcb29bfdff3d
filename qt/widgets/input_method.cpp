// qt/widgets/input_method.cpp - a commit takes the same path as keys, one character after another.
#include "qt/widgets/input_method.h"

#include "qt/text.h"

namespace tallyhoop::qt {

std::optional<QString> leftOfCommit(const QInputMethodEvent& event, const std::function<bool(char)>& typed)
{
    if (!typed)
        return std::nullopt;
    std::string kept;
    bool consumed = false;
    for (const char character : fromQString(event.commitString())) {
        if (typed(character))
            consumed = true;
        else
            kept += character;
    }
    return consumed ? std::optional{toQString(kept)} : std::nullopt;
}

} // namespace tallyhoop::qt
