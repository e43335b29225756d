// Base class of the modal windows.
#pragma once

#include <QDialog>

namespace orvane {

/// Each object is built, shown once and destroyed. It has no owner window.
class ModalWindow : public QDialog {
  public:
    /// Shows the window in the middle of the screen and returns when it has closed.
    void ShowModal();

  protected:
    /// `flags` determine the buttons of the frame. Sets the text size of the forms, which controls that are
    /// created later inherit.
    explicit ModalWindow(Qt::WindowFlags flags);
};

} // namespace orvane
