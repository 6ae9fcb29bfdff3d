// qt/text.h - the one place that converts texts between the core and Qt.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace tallyhoop::qt {

/// Converts a text byte by byte; never fails, and fromQString() gives the same bytes back. Line breaks are kept.
QString toQString(std::string_view text);

/// Converts what a person typed: composed first (NFC), then one byte per character; a character that Windows-1252 lacks
/// becomes "?". Line breaks stay as they are.
std::string fromQString(const QString& typed);

/// As toQString(), for widgets of several lines and for message boxes: CR LF and a lone CR become "\n".
QString toLines(std::string_view text);

/// As fromQString(), for widgets of several lines: "\n" and Qt's own paragraph and line separators become CR LF.
std::string fromLines(const QString& typed);

/// @returns the text with every kind of line end turned into CR LF
std::string withCrLf(std::string_view text);

/// @returns data for a label that has mnemonics: every `&` doubled, so that it is shown as it is
QString withoutMnemonics(const QString& data);

/// @param mnemonic a letter, 0 = none
/// @returns the caption with this letter marked, at the beginning of a word if it can be; unchanged when it is not
/// there or a letter is marked already
QString withMnemonic(QString caption, char mnemonic);

inline constexpr qsizetype kLineEnd = 200; ///< enough for most paths

/// @returns a text that fits a display, whatever names are in it: a line that is far too long loses its middle, and so
///          does a text of far too many lines
/// @param end how many characters are kept at either end of such a line
QString shownText(const QString& text, qsizetype end = kLineEnd);

/// @returns plain data as a tool tip that Qt cannot take for markup; empty stays empty
QString plainToolTip(const QString& data);

/// @returns data fit for a window title: Qt would take "[*]" for its own mark
QString titleText(const QString& data);

} // namespace tallyhoop::qt
