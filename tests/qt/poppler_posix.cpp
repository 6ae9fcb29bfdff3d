// tests/qt/poppler_posix.cpp - asks Poppler's programs about a PDF file.
#include "qt/paths.h"
#include "qt/poppler.h"
#include "qt/text.h"

#include <QProcess>
#include <gtest/gtest.h>

namespace tallyhoop::qt::test {

QString saidByPoppler(const QString& program, const QStringList& options, const std::filesystem::path& pdf)
{
    QStringList arguments = options + QStringList{fromPath(pdf)};
    if (program == QLatin1String{"pdftotext"})
        arguments.append(QStringLiteral("-")); // or it would write a file
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << fromQString(program) << " (poppler-utils) is needed";
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace tallyhoop::qt::test
