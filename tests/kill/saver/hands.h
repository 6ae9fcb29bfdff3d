// tests/kill/saver/hands.h - presses and typing inside the real program, by the names of its widgets and menu entries.
#pragma once

#include <QString>
#include <functional>

namespace saver {

/// Chooses a menu entry. Ends the program with a message when there is no enabled entry of that name.
void choose(const char* entry);
void click(const char* button);

/// Replaces the text of an entry field.
void type(const char* box, const QString& text);

/// Drops a file onto a widget, and waits until the program has read it.
void drop(const char* onto, const QString& file);

bool isVisible(const char* name);

/// Answers the box in front, if any, as a person who wants to save: Yes, OK, the proposed file. Reports its title.
/// @param text what is typed into a box that asks for a line
/// @param file the file that is chosen in a dialog that opens one
void answerFrontBox(const QString& text, const QString& file, const std::function<void(const QString&)>& report);

} // namespace saver
