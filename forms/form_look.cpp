#include "forms/form_look.h"

#include <QEvent>
#include <QFont>
#include <QScreen>
#include <QWindow>

namespace orvane {

namespace {

constexpr int FontPixels = 11;

void Place(QWidget& window, const QScreen& screen) {
    QRect frame = window.frameGeometry();
    frame.moveCenter(screen.availableGeometry().center());
    window.move(frame.topLeft());
}

/// Positions a window when it is first exposed, then deletes itself.
class SecondPlacing : public QObject {
  public:
    explicit SecondPlacing(QWidget& window) : QObject(window.windowHandle()), window_(window) {
        window.windowHandle()->installEventFilter(this);
    }

  private:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Expose && window_.windowHandle()->isExposed()) {
            Place(window_, *window_.screen());
            window_.windowHandle()->removeEventFilter(this);
            deleteLater();
        }
        return false;
    }

    QWidget& window_;
};

} // namespace

void UseFormFont(QWidget& window) {
    QFont font = window.font();
    font.setPixelSize(FontPixels);
    window.setFont(font);
}

void CentreOnScreen(QWidget& window, const QWidget& there) {
    const QScreen* const screen = there.screen();
    if (screen == nullptr)
        return;
    Place(window, *screen);
    window.winId(); // creates the window handle that SecondPlacing watches
    new SecondPlacing(window);
}

} // namespace orvane
