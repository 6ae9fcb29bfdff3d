// qt/paths.h - converts paths between Qt and the core byte for byte, never through the encoding of texts.
#pragma once

#include <QFile>
#include <QString>
#include <filesystem>

namespace tallyhoop::qt {

inline QString fromPath(const std::filesystem::path& path)
{
#ifdef _WIN32
    return QString::fromStdWString(path.native());
#else
    return QFile::decodeName(QByteArray::fromStdString(path.native()));
#endif
}

inline std::filesystem::path toPath(const QString& path)
{
#ifdef _WIN32
    return std::filesystem::path{path.toStdWString()}.make_preferred(); // Qt's "/" is not for people there
#else
    return std::filesystem::path{QFile::encodeName(path).toStdString()};
#endif
}

} // namespace tallyhoop::qt
