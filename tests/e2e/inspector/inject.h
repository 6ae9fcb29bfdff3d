// tests/e2e/inspector/inject.h - mouse and key events made inside the program, for runs without a display.
#pragma once
#include <QJsonObject>

namespace inspector {

/// Sends one event to the window under the point or with the focus. The request holds "mouse" ("move", "press",
/// "release") with "x", "y" and "button" (1 left, 3 right), or "key" in portable spelling ("Ctrl+S"), or "type" with a
/// text.
void inject(const QJsonObject& request);

} // namespace inspector
