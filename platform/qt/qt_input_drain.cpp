#include "platform/qt/qt_input_drain.h"

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QWidget>

namespace orvane {

namespace {

bool IsUserInput(const QEvent& event) {
    switch (event.type()) {
    case QEvent::Enter:
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
    case QEvent::HoverLeave:
        return false; // the place of the pointer, which does nothing
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::Drop:
        return true;
    default:
        return event.isInputEvent();
    }
}

} // namespace

void QtInputDrain::DropPendingInput() {
    constexpr int patience = 500; // milliseconds; a key that is held down sends events without end
    // While a menu is open, pending keys belong to the menu.
    if (!busy_ || dropping_ || QApplication::activePopupWidget() != nullptr)
        return;
    dropping_ = true;
    modal_ = QApplication::activeModalWidget();
    QCoreApplication::instance()->installEventFilter(this);
    QCoreApplication::processEvents(QEventLoop::AllEvents, patience);
    QCoreApplication::instance()->removeEventFilter(this);
    dropping_ = false;
}

bool QtInputDrain::eventFilter(QObject* /*watched*/, QEvent* event) {
    // A message box that opened meanwhile, to report a failure, needs an answer.
    const bool boxOpened = QApplication::activeModalWidget() != modal_;
    if (boxOpened || !IsUserInput(*event))
        return false;
    event->ignore();
    return true;
}

} // namespace orvane
