// qt/message_sign.h - the signs on message boxes, drawn by us.
#pragma once

#include <QIcon>
#include <QStyle>

namespace tallyhoop::qt {

/// @param which one of the four SP_MessageBox signs
QIcon messageSign(QStyle::StandardPixmap which);

} // namespace tallyhoop::qt
