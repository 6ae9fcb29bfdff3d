// qt/widgets/input_method.h - offers what an input method commits to whoever wants it before a box takes it.
#pragma once

#include <QInputMethodEvent>
#include <functional>
#include <optional>

namespace tallyhoop::qt {

/// Offers each character of a commit, as bytes of the core.
/// @param typed called with each; returns true when it was dealt with; may be empty
/// @returns what is left for the box, to be committed instead; nothing when all of it is left, and the event is to be
///          handled as it is
std::optional<QString> leftOfCommit(const QInputMethodEvent& event, const std::function<bool(char)>& typed);

} // namespace tallyhoop::qt
