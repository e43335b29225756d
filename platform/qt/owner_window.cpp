#include "platform/qt/owner_window.h"

#include <QApplication>
#include <QWidget>

namespace orvane {

QWidget* OwnerWindow() {
    if (QWidget* const modal = QApplication::activeModalWidget())
        return modal;
    if (QWidget* const active = QApplication::activeWindow())
        return active;
    for (QWidget* const window : QApplication::topLevelWidgets())
        if (window->isVisible() && (window->windowType() == Qt::Window || window->windowType() == Qt::Dialog))
            return window;
    return nullptr;
}

} // namespace orvane
