// What signals do to a process of their own, which tells what it saw on the error channel.
#include "platform/linux/end_signals.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <iostream>

#include <poll.h>
#include <unistd.h>

namespace orvane {
namespace {

void TellWhetherNoticed(const EndSignals& signals) {
    pollfd look{.fd = signals.Descriptor(), .events = POLLIN, .revents = 0};
    std::cerr << (::poll(&look, 1, 0) == 1 ? "noticed " : "quiet ");
}

struct EndSignalsDeathTest : testing::TestWithParam<int> {};

TEST_P(EndSignalsDeathTest, TheFirstSignalIsNoticedAndTheSecondOfItsKindEndsTheProgram) {
    const auto twoSignals = [] {
        static_cast<void>(std::signal(GetParam(), SIG_DFL));
        const EndSignals signals;
        TellWhetherNoticed(signals);
        ::kill(::getpid(), GetParam());
        TellWhetherNoticed(signals);
        ::kill(::getpid(), GetParam());
    };
    EXPECT_EXIT(twoSignals(), testing::KilledBySignal(GetParam()), "^quiet noticed $");
}

TEST_P(EndSignalsDeathTest, ASignalThatWasIgnoredAtTheStartStaysIgnored) {
    const auto asUnderNohup = [] {
        static_cast<void>(std::signal(GetParam(), SIG_IGN));
        {
            const EndSignals signals;
            ::kill(::getpid(), GetParam());
            TellWhetherNoticed(signals);
        }
        ::kill(::getpid(), GetParam());
        std::_Exit(0);
    };
    EXPECT_EXIT(asUnderNohup(), testing::ExitedWithCode(0), "^quiet $");
}

INSTANTIATE_TEST_SUITE_P(Signals, EndSignalsDeathTest, testing::Values(SIGTERM, SIGINT, SIGHUP),
                         [](const auto& signal) { return std::string(::sigabbrev_np(signal.param)); });

TEST(ClosedPipeDeathTest, WritingToItIsAnErrorThatDoesNotEndTheProgram) {
    const auto writeToNobody = [] {
        static_cast<void>(std::signal(SIGPIPE, SIG_DFL));
        const EndSignals signals;
        int ends[2] = {};
        if (::pipe(ends) == 0 && ::close(ends[0]) == 0 && ::write(ends[1], "x", 1) == -1)
            std::cerr << ::strerrorname_np(errno);
        std::_Exit(0);
    };
    EXPECT_EXIT(writeToNobody(), testing::ExitedWithCode(0), "^EPIPE$");
}

} // namespace
} // namespace orvane
