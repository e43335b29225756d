// The content of a block: groups dealt out evenly, then shuffled.
#pragma once

#include "engine/vector_kernels.h"
#include "platform/uniform_source.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace orvane {

/// The group numbers of a block of `size` positions before the shuffle: 1, 2, ... numberOfGroups, 1, 2, ...
std::vector<std::uint8_t> DealGroups(std::size_t size, std::int16_t numberOfGroups);

/// Shuffles N positions: 10 N N times, draws two positions and exchanges them. Takes exactly 20 N N values of
/// the source. Throws an Overflow failure, before anything is moved, when 10 N N does not fit 32 bits. When
/// the source fails meanwhile, `groups` holds the same groups in another order. The kernels change only the
/// speed.
void ShuffleBlock(UniformSource& random, std::span<std::uint8_t> groups,
                  const VectorKernels& kernels = BestKernels());

/// The exchanges alone: of positions[0] and positions[1], then positions[2] and positions[3], and so on.
/// Requires: an even number of positions, each from 0 to groups.size() - 1.
void ExchangePositions(std::span<std::uint8_t> groups, std::span<const std::int16_t> positions);

} // namespace orvane
