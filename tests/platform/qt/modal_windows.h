// What the tests of modal windows have in common.
#pragma once

#include "fakes/qt_application.h"
#include "platform/qt/qt_ending.h"
#include "platform/qt/qt_input_drain.h"

#include <gtest/gtest.h>

#include <QTimer>

#include <functional>

namespace orvane {

class ModalWindowsTest : public testing::Test {
  protected:
    /// Runs `use` on the next modal window of its kind.
    template <class Window>
    void InNext(std::function<void(Window&)> use) {
        QTimer::singleShot(1, &context, [this, use = std::move(use)] {
            auto* const window = qobject_cast<Window*>(QApplication::activeModalWidget());
            window != nullptr ? use(*window) : InNext(use);
        });
    }

    QApplication& application = TestApplication(); // first: the others need it
    QtInputDrain input;
    QtEnding ending;
    QObject context;
};

} // namespace orvane
