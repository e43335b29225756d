// Texts on their way between the program, where they are UTF-8, and the toolkit.
#pragma once

#include <QString>
#include <QStringDecoder>

#include <string_view>

namespace orvane {

/// Every character of `text`. QString's own conversion drops a byte order mark at the start, so that a name
/// would change on its way from the grid to the editor.
inline QString ToQString(std::string_view text) {
    QStringDecoder decode(QStringConverter::Utf8,
                          QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
    return decode(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
}

} // namespace orvane
