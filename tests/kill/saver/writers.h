// tests/kill/saver/writers.h - how a person makes the program write each of its files.
#pragma once

#include <QString>

namespace saver {

struct Writer {
    const char* name;
    void (*prepare)();       ///< opens the screen
    void (*save)(int round); ///< changes something and saves it
};

/// @returns nullptr when there is none of this name
const Writer* findWriter(const QString& name);

/// What is typed in a round: differs from round to round, also in length.
QString mark(int round);

} // namespace saver
