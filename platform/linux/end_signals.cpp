#include "platform/linux/end_signals.h"

#include "platform/failure.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <initializer_list>
#include <sys/eventfd.h>
#include <unistd.h>

namespace orvane {

namespace {

/// The descriptor, for the signal handler, which cannot get it in another way.
std::atomic<int> signalled = -1;
static_assert(std::atomic<int>::is_always_lock_free);

void OnSignal(int /*signal*/) {
    const int before = errno;
    const std::uint64_t one = 1;
    // If the counter is full, the write fails; the descriptor is readable already then.
    [[maybe_unused]] const auto written = ::write(signalled, &one, sizeof one);
    errno = before;
}

} // namespace

EndSignals::EndSignals() : descriptor_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (descriptor_ < 0)
        throw Failure("The system has no descriptor for the signals that end the program", errno, "eventfd");
    signalled = descriptor_;
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction before = {};
        ::sigaction(number, nullptr, &before);
        if (before.sa_handler == SIG_IGN)
            continue;
        struct sigaction action = {};
        action.sa_handler = OnSignal;
        // The next signal of this kind ends the program at once, for a user who cannot wait.
        action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
        ::sigaction(number, &action, nullptr);
    }
}

EndSignals::~EndSignals() {
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction now = {};
        ::sigaction(number, nullptr, &now);
        if (now.sa_handler == OnSignal)
            static_cast<void>(std::signal(number, SIG_DFL));
    }
    signalled = -1;
    ::close(descriptor_);
}

} // namespace orvane
