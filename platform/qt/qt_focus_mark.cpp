#include "platform/qt/qt_focus_mark.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPlainTextEdit>

namespace orvane {

namespace {

class Frame : public QFocusFrame {
  public:
    using QFocusFrame::QFocusFrame;

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        constexpr int width = 2;
        QPainter painter(this);
        QPen pen(palette().color(QPalette::Active, QPalette::Highlight), width);
        pen.setJoinStyle(Qt::MiterJoin);
        painter.setPen(pen);
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
};

bool ShowsItsFocus(const QWidget& control) {
    return qobject_cast<const QLineEdit*>(&control) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&control) != nullptr ||
           qobject_cast<const QMenu*>(&control) != nullptr ||
           qobject_cast<const QMenuBar*>(&control) != nullptr;
}

} // namespace

QtFocusMark::QtFocusMark() {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { Mark(now); });
}

QtFocusMark::~QtFocusMark() {
    delete frame_;
}

void QtFocusMark::Mark(QWidget* control) {
    delete frame_;
    if (control == nullptr || control->isWindow() || ShowsItsFocus(*control))
        return;
    frame_ = new Frame(control);
    frame_->setWidget(control);
}

} // namespace orvane
