// The source of every random decision of the program.
//
// Input. The key has 256 bits and comes from the operating system's entropy. It is fetched when the first
// value is needed. If the operating system has no entropy, that call fails, and the next call asks again;
// there is no weaker replacement. After that the only input is the value that UniformReseed receives, the
// time of day. It is added to the key and never replaces it.
//
// Output. ChaCha with 8 rounds runs over a counter under this key. Its output words give the values, 24 bits
// each. Their order depends only on the key, on the reseeds and on how many values were taken. It does not
// depend on the machine, nor on whether values are taken one by one or many at once.
//
// What somebody who sees a list can learn. Groups, codes and block sizes show some bits of values that were
// used. Computing any other value from them means breaking the cipher: for 8 rounds no attack is known that
// is faster than trying all 2^256 keys. A list tells nothing about any other list. The time at which a list
// was made, even if it is printed on the list, tells nothing about its content.
//
// Reseed. The new key is one block of the cipher under the old key. The input of that block holds the
// reseed's value in place of the counter, and a mark that the input of values never holds.
// - Earlier values: the old key is overwritten and cannot be computed from the new one. Who reads the memory
//   of the program now cannot find the values drawn before. Values that were prepared but not used are
//   overwritten too. This is true of this object. Copies on the stack, in a debugger, a crash report or the
//   swap file are not under its control.
// - Later values: the new key is as hard to guess as the old one, whatever value is given, even one that an
//   attacker has chosen. (Strictly, two old keys can give the same new key. After a thousand million reseeds
//   more than 220 of the 256 bits are still left.)
// - Between two reseeds the key stays the same. Who reads the memory then can find the values since the last
//   reseed.
//
// Limit. The values are multiples of 2^-24. The chances of a draw from a range of several thousand numbers
// are therefore equal only to about one part in a thousand. This follows from the draw's arithmetic, not from
// the source.
#pragma once

#include "engine/vector_kernels.h"
#include "platform/entropy.h"
#include "platform/uniform_source.h"

#include <array>
#include <cstddef>
#include <span>

namespace orvane {

class RandomSource : public UniformSource {
  public:
    /// Asks `entropy` for nothing yet. The kernels change only the speed.
    explicit RandomSource(Entropy& entropy, const VectorKernels& kernels = BestKernels());
    RandomSource(const RandomSource&) = delete;
    RandomSource& operator=(const RandomSource&) = delete;

    float UniformNext() override;
    void UniformFill(std::span<float> values) override;
    /// Computes one block of the cipher, which also gives the next ReseedValues values.
    void UniformReseed(float value) override;

    /// As many as the longest subject code has characters.
    static constexpr std::size_t ReseedValues = 10;

  private:
    void RequireKey();
    void SetKey(std::span<const std::uint32_t, ChaChaKeyWords> key);
    void MakeBatch(std::span<float, BatchValues> values);

    Entropy& entropy_;
    const VectorKernels& kernels_;
    bool hasKey_ = false;
    ChaChaWords input_{}; ///< of the next block of values
    alignas(CacheLine) std::array<float, BatchValues> prepared_{};
    std::size_t next_ = BatchValues; ///< of the prepared values, the first not handed out
};

} // namespace orvane
