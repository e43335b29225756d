// Enter presses the default button of a window.
#pragma once

#include <QObject>
#include <QPushButton>

namespace orvane {

/// Enter and keypad Enter without other modifiers press `button`, whatever control of its window has the
/// focus; a push button that has the focus takes them itself. A key that is held down presses once. The
/// toolkit's own default button works in dialogs alone, and some desktop themes give Enter to check boxes,
/// option buttons and frames.
class DefaultButton : public QObject {
  public:
    /// Requires: the window has all its controls.
    explicit DefaultButton(QPushButton& button);

  private:
    bool eventFilter(QObject* control, QEvent* event) override;

    QPushButton& button_;
};

} // namespace orvane
