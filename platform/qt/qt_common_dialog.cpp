#include "platform/qt/qt_common_dialog.h"

#include "platform/failure.h"
#include "platform/qt/owner_window.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QSize>
#include <QStandardPaths>
#include <QTreeView>

namespace orvane {

namespace {

constexpr const char* Source = "CommonDialog";
constexpr QSize PromptSize(780, 480);

/// "htm" of "*.htm" and of "*.htm;*.html"; empty for "*" and "*.*".
QString FirstExtension(const QString& patterns) {
    static const QRegularExpression plain(QStringLiteral("^\\*\\.([^*?\\[;]+)"));
    return plain.match(patterns.trimmed()).captured(1);
}

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

/// Whether the desktop shows its own prompt instead of the toolkit's widgets.
bool IsNative(const QFileDialog& dialog) {
    return dialog.findChild<QLineEdit*>() == nullptr;
}

/// The toolkit's own prompt cuts off sizes, types and dates, although its name column is wider than needed.
void ShowColumnsInFull(QFileDialog& dialog) {
    const auto* const files = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (files == nullptr)
        return;
    QHeaderView& columns = *files->header();
    columns.setStretchLastSection(false);
    for (int column = 0; column < columns.count(); ++column)
        columns.setSectionResizeMode(column,
                                     column == 0 ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
}

/// The toolkit's own open prompt disables its button for a file that the selected filter entry hides. Here
/// the button is enabled for every existing file.
class OpenButtonRule : public QObject {
  public:
    explicit OpenButtonRule(QFileDialog& dialog) : QObject(&dialog), dialog_(dialog) {
        auto* const name = dialog.findChild<QLineEdit*>();
        const auto* const buttons = dialog.findChild<QDialogButtonBox*>();
        if (name == nullptr || buttons == nullptr)
            return;
        open_ = buttons->button(QDialogButtonBox::Open);
        open_->installEventFilter(this);
        connect(name, &QLineEdit::textChanged, this, &OpenButtonRule::Apply);
    }

  private:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::EnabledChange)
            Apply();
        return QObject::eventFilter(watched, event);
    }
    void Apply() {
        if (!open_->isEnabled() && QFileInfo(dialog_.selectedFiles().value(0)).isFile())
            open_->setEnabled(true);
    }

    QFileDialog& dialog_;
    QPushButton* open_ = nullptr;
};

/// The chosen path without the extension that the prompt adds.
QString TypedPath(QFileDialog& dialog) {
    const QString extension = dialog.defaultSuffix();
    dialog.setDefaultSuffix({});
    QString typed = dialog.selectedFiles().value(0);
    dialog.setDefaultSuffix(extension);
    return typed;
}

bool IsOverwriteAccepted(const QString& path, const QString& title) {
    QMessageBox question(
        QMessageBox::Warning, title,
        QFileDialog::tr("%1 already exists.\nDo you want to replace it?").arg(QDir::toNativeSeparators(path)),
        QMessageBox::Yes | QMessageBox::No, OwnerWindow());
    question.setTextFormat(Qt::PlainText);
    question.setDefaultButton(QMessageBox::No);
    return question.exec() == QMessageBox::Yes;
}

} // namespace

PromptFolder::PromptFolder() : Path(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)) {
    if (!QFileInfo(Path).isDir())
        Path = QDir::homePath();
}

void QtCommonDialog::ShowOpen() {
    Show(Kind::Open);
}

void QtCommonDialog::ShowSave() {
    Show(Kind::Save);
}

void QtCommonDialog::Show(Kind kind) {
    input_.DropPendingInput();
    const PromptFilter filter(Filter, DefaultExt);
    QFileDialog dialog(OwnerWindow(), QString::fromStdString(DialogTitle));
    dialog.setAcceptMode(kind == Kind::Save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(kind == Kind::Save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    // The toolkit's own question would take the focus from the prompt, which does not get it back without a
    // window manager. IsToBeTaken asks instead.
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !AsksToOverwrite(kind) || !IsNative(dialog));
    dialog.resize(PromptSize);
    ShowColumnsInFull(dialog);
    dialog.setSupportedSchemes({QStringLiteral("file")});
    dialog.setNameFilters(filter.Entries());
    const auto followEntry = [&] {
        dialog.setDefaultSuffix(kind == Kind::Save ? filter.ExtensionOf(dialog.selectedNameFilter())
                                                   : QString());
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, followEntry);
    if (kind == Kind::Open)
        new OpenButtonRule(dialog);
    Offer(dialog);
    followEntry();
    QString path;
    do {
        const bool accepted = !ending_.IsEnding() && dialog.exec() == QDialog::Accepted;
        folder_.Path = dialog.directory().absolutePath();
        if (!accepted)
            throw Failure("Cancel was selected.", failure_number::Cancelled, Source);
        followEntry();
        path = dialog.selectedFiles().value(0);
    } while (!IsToBeTaken(dialog, path, kind));
    folder_.Path = QFileInfo(path).absolutePath();
    FileName = QDir::toNativeSeparators(path).toStdString();
}

void QtCommonDialog::Offer(QFileDialog& dialog) const {
    dialog.setDirectory(folder_.Path);
    dialog.selectNameFilter(dialog.nameFilters().value(0));
    const QFileInfo offered(QString::fromStdString(FileName));
    if (offered.isAbsolute() && offered.dir().exists())
        dialog.setDirectory(offered.dir());
    if (!offered.fileName().isEmpty())
        dialog.selectFile(offered.fileName());
}

bool QtCommonDialog::AsksToOverwrite(Kind kind) const {
    return kind == Kind::Save && (Flags & OverwritePrompt) != 0;
}

bool QtCommonDialog::IsToBeTaken(QFileDialog& dialog, const QString& path, Kind kind) const {
    if (path.isEmpty())
        throw Failure("The prompt gave no file name.", failure_number::InvalidArgument, Source);
    // The desktop's own prompt asks about the name as typed, before the extension is added.
    const bool asked = !dialog.testOption(QFileDialog::DontConfirmOverwrite) && TypedPath(dialog) == path;
    if (!AsksToOverwrite(kind) || asked || !QFileInfo::exists(path))
        return true;
    dialog.selectFile(path);
    return IsOverwriteAccepted(path, dialog.windowTitle());
}

} // namespace orvane
