// qt/services/paper.cpp - the printer's own paper, or what the desktop's settings suggest.
#include "qt/services/paper.h"

#include <algorithm>
#include <array>

namespace tallyhoop::qt {

QPageSize usualPaper(QLocale::Territory territory)
{
    // As in the Unicode locale data: everybody else has A4.
    constexpr std::array kLetter{QLocale::Belize,       QLocale::Canada,     QLocale::Chile,       QLocale::Colombia,
                                 QLocale::CostaRica,    QLocale::ElSalvador, QLocale::Guatemala,   QLocale::Mexico,
                                 QLocale::Nicaragua,    QLocale::Panama,     QLocale::Philippines, QLocale::PuertoRico,
                                 QLocale::UnitedStates, QLocale::Venezuela};
    return QPageSize{std::ranges::find(kLetter, territory) != kLetter.end() ? QPageSize::Letter : QPageSize::A4};
}

QLocale::Territory territoryOfPaper()
{
    for (const char* const name : {"LC_ALL", "LC_PAPER", "LANG"})
        if (const QString locale = qEnvironmentVariable(name); !locale.isEmpty())
            return QLocale{locale}.territory();
    return QLocale::system().territory();
}

QPageSize paperOf(const QPageSize& own) { return own.isValid() ? own : usualPaper(territoryOfPaper()); }

} // namespace tallyhoop::qt
