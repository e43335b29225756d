#include "forms/modal_window.h"

#include "forms/form_look.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

namespace orvane {

namespace {

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
    UseFormFont(*this);
}

void ModalWindow::ShowModal() {
    const QWidget* const front = QApplication::activeWindow();
    CentreOnScreen(*this, front != nullptr ? *front : *this);
    exec();
    PaintWhatWasCovered();
}

} // namespace orvane
