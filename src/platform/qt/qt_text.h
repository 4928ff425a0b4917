// Text between the rooms and Qt: the rooms keep one byte per character (Latin-1), as the shared
// files do; a NUL, as never assigned fields hold it, is shown as a blank.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace platform {

inline QString toQt(std::string_view bytes)
{
    QString text = QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
    return text.replace(QChar(u'\0'), QChar(u' '));
}

/// Characters beyond Latin-1 become "?".
inline std::string fromQt(const QString &text)
{
    return text.toLatin1().toStdString();
}

} // namespace platform
