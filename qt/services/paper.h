// qt/services/paper.h - which paper a printout is for.
#pragma once

#include <QLocale>
#include <QPageSize>

class QPrinterInfo;

namespace tallyhoop::qt {

/// @returns the size of paper that is usual in a territory: Letter or A4
QPageSize usualPaper(QLocale::Territory territory);

/// @returns what the desktop's settings say where we are; on Linux LC_PAPER goes before the language
QLocale::Territory territoryOfPaper();

/// @returns the printer's own default size, the usual one where it names none or there is no printer
QPageSize paperOf(const QPrinterInfo& printer);

} // namespace tallyhoop::qt
