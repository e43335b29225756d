#include "platform/qt/qt_message_box.h"

#include "platform/application.h"
#include "platform/qt/owner_window.h"

#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <iostream>

namespace orvane {

namespace {

constexpr qsizetype MostLines = 16;
constexpr qsizetype MostCharacters = 1000;
constexpr qsizetype LongestWord = 80;

QString Gap() {
    return QStringLiteral(" \u2026 ");
}

QString WithoutMiddleLines(const QString& text) {
    const QStringList lines = text.split(u'\n');
    if (lines.size() <= MostLines)
        return text;
    return (lines.mid(0, MostLines / 2) + QStringList(Gap()) + lines.mid(lines.size() - MostLines / 2))
        .join(u'\n');
}

QString WithoutMiddleCharacters(const QString& text) {
    if (text.size() <= MostCharacters)
        return text;
    // Do not split a surrogate pair.
    qsizetype first = MostCharacters / 2;
    qsizetype last = text.size() - MostCharacters / 2;
    first -= text.at(first).isLowSurrogate() ? 1 : 0;
    last += text.at(last).isLowSurrogate() ? 1 : 0;
    return text.left(first) + Gap() + text.mid(last);
}

/// Inserts zero-width spaces into words that are too long for a line, so that they can be wrapped.
QString WithBreaks(QString text) {
    static const QRegularExpression tooLong(QStringLiteral("(\\S{%1})(?=\\S)").arg(LongestWord));
    return text.replace(tooLong, QStringLiteral("\\1\u200B"));
}

QString Shown(const std::string& text) {
    QString shown = QString::fromStdString(text);
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    return WithBreaks(WithoutMiddleCharacters(WithoutMiddleLines(shown)));
}

} // namespace

void QtMessageBox::Run(QMessageBox::Icon icon, const std::string& text, const std::string& title) {
    input_.DropPendingInput();
    if (ending_.IsEnding()) {
        std::cerr << title << ": " << text << '\n';
        return;
    }
    QMessageBox box(icon, QString::fromStdString(title), QString(), QMessageBox::Ok, OwnerWindow());
    box.setObjectName(QStringLiteral("MessageBox"));
    box.setTextFormat(Qt::PlainText);
    box.setText(Shown(text));
    box.exec();
}

void QtMessageBox::Show(const std::string& text) {
    Run(QMessageBox::NoIcon, text, ApplicationTitle);
}

void QtMessageBox::ShowExclamation(const std::string& text, const std::string& title) {
    Run(QMessageBox::Warning, text, title);
}

} // namespace orvane
