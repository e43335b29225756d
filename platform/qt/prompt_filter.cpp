#include "platform/qt/prompt_filter.h"

#include <QRegularExpression>

namespace orvane {

namespace {

/// "htm" of "*.htm" and of "*.htm;*.html"; empty for "*" and "*.*".
QString FirstExtension(const QString& patterns) {
    static const QRegularExpression plain(QStringLiteral("^\\*\\.([^*?\\[;]+)"));
    return plain.match(patterns.trimmed()).captured(1);
}

} // namespace

PromptFilter::PromptFilter(const std::string& filter, const std::string& defaultExtension)
    : defaultExtension_(QString::fromStdString(defaultExtension)) {
    const QStringList fields = QString::fromStdString(filter).split(u'|');
    for (qsizetype i = 0; i + 1 < fields.size(); i += 2) {
        QString patterns = fields.at(i + 1);
        const QString extension = FirstExtension(patterns);
        extensions_ += extension.isEmpty() ? defaultExtension_ : extension;
        const QString brackets = u'(' + patterns.replace(u';', u' ') + u')';
        const QString& description = fields.at(i);
        entries_ += description.endsWith(brackets) ? description : description + u' ' + brackets;
    }
}

QString PromptFilter::ExtensionOf(const QString& entry) const {
    return extensions_.value(entries_.indexOf(entry), defaultExtension_);
}

} // namespace orvane
