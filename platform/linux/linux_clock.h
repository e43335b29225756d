// The time of day in the user's time zone.
#pragma once

#include "platform/time_of_day.h"

namespace orvane {

class LinuxClock : public TimeOfDay {
  public:
    float SecondsSinceMidnight() override;
};

} // namespace orvane
