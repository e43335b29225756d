// A horizontal scroll bar whose value increases with Right and decreases with Left.
#pragma once

#include <QKeyEvent>
#include <QScrollBar>

namespace orvane {

/// In the toolkit's bar Right decreases the value and Left increases it. Here Right and Left work like Down
/// and Up, and like the arrow buttons and the track.
class StepBar : public QScrollBar {
  public:
    explicit StepBar(QWidget* parent = nullptr) : QScrollBar(Qt::Horizontal, parent) {}

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Right)
            triggerAction(SliderSingleStepAdd);
        else if (event->key() == Qt::Key_Left)
            triggerAction(SliderSingleStepSub);
        else
            QScrollBar::keyPressEvent(event);
    }
};

} // namespace orvane
