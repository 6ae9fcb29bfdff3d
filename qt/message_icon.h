// qt/message_icon.h - the icons of message boxes, drawn by the program itself.
#pragma once

#include <QIcon>
#include <QStyle>

namespace tallyhoop::qt {

/// @param which one of the four SP_MessageBox icons
QIcon messageIcon(QStyle::StandardPixmap which);

} // namespace tallyhoop::qt
