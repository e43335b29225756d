// Conversion of the program's UTF-8 texts to texts of the toolkit.
#pragma once

#include <QString>
#include <QStringDecoder>

#include <string_view>

namespace orvane {

/// Converts every character of `text`. QString's own conversion drops a byte order mark at the start, so that
/// a name would change when it is loaded from the grid into the editor.
inline QString ToQString(std::string_view text) {
    QStringDecoder decode(QStringConverter::Utf8,
                          QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
    return decode(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
}

} // namespace orvane
