// The block function of ChaCha, the stream cipher of D. J. Bernstein (RFC 8439): sixteen words in, sixteen
// words out. Without the key the input cannot be found from the output.
#pragma once

#include "engine/compiler.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace orvane {

/// The input of a block: four constants, eight words of the key, and four words that are different for every
/// block of that key.
using ChaChaWords = std::array<std::uint32_t, 16>;

inline constexpr std::array<std::uint32_t, 4> ChaChaConstants{0x61707865, 0x3320646e, 0x79622d32, 0x6b206574};
inline constexpr std::size_t ChaChaKeyAt = 4;
inline constexpr std::size_t ChaChaKeyWords = 8;

ORVANE_INLINE void QuarterRound(std::uint32_t& a, std::uint32_t& b, std::uint32_t& c, std::uint32_t& d) {
    a += b;
    d = std::rotl(d ^ a, 16);
    c += d;
    b = std::rotl(b ^ c, 12);
    a += b;
    d = std::rotl(d ^ a, 8);
    c += d;
    b = std::rotl(b ^ c, 7);
}

/// The same words of several blocks, side by side.
template <std::size_t Blocks>
using ChaChaLanes = std::array<std::uint32_t, Blocks>;

/// The quarter rounds of several blocks: a loop that the compiler vectorises.
template <std::size_t Blocks>
ORVANE_INLINE void QuarterRound(ChaChaLanes<Blocks>& a, ChaChaLanes<Blocks>& b, ChaChaLanes<Blocks>& c,
                                ChaChaLanes<Blocks>& d) {
    for (std::size_t block = 0; block < Blocks; ++block)
        QuarterRound(a[block], b[block], c[block], d[block]);
}

/// Two rounds at a time, first down the columns, then along the diagonals. `x` holds the sixteen words of one
/// block or the sixteen lanes of several.
template <int Rounds, class Words>
ORVANE_INLINE void ChaChaRounds(Words& x) {
    static_assert(Rounds % 2 == 0);
    for (int round = 0; round < Rounds; round += 2) {
        QuarterRound(x[0], x[4], x[8], x[12]);
        QuarterRound(x[1], x[5], x[9], x[13]);
        QuarterRound(x[2], x[6], x[10], x[14]);
        QuarterRound(x[3], x[7], x[11], x[15]);
        QuarterRound(x[0], x[5], x[10], x[15]);
        QuarterRound(x[1], x[6], x[11], x[12]);
        QuarterRound(x[2], x[7], x[8], x[13]);
        QuarterRound(x[3], x[4], x[9], x[14]);
    }
}

/// The block of `input`. With 20 rounds it is that of RFC 8439.
template <int Rounds>
ORVANE_INLINE ChaChaWords ChaChaBlock(const ChaChaWords& input) {
    ChaChaWords x = input;
    ChaChaRounds<Rounds>(x);
    for (std::size_t word = 0; word < x.size(); ++word)
        x[word] += input[word];
    return x;
}

} // namespace orvane
