// A visible mark on the control that has the focus.
#pragma once

#include <QFocusFrame>
#include <QObject>
#include <QPointer>

class QWidget;

namespace orvane {

/// While this object exists, the control with the focus has a frame around it, except text boxes, which show
/// a caret, and menus. Most desktop styles do not show the focus of scroll bars, tables and buttons.
class QtFocusMark : public QObject {
  public:
    /// Requires: the application object exists.
    QtFocusMark();
    ~QtFocusMark() override;
    QtFocusMark(const QtFocusMark&) = delete;
    QtFocusMark& operator=(const QtFocusMark&) = delete;

  private:
    void Mark(QWidget* control);

    QPointer<QFocusFrame> frame_; ///< deleted together with its window
};

} // namespace orvane
