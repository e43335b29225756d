#include "forms/event_guard.h"

#include "fakes/desktop.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(EventGuard, AFailureBelongsToTheStatementThatCausedItAndIsReportedOnceUnderTheNormalPointer) {
    fakes::FakeDesktop desktop;
    EventGuard guard(desktop.messages, desktop.pointer);
    const auto moveAControl = [&] {
        guard.Calling([&] { guard.Handle([] { throw Failure("inner", 1, "test"); }); });
    };
    bool seen = false;
    guard.Handle([&] {
        try {
            moveAControl();
        } catch (const Failure&) {
            seen = true;
        }
    });
    EXPECT_TRUE(seen);
    EXPECT_EQ(desktop.messages.Take(), "");

    desktop.pointer.ShowBusy();
    desktop.messages.WhileShown = [&] { EXPECT_FALSE(desktop.pointer.Busy); };
    guard.Handle(moveAControl);
    EXPECT_EQ(desktop.messages.TakeAll().size(), 1U);
}

} // namespace
} // namespace orvane
