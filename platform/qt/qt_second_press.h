// Keeps a double click within one window.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace orvane {

/// While this object exists, the second press of a double click is dropped if it is in another window than
/// the first. So when the first press closes a window, the second one does not press a control of the window
/// below.
class QtSecondPress : public QObject {
  public:
    /// Requires: the application object exists.
    QtSecondPress();

  private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    QPointer<const QWidget> first_; ///< the window of the latest press, null if it was deleted
};

} // namespace orvane
