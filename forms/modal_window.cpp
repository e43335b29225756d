#include "forms/modal_window.h"

#include <QApplication>
#include <QEventLoop>
#include <QFont>
#include <QScreen>
#include <QTimer>

namespace orvane {

namespace {

constexpr int FontPixels = 11;

/// A window system may keep no picture of what a window covered. That has to be painted before work begins
/// that leaves no time for it. Clicks and keys wait meanwhile.
void PaintWhatWasCovered() {
    constexpr int patience = 20; // milliseconds until the window system has asked for it
    QEventLoop painting;
    QTimer end;
    QObject::connect(&end, &QTimer::timeout, &painting, &QEventLoop::quit);
    end.start(patience);
    painting.exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

ModalWindow::ModalWindow(Qt::WindowFlags flags) : QDialog(nullptr, flags) {
    QFont small = font();
    small.setPixelSize(FontPixels);
    setFont(small);
}

void ModalWindow::ShowModal() {
    const QWidget* front = QApplication::activeWindow();
    if (const QScreen* there = front != nullptr ? front->screen() : screen())
        move(there->availableGeometry().center() - rect().center());
    exec();
    PaintWhatWasCovered();
}

} // namespace orvane
