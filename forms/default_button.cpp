#include "forms/default_button.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>

namespace orvane {

DefaultButton::DefaultButton(QPushButton& button) : QObject(&button), button_(button) {
    QWidget* const window = button.window();
    window->installEventFilter(this);
    for (QWidget* const control : window->findChildren<QWidget*>())
        if (qobject_cast<QMenu*>(control) == nullptr && qobject_cast<QMenuBar*>(control) == nullptr)
            control->installEventFilter(this);
}

bool DefaultButton::eventFilter(QObject* control, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& pressed = static_cast<const QKeyEvent&>(*event);
    const bool enter = pressed.key() == Qt::Key_Return || pressed.key() == Qt::Key_Enter;
    if (!enter || (pressed.modifiers() & ~Qt::KeypadModifier) != 0)
        return false;
    if (pressed.isAutoRepeat())
        return true;
    if (qobject_cast<QPushButton*>(control) != nullptr)
        return false;
    button_.click();
    return true;
}

} // namespace orvane
