#include "engine/random_draws.h"

#include "engine/numbers.h"

#include <algorithm>
#include <iterator>

namespace orvane {

std::int16_t DrawRandomInt(UniformSource& source, std::int16_t Lo, std::int16_t Hi) {
    const double U = source.UniformNext();
    const std::int16_t W = Subtract16(Hi, Lo);
    const std::int16_t R = ToInt16(W * U);
    return Add16(R, Lo);
}

void DrawRandomInts(UniformSource& source, std::int16_t Lo, std::int16_t Hi, std::span<std::int16_t> draws,
                    const VectorKernels& kernels) {
    // A few batches of the source, which together fit into the first-level cache.
    alignas(CacheLine) float values[4 * BatchValues];
    const std::int16_t W = Subtract16(Hi, Lo);
    while (!draws.empty()) {
        const std::size_t count = std::min(draws.size(), std::size(values));
        const auto next = std::span(values).first(count);
        source.UniformFill(next);
        kernels.ScaleToRange(next, Lo, W, draws.first(count));
        draws = draws.subspan(count);
    }
}

} // namespace orvane
