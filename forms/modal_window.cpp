#include "forms/modal_window.h"

#include <QApplication>
#include <QFont>
#include <QScreen>

namespace orvane {

namespace {

constexpr int FontPixels = 11;

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
}

} // namespace orvane
