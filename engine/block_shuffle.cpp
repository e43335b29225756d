#include "engine/block_shuffle.h"

#include "engine/numbers.h"
#include "engine/random_draws.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orvane {

std::vector<std::uint8_t> DealGroups(std::size_t size, std::int16_t numberOfGroups) {
    std::vector<std::uint8_t> groups(size);
    std::int16_t g = 1;
    for (auto& group : groups) {
        group = static_cast<std::uint8_t>(g);
        g = g == numberOfGroups ? std::int16_t{1} : static_cast<std::int16_t>(g + 1);
    }
    return groups;
}

void ShuffleBlock(UniformSource& random, std::span<std::uint8_t> groups, const VectorKernels& kernels) {
    alignas(CacheLine) std::int16_t positions[4 * BatchValues];
    const auto N = static_cast<std::int32_t>(groups.size());
    auto valuesLeft = 2 * static_cast<std::size_t>(Multiply32(Multiply32(N, 10), N));
    while (valuesLeft > 0) {
        const auto next = std::span(positions).first(std::min(valuesLeft, std::size(positions)));
        // Positions count from 0 here. Lo is only added to the draw, so Lo = 0 gives position - 1 of Lo = 1.
        DrawRandomInts(random, 0, static_cast<std::int16_t>(groups.size() - 1), next, kernels);
        ExchangePositions(groups, next);
        valuesLeft -= next.size();
    }
}

void ExchangePositions(std::span<std::uint8_t> groups, std::span<const std::int16_t> positions) {
    for (std::size_t i = 0; i < positions.size(); i += 2)
        std::swap(groups[static_cast<std::uint16_t>(positions[i])],
                  groups[static_cast<std::uint16_t>(positions[i + 1])]);
}

} // namespace orvane
