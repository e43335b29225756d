// A horizontal scroll bar whose keys go the way they point.
#pragma once

#include <QKeyEvent>
#include <QScrollBar>

namespace orvane {

/// The toolkit's bar steps down at Right and up at Left. Here Right, Down and Page Down step up, and Left, Up
/// and Page Up step down, as the arrows and the track do.
class StepBar : public QScrollBar {
  public:
    explicit StepBar(QWidget* parent = nullptr) : QScrollBar(Qt::Horizontal, parent) {}

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        const SliderAction action = ActionOf(event->key());
        if (action == SliderNoAction)
            QScrollBar::keyPressEvent(event);
        else
            triggerAction(action);
    }

  private:
    static SliderAction ActionOf(int key) {
        switch (key) {
        case Qt::Key_Right:
        case Qt::Key_Down:
            return SliderSingleStepAdd;
        case Qt::Key_Left:
        case Qt::Key_Up:
            return SliderSingleStepSub;
        case Qt::Key_PageDown:
            return SliderPageStepAdd;
        case Qt::Key_PageUp:
            return SliderPageStepSub;
        default:
            return SliderNoAction;
        }
    }
};

} // namespace orvane
