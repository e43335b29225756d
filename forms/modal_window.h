// Base class of the modal windows.
#pragma once

#include "forms/event_guard.h"
#include "platform/platform.h"

#include <QDialog>

namespace orvane {

/// Each object is built, shown once and destroyed.
class ModalWindow : public QDialog {
  public:
    /// Shows the window in the middle of the screen and returns when it has closed.
    void ShowModal();
    /// The same without moving the window.
    void ShowModalHere();

  protected:
    /// `flags` determine the buttons of the frame. Sets the text size of the forms, which controls that are
    /// created later inherit.
    ModalWindow(Qt::WindowFlags flags, Platform& desktop, QWidget* owner = nullptr);

    Platform& desktop_;
    EventGuard guard_;
};

} // namespace orvane
