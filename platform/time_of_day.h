// The clock of the desktop.
#pragma once

namespace orvane {

class TimeOfDay {
  public:
    virtual ~TimeOfDay() = default;
    /// Seconds since local midnight, with fractions, from 0 to 86400.
    virtual float SecondsSinceMidnight() = 0;
};

} // namespace orvane
