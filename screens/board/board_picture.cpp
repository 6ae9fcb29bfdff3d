// screens/board/board_picture.cpp - the colours and texts of verdicts and scores.
#include "screens/board/board_picture.h"

namespace tallyhoop {

PickMark markOf(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Good:
        return {"=", {0, 255, 0}, {6, 41, 15}};
    case Verdict::Bad:
        return {"X", {255, 0, 0}, {26, 4, 6}};
    case Verdict::None:
    case Verdict::Open:
    case Verdict::Possible:
        break;
    }
    return {"", {0, 0, 255}, {252, 252, 255}};
}

std::string scoreText(const std::optional<ShownScore>& score)
{
    if (!score)
        return {};
    return "Points: " + std::to_string(score->points) + " / " + std::to_string(score->maxPoints);
}

} // namespace tallyhoop
