// tests/qt/poppler_windows.cpp - asks Linux' Poppler about a PDF file: wine starts Linux' programs, too, but gives
// neither their output nor their end, so a shell puts both into a file.
#include "qt/paths.h"
#include "qt/poppler.h"
#include "qt/text.h"

#include <QFile>
#include <QProcess>
#include <QTest>
#include <gtest/gtest.h>

namespace tallyhoop::qt::test {

QString saidByPoppler(const QString& program, const QStringList& options, const std::filesystem::path& pdf)
{
    QString folder = fromPath(pdf.parent_path()).replace(QLatin1Char{'\\'}, QLatin1Char{'/'});
    folder[0] = folder[0].toLower(); // the drive, as wine's folder of drives has it
    QStringList arguments{QStringLiteral("-c"),
                          QStringLiteral("cd \"${WINEPREFIX:-$HOME/.wine}/dosdevices/$0\" && "
                                         "\"$@\" >said.part && mv said.part said"),
                          folder, program};
    arguments += options + QStringList{fromPath(pdf.filename())};
    if (program == QLatin1String{"pdftotext"})
        arguments.append(QStringLiteral("-"));
    QFile said{fromPath(pdf.parent_path() / "said")};
    said.remove();
    EXPECT_TRUE(QProcess::startDetached(QStringLiteral("Z:/bin/sh"), arguments)) << "wine's drive of Linux is needed";
    EXPECT_TRUE(QTest::qWaitFor([&] { return said.exists(); }, 30000))
        << fromQString(program) << " (poppler-utils) is needed";
    EXPECT_TRUE(said.open(QFile::ReadOnly));
    return QString::fromUtf8(said.readAll());
}

} // namespace tallyhoop::qt::test
