#include "forms/modal_window.h"

#include "forms/form_look.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

namespace orvane {

namespace {

/// Repaints what the window covered. The window system may not have kept it, and the caller may start work
/// during which nothing is painted. Clicks and keys stay in the queue.
void PaintWhatWasCovered() {
    constexpr int patience = 20; // milliseconds for the window system to request it
    QEventLoop painting;
    QTimer end;
    QObject::connect(&end, &QTimer::timeout, &painting, &QEventLoop::quit);
    end.start(patience);
    painting.exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

ModalWindow::ModalWindow(Qt::WindowFlags flags, Platform& desktop, QWidget* owner)
    : QDialog(owner, flags), desktop_(desktop), guard_(*this, desktop.Messages, desktop.Pointer) {
    UseFormFont(*this);
}

void ModalWindow::ShowModal() {
    const QWidget* const front = QApplication::activeWindow();
    CentreOnScreen(*this, front != nullptr ? *front : *this);
    ShowModalHere();
}

void ModalWindow::ShowModalHere() {
    exec();
    PaintWhatWasCovered();
}

} // namespace orvane
