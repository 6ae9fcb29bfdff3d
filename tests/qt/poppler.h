// tests/qt/poppler.h - asks Poppler's programs about a PDF file.
#pragma once

#include <QString>
#include <QStringList>
#include <filesystem>

namespace tallyhoop::qt::test {

/// @param program pdftotext, pdffonts or pdfinfo, of the package poppler-utils
/// @returns what it writes; a failure of the test, and empty, when it cannot be started
QString saidByPoppler(const QString& program, const QStringList& options, const std::filesystem::path& pdf);

} // namespace tallyhoop::qt::test
