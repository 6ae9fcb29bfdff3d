// qt/services/paper.h - which paper a printout is for.
#pragma once

#include <QLocale>
#include <QPageSize>

namespace tallyhoop::qt {

/// @returns the size of paper that is usual in a territory: Letter or A4
QPageSize usualPaper(QLocale::Territory territory);

/// @returns what the desktop's settings say where we are; on Linux LC_PAPER goes before the language
QLocale::Territory territoryOfPaper();

/// @param own the printer's default size; not valid = it names none, or there is no printer
/// @returns that size, or else the usual one
QPageSize paperOf(const QPageSize& own);

} // namespace tallyhoop::qt
