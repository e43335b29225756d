#include "platform/qt/qt_mouse_pointer.h"

#include <QCursor>
#include <QGuiApplication>

namespace orvane {

void QtMousePointer::ShowBusy() {
    // The toolkit keeps a stack of override pointers; at most one is put on it.
    if (input_.IsBusy())
        return;
    input_.SetBusy(true);
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

void QtMousePointer::ShowNormal() {
    if (!input_.IsBusy())
        return;
    input_.DropPendingInput();
    input_.SetBusy(false);
    QGuiApplication::restoreOverrideCursor();
}

} // namespace orvane
