// Random bytes of the operating system.
#pragma once

#include <cstddef>
#include <span>

namespace orvane {

class Entropy {
  public:
    virtual ~Entropy() = default;
    /// Fills `bytes` with unpredictable bytes. If it cannot, it throws a Failure; the content of `bytes`
    /// must then not be used.
    virtual void Fill(std::span<std::byte> bytes) = 0;
};

} // namespace orvane
