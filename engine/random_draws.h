// The one random draw of the program.
#pragma once

#include "engine/vector_kernels.h"
#include "platform/uniform_source.h"

#include <cstdint>
#include <span>

namespace orvane {

/// Draws from Lo to Hi with one value U of the source, whatever the range: Lo + (Hi - Lo) U rounded to
/// nearest, ties to even, on the exact product. The two ends therefore come up half as often as each value
/// between them. Throws an Overflow failure when a step leaves 16 bits.
std::int16_t DrawRandomInt(UniformSource& source, std::int16_t Lo, std::int16_t Hi);

/// Fills `draws` with what as many calls of DrawRandomInt would give, consuming the same values of the
/// source. Hi - Lo must be from 0 to 32767. The kernels change the speed and nothing else.
void DrawRandomInts(UniformSource& source, std::int16_t Lo, std::int16_t Hi, std::span<std::int16_t> draws,
                    const VectorKernels& kernels = BestKernels());

} // namespace orvane
