#include "platform/qt/qt_ending.h"

#include <QApplication>
#include <QDialog>
#include <QSocketNotifier>
#include <QWidget>

#include <chrono>

namespace orvane {

QtEnding::QtEnding() {
    // A direct connection, because the session may end as soon as this handler returns.
    connect(qApp, &QGuiApplication::commitDataRequest, this, &QtEnding::Begin, Qt::DirectConnection);
    connect(&timer_, &QTimer::timeout, this, &QtEnding::CloseFront);
}

void QtEnding::BeginAt(int descriptor) {
    auto* const request = new QSocketNotifier(descriptor, QSocketNotifier::Read, this);
    connect(request, &QSocketNotifier::activated, this, [this, request] {
        request->setEnabled(false);
        Begin();
    });
}

void QtEnding::Begin() {
    using namespace std::chrono_literals;
    if (IsEnding())
        return;
    timer_.start(10ms);
    CloseFront();
}

/// Closes one modal window at a time, and is called again by the timer: the code that opened a window
/// continues when it closes, and may open another one.
void QtEnding::CloseFront() {
    if (QWidget* const menu = QApplication::activePopupWidget()) {
        menu->close();
    } else if (QWidget* const modal = QApplication::activeModalWidget()) {
        auto* const dialog = qobject_cast<QDialog*>(modal);
        dialog != nullptr ? dialog->reject() : static_cast<void>(modal->close());
    } else {
        for (QWidget* const window : QApplication::topLevelWidgets())
            if (window->isVisible() && window->windowType() == Qt::Window)
                window->close();
    }
}

} // namespace orvane
