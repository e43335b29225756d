// The two loops that a shuffle spends its time in, as loops over whole batches. Each is written once and
// compiled for several kinds of machine; every version gives the same values, bit for bit.
#pragma once

#include "engine/chacha.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace orvane {

/// Rounds of the generator: the fewest against which no attack is known that beats trying keys.
inline constexpr int SourceRounds = 8;

/// The word of a block's input that counts the blocks, its low half.
inline constexpr std::size_t ChaChaCounterAt = 12;

/// Blocks that are made side by side: two of the widest vectors, so that there is always one to work on while
/// the other's result is under way.
inline constexpr std::size_t BatchBlocks = 32;
/// Values of a block: three words hold the bits of four values, the sixteenth word those of one.
inline constexpr std::size_t BlockValues = 21;
inline constexpr std::size_t BatchValues = BatchBlocks * BlockValues;

/// Arrays that the loops run over start at a multiple of this many bytes: a vector that lies across two lines
/// of the cache costs double.
inline constexpr std::size_t CacheLine = 64;

/// The value whose 24 bits are the upper ones of `word`.
ORVANE_INLINE float UniformValue(std::uint32_t word) {
    return static_cast<float>(static_cast<std::int32_t>(word >> 8U)) * 0x1p-24F;
}

/// Four values: one from the upper 24 bits of each word, one from the lower 8 bits of all three.
ORVANE_INLINE std::array<float, 4> UniformValues(std::uint32_t a, std::uint32_t b, std::uint32_t c) {
    return {UniformValue(a), UniformValue(b), UniformValue(c),
            UniformValue((a << 24U) | ((b & 255U) << 16U) | ((c & 255U) << 8U))};
}

/// The loops, compiled for one kind of machine.
struct VectorKernels {
    const char* Name;

    /// The values of BatchBlocks blocks, made from `first` and from the inputs that count on from it; the
    /// counter of `first` is a multiple of BatchBlocks. The first values of all blocks come first.
    void (*UniformBatch)(const ChaChaWords& first, std::span<float, BatchValues> values);

    /// draws[i] = Lo + values[i] * range, rounded to nearest, ties to even, on the exact product. `range` is
    /// from 0 to 32767, a value from 0 to below 1, and every result fits 16 bits.
    void (*ScaleToRange)(std::span<const float> values, std::int16_t Lo, std::int16_t range,
                         std::span<std::int16_t> draws);
};

/// The versions that this machine can run: first the one that every machine can, last the fastest.
std::span<const VectorKernels> RunnableKernels();

/// The fastest of them, found out once.
const VectorKernels& BestKernels();

} // namespace orvane
