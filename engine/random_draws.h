// The one random draw of the program.
#pragma once

#include "engine/vector_kernels.h"
#include "platform/uniform_source.h"

#include <cstdint>
#include <span>

namespace orvane {

/// Draws a number from Lo to Hi: Lo + (Hi - Lo) * U, the exact product rounded to nearest, ties to even. U is
/// the next value of the source; every call takes one value, whatever the range. The two ends are therefore
/// drawn half as often as each value between them. Throws an Overflow failure when a step does not fit 16
/// bits.
std::int16_t DrawRandomInt(UniformSource& source, std::int16_t Lo, std::int16_t Hi);

/// Fills `draws` with the numbers that as many calls of DrawRandomInt would give, from the same values of the
/// source. The kernels change only the speed.
/// Requires: Hi - Lo from 0 to 32767.
void DrawRandomInts(UniformSource& source, std::int16_t Lo, std::int16_t Hi, std::span<std::int16_t> draws,
                    const VectorKernels& kernels = BestKernels());

} // namespace orvane
