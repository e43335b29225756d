#include "forms/event_guard.h"

#include "windows.h"

namespace orvane {
namespace {

using EventGuardTest = WindowTest;

TEST_F(EventGuardTest, ReportsAFailureOnceUnderTheNormalPointer) {
    const QWidget window;
    EventGuard guard(window, desktop.messages, desktop.pointer);
    desktop.pointer.ShowBusy();
    bool busyBehindReport = true;
    desktop.messages.WhileShown = [&] { busyBehindReport = desktop.pointer.Busy; };
    guard.Handle([] { throw Failure("cannot do it", 1, "test"); });
    EXPECT_EQ(Message(), ErrorReport);
    EXPECT_FALSE(busyBehindReport);
}

} // namespace
} // namespace orvane
