#include "forms/line_box.h"

#include "forms/qt_text.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <QValidator>

#include <algorithm>
#include <limits>
#include <utility>

namespace orvane {

namespace {

bool IsLineEnd(QChar character) {
    return character == u'\n' || character == u'\r' || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

/// Checks every text before the box accepts it. Cuts what the user inserts at its first line end, whether it
/// is pasted, dropped or comes from an input method.
class InsertionCutter : public QValidator {
  public:
    InsertionCutter(const bool& programSetsText, QObject* parent)
        : QValidator(parent), programSetsText_(programSetsText) {}

    State validate(QString& text, int& cursor) const override {
        if (!programSetsText_)
            CutInsertion(text, cursor);
        accepted_ = text;
        return Acceptable;
    }

  private:
    /// An insertion ends at the cursor and begins where the text first differs from the last accepted one.
    void CutInsertion(QString& text, int& cursor) const {
        const qsizetype behind = text.size() - cursor;
        const qsizetype kept = std::clamp<qsizetype>(accepted_.size() - behind, 0, cursor);
        const auto insertion = std::mismatch(text.cbegin(), text.cbegin() + kept, accepted_.cbegin()).first;
        const auto cut = std::find_if(insertion, text.cbegin() + cursor, IsLineEnd);
        const qsizetype length = cut - text.cbegin();
        text.remove(length, cursor - length);
        cursor = static_cast<int>(length);
    }

    const bool& programSetsText_;
    mutable QString accepted_;
};

} // namespace

LineBox::LineBox(QWidget* parent) : QLineEdit(parent) {
    setMaxLength(std::numeric_limits<int>::max());
    setValidator(new InsertionCutter(settingText_, this));
}

void LineBox::SetText(const std::string& text) {
    const bool outer = std::exchange(settingText_, true);
    setText(ToQString(text));
    settingText_ = outer;
}

void LineBox::TakeFocus() {
    setFocus(Qt::OtherFocusReason);
    // In an inactive window the focus comes later, with a reason for which focusInEvent does not select.
    selectAll();
}

void LineBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    pressBringsFocus_ = reason == Qt::MouseFocusReason;
    const bool windowComesBack = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
                                 reason == Qt::MenuBarFocusReason;
    if (!windowComesBack)
        selectAll();
}

void LineBox::mousePressEvent(QMouseEvent* event) {
    if (!pressBringsFocus_)
        QLineEdit::mousePressEvent(event);
}

void LineBox::mouseMoveEvent(QMouseEvent* event) {
    if (!pressBringsFocus_)
        QLineEdit::mouseMoveEvent(event);
}

void LineBox::mouseReleaseEvent(QMouseEvent* event) {
    if (!std::exchange(pressBringsFocus_, false))
        QLineEdit::mouseReleaseEvent(event);
}

} // namespace orvane
