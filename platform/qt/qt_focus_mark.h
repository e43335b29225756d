// The focus can be seen at every control.
#pragma once

#include <QFocusFrame>
#include <QObject>
#include <QPointer>

class QWidget;

namespace orvane {

/// While it lives, the control with the focus has a frame around it, but for text boxes, which show a caret.
/// Most desktops' styles show no focus at bars, tables and buttons.
class QtFocusMark : public QObject {
  public:
    /// Requires: the application object exists.
    QtFocusMark();
    ~QtFocusMark() override;
    QtFocusMark(const QtFocusMark&) = delete;
    QtFocusMark& operator=(const QtFocusMark&) = delete;

  private:
    void Mark(QWidget* control);

    QPointer<QFocusFrame> frame_; ///< goes with the window that it is in
};

} // namespace orvane
