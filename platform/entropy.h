// Random bytes of the operating system.
#pragma once

#include <cstddef>
#include <span>

namespace orvane {

class Entropy {
  public:
    virtual ~Entropy() = default;
    /// Fills `bytes` with unpredictable bytes, or throws a Failure and leaves no random bytes in `bytes`.
    virtual void Fill(std::span<std::byte> bytes) = 0;
};

} // namespace orvane
