#include "platform/qt/qt_second_press.h"

#include <QCoreApplication>
#include <QEvent>

namespace orvane {

QtSecondPress::QtSecondPress() {
    QCoreApplication::instance()->installEventFilter(this);
}

bool QtSecondPress::eventFilter(QObject* watched, QEvent* event) {
    const bool press = event->type() == QEvent::MouseButtonPress;
    const bool second = event->type() == QEvent::MouseButtonDblClick;
    if (!watched->isWidgetType() || (!press && !second))
        return false;
    const QWidget* window = static_cast<const QWidget*>(watched)->window();
    if (press)
        first_ = window;
    return second && first_ != window;
}

} // namespace orvane
