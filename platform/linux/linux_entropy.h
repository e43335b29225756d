// Random bytes from the kernel.
#pragma once

#include "platform/entropy.h"

#include <cstddef>
#include <span>

namespace orvane {

class LinuxEntropy : public Entropy {
  public:
    /// Does not wait when the kernel's random generator is not ready yet: that is a NoEntropy failure. After
    /// a failure `bytes` is filled with zeros.
    void Fill(std::span<std::byte> bytes) override;
};

} // namespace orvane
