// The content of a block: groups dealt out evenly, then shuffled.
#pragma once

#include "engine/vector_kernels.h"
#include "platform/uniform_source.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace orvane {

/// The groups of a block of `size` positions before the shuffle: 1, 2, ... `numberOfGroups`, 1, 2, ...
std::vector<std::uint8_t> DealGroups(std::size_t size, std::int16_t numberOfGroups);

/// Exchanges two freely drawn positions, 10 N N times for N positions. Consumes exactly 20 N N values of the
/// source. Throws an Overflow failure, with nothing moved, when that count does not fit 32 bits. When the
/// source fails in the midst of it, `groups` is left shuffled in part, the same groups in another order.
/// The kernels change the speed and nothing else.
void ShuffleBlock(UniformSource& random, std::span<std::uint8_t> groups,
                  const VectorKernels& kernels = BestKernels());

/// The exchanges alone: those of positions[0] and positions[1], positions[2] and positions[3], ... An even
/// number of positions, each from 0 to groups.size() - 1.
void ExchangePositions(std::span<std::uint8_t> groups, std::span<const std::int16_t> positions);

} // namespace orvane
