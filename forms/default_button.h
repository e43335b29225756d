// The default button of a window, which Enter presses.
#pragma once

#include <QObject>
#include <QPushButton>

namespace orvane {

/// Enter and keypad Enter without other modifiers press `button`, whatever control of its window has the
/// focus, except a push button, which is then pressed itself. A key that is held down presses once. The
/// toolkit's own default button works only in dialogs, and with some desktop themes check boxes, option
/// buttons and frames handle Enter themselves.
class DefaultButton : public QObject {
  public:
    /// Requires: the window has all its controls.
    explicit DefaultButton(QPushButton& button);

  private:
    bool eventFilter(QObject* control, QEvent* event) override;

    QPushButton& button_;
};

} // namespace orvane
