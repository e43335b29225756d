// The source of every random decision of the program.
//
// What goes in. The key: 256 bits from the operating system's entropy, fetched at the first use. Without them
// there is no weaker start: that use is a failure, and the next one asks again. After that only what
// UniformReseed is given, which is the time of day. The time alone would be a poor secret; here it only adds
// to one.
//
// What comes out. ChaCha with 8 rounds, keyed with the key, run over a counter: its words, 24 bits at a time,
// are the values, in an order that depends on nothing but the key, the reseeds and the number of values
// handed out. Whether they were asked for one by one or thousands at once makes no difference, nor does the
// machine.
//
// What an observer of a list can learn. The list, and nothing behind it. Groups, codes and block sizes tell
// some bits of values that are spent. To find the next value, or another one between them, from any number of
// these is to break the cipher: nothing better is known against 8 rounds than trying keys, and there are
// 2^256 of them. No list tells anything about another one, and the time at which a list was made, even if it
// is printed on the page, tells nothing about its content.
//
// What holds after a reseed. The new key is a block of the cipher under the old key, with the reseed's value
// in place of the counter and a mark that no block of values bears.
// - Back: the old key is overwritten and the step has no inverse, so whoever reads the program's memory now
//   cannot tell what was drawn before. Values prepared and not handed out are dropped and overwritten as
//   well. This is said of the object itself; of copies that lie in the dead part of the stack until the next
//   calls overwrite it, or that a debugger, a crash report or the swap file took, nothing can be promised.
// - On: whatever value is given, even one that an enemy chose, the new key is as hard to guess as the old
// one.
//   (To the letter, a one-way step can merge two keys into one. A thousand million reseeds in a row would
//   still leave more than 220 of the 256 bits.)
// - Between reseeds the key stays, so the memory read then tells the values drawn since the last reseed.
//
// What is not promised. The values are multiples of 2^-24. A draw from a range of some thousand numbers is
// therefore even to about one part in a thousand, which is the arithmetic of the draw, not of this source.
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
    /// Takes nothing from `entropy` yet. The kernels change the speed and nothing else.
    explicit RandomSource(Entropy& entropy, const VectorKernels& kernels = BestKernels());
    RandomSource(const RandomSource&) = delete;
    RandomSource& operator=(const RandomSource&) = delete;

    float UniformNext() override;
    void UniformFill(std::span<float> values) override;
    /// Costs one block of the cipher, which also gives the next ReseedValues values.
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
