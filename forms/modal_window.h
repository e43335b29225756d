// What the windows that block all others have in common.
#pragma once

#include <QDialog>

namespace orvane {

/// A window for one opening: built, shown and destroyed. It has no owner window.
class ModalWindow : public QDialog {
  public:
    /// Shows the window in the middle of the screen and returns when it has closed.
    void ShowModal();

  protected:
    /// `flags` say which buttons the frame has. The controls that follow write in the size of the forms.
    explicit ModalWindow(Qt::WindowFlags flags);
};

} // namespace orvane
