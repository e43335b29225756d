// The filter of a file prompt, taken apart.
#pragma once

#include <QString>
#include <QStringList>

#include <string>

namespace orvane {

/// The entries of a filter of descriptions and patterns in turn, "|" between all fields. A description
/// without a pattern behind it is no entry.
class PromptFilter {
  public:
    /// `defaultExtension` is that of an entry whose pattern names none.
    PromptFilter(const std::string& filter, const std::string& defaultExtension);

    /// Each entry as the toolkit wants it: the description with the patterns in brackets at its end.
    [[nodiscard]] const QStringList& Entries() const { return entries_; }
    /// The extension, without a dot, of one of the entries; the default one for any other text.
    [[nodiscard]] QString ExtensionOf(const QString& entry) const;

  private:
    QStringList entries_;
    QStringList extensions_;
    QString defaultExtension_;
};

} // namespace orvane
