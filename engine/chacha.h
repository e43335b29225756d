// The block function of ChaCha, the stream cipher of D. J. Bernstein: sixteen words in, sixteen words out,
// and no way back without the key.
#pragma once

#include "engine/compiler.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace orvane {

/// What a block is made of: four constants, eight words of the key, and four words that set the block apart
/// from all others of that key.
using ChaChaWords = std::array<std::uint32_t, 16>;

inline constexpr std::array<std::uint32_t, 4> ChaChaConstants{0x61707865, 0x3320646e, 0x79622d32, 0x6b206574};
inline constexpr std::size_t ChaChaKeyAt = 4;
inline constexpr std::size_t ChaChaKeyWords = 8;

ORVANE_INLINE void QuarterRound(ChaChaWords& x, std::size_t a, std::size_t b, std::size_t c, std::size_t d) {
    x[a] += x[b];
    x[d] = std::rotl(x[d] ^ x[a], 16);
    x[c] += x[d];
    x[b] = std::rotl(x[b] ^ x[c], 12);
    x[a] += x[b];
    x[d] = std::rotl(x[d] ^ x[a], 8);
    x[c] += x[d];
    x[b] = std::rotl(x[b] ^ x[c], 7);
}

/// Two rounds at a time, first down the columns, then along the diagonals. Written as a recursion, which
/// leaves no loop: a loop over blocks around it is then one that the compiler can vectorise.
template <int Rounds>
ORVANE_INLINE void ChaChaRounds(ChaChaWords& x) {
    static_assert(Rounds % 2 == 0);
    if constexpr (Rounds > 0) {
        QuarterRound(x, 0, 4, 8, 12);
        QuarterRound(x, 1, 5, 9, 13);
        QuarterRound(x, 2, 6, 10, 14);
        QuarterRound(x, 3, 7, 11, 15);
        QuarterRound(x, 0, 5, 10, 15);
        QuarterRound(x, 1, 6, 11, 12);
        QuarterRound(x, 2, 7, 8, 13);
        QuarterRound(x, 3, 4, 9, 14);
        ChaChaRounds<Rounds - 2>(x);
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
