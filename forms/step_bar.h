// A horizontal scroll bar whose keys go the way they point.
#pragma once

#include <QKeyEvent>
#include <QScrollBar>

namespace orvane {

/// The toolkit's bar steps down at Right and up at Left. Here they go with Down and Up, and with the arrows
/// and the track.
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
