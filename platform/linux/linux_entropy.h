// Randomness from the kernel.
#pragma once

#include "platform/entropy.h"

#include <cstddef>
#include <span>

namespace orvane {

class LinuxEntropy : public Entropy {
  public:
    /// Never waits for a kernel that has not gathered randomness yet: that is a NoEntropy failure too. After
    /// a failure the bytes are zeros.
    void Fill(std::span<std::byte> bytes) override;
};

} // namespace orvane
