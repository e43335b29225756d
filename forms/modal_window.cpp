#include "forms/modal_window.h"

#include <QApplication>
#include <QEvent>
#include <QFont>
#include <QScreen>
#include <QTimer>

namespace orvane {

namespace {

constexpr int FontPixels = 11;

/// Lives for as long as the second press of a double click can follow the first one.
class SecondPress : public QObject {
  public:
    explicit SecondPress(QObject* application) : QObject(application) {
        application->installEventFilter(this);
        QTimer::singleShot(QApplication::doubleClickInterval(), this, &QObject::deleteLater);
    }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        return event->type() == QEvent::MouseButtonDblClick;
    }
};

} // namespace

ModalWindow::ModalWindow(Qt::WindowFlags flags) : QDialog(nullptr, flags) {
    QFont small = font();
    small.setPixelSize(FontPixels);
    setFont(small);
}

void ModalWindow::ShowModal() {
    const QWidget* front = QApplication::activeWindow();
    if (const QScreen* there = front != nullptr ? front->screen() : screen())
        move(there->availableGeometry().center() - rect().center());
    exec();
    new SecondPress(QCoreApplication::instance());
}

} // namespace orvane
