#include "platform/linux/linux_clock.h"

#include <algorithm>
#include <ctime>

namespace orvane {

float LinuxClock::SecondsSinceMidnight() {
    constexpr double secondsOfDay = 86400.0;
    constexpr double nanosecond = 1e-9;
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    std::tm local{};
    localtime_r(&now.tv_sec, &local);
    const int whole = (local.tm_hour * 60 + local.tm_min) * 60 + local.tm_sec;
    const double seconds = whole + static_cast<double>(now.tv_nsec) * nanosecond;
    return static_cast<float>(std::min(seconds, secondsOfDay));
}

} // namespace orvane
