// A double click belongs to one window.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace orvane {

/// While it lives, the second press of a double click reaches no other window than the first one did: when
/// the first press closes a window, the second one must not press what lay beneath.
class QtSecondPress : public QObject {
  public:
    /// The application object must exist.
    QtSecondPress();

  private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    QPointer<const QWidget> first_; ///< the window of the latest press, null when it is gone
};

} // namespace orvane
