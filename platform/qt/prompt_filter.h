// Reads the filter text of a file prompt.
#pragma once

#include <QString>
#include <QStringList>

#include <string>

namespace orvane {

/// The entries of a filter. A filter is a list of fields with "|" between them: the description and the
/// patterns of each entry in turn. A last description without patterns is ignored.
class PromptFilter {
  public:
    /// `defaultExtension` is used for an entry whose patterns give no extension.
    PromptFilter(const std::string& filter, const std::string& defaultExtension);

    /// Each entry in the form that the toolkit expects: the description with the patterns in brackets at its
    /// end.
    [[nodiscard]] const QStringList& Entries() const { return entries_; }
    /// The extension, without a dot, of one of the entries; the default one for any other text.
    [[nodiscard]] QString ExtensionOf(const QString& entry) const;

  private:
    QStringList entries_;
    QStringList extensions_;
    QString defaultExtension_;
};

} // namespace orvane
