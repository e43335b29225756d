#include "platform/qt/qt_input_drain.h"

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QWidget>

namespace orvane {

namespace {

bool IsUserInput(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::NonClientAreaMouseButtonPress:
    case QEvent::NonClientAreaMouseButtonRelease:
    case QEvent::NonClientAreaMouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::TabletMove:
    case QEvent::NativeGesture:
    case QEvent::Drop:
        return true;
    default:
        return false;
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
    if (boxOpened || !IsUserInput(event->type()))
        return false;
    event->ignore();
    return true;
}

} // namespace orvane
