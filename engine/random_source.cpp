#include "engine/random_source.h"

#include <algorithm>
#include <bit>

namespace orvane {

namespace {

// The last four words of a block's input: the counter of the blocks of values (64 bits), the value of a
// reseed, and what the block is for.
constexpr std::size_t ReseedValueAt = 14;
constexpr std::size_t PurposeAt = 15;
constexpr std::uint32_t ForValues = 0;
constexpr std::uint32_t ForReseed = 1;

} // namespace

RandomSource::RandomSource(Entropy& entropy, const VectorKernels& kernels)
    : entropy_(entropy), kernels_(kernels) {}

float RandomSource::UniformNext() {
    if (next_ == BatchValues) {
        MakeBatch(prepared_);
        next_ = 0;
    }
    return prepared_[next_++];
}

void RandomSource::UniformFill(std::span<float> values) {
    while (!values.empty()) {
        if (next_ == BatchValues && values.size() >= BatchValues) {
            MakeBatch(values.first<BatchValues>());
            values = values.subspan(BatchValues);
            continue;
        }
        values.front() = UniformNext();
        const std::size_t more = std::min(values.size() - 1, BatchValues - next_);
        std::copy_n(prepared_.begin() + static_cast<std::ptrdiff_t>(next_), more, values.begin() + 1);
        next_ += more;
        values = values.subspan(1 + more);
    }
}

void RandomSource::UniformReseed(float value) {
    RequireKey();
    ChaChaWords input = input_;
    std::fill(input.begin() + ChaChaCounterAt, input.end(), 0U);
    input[ReseedValueAt] = std::bit_cast<std::uint32_t>(value);
    input[PurposeAt] = ForReseed;
    const ChaChaWords block = ChaChaBlock<SourceRounds>(input);

    SetKey(std::span(block).first<ChaChaKeyWords>());
    prepared_.fill(0);
    next_ = BatchValues - ReseedValues;
    const auto first = UniformValues(block[8], block[9], block[10]);
    const auto second = UniformValues(block[11], block[12], block[13]);
    const auto to =
        std::copy(first.begin(), first.end(), prepared_.begin() + static_cast<std::ptrdiff_t>(next_));
    const auto last = std::copy(second.begin(), second.end(), to);
    last[0] = UniformValue(block[14]);
    last[1] = UniformValue(block[15]);
}

void RandomSource::RequireKey() {
    if (hasKey_)
        return;
    std::array<std::uint32_t, ChaChaKeyWords> key{};
    entropy_.Fill(std::as_writable_bytes(std::span(key)));
    SetKey(key);
    hasKey_ = true;
}

void RandomSource::SetKey(std::span<const std::uint32_t, ChaChaKeyWords> key) {
    std::copy(ChaChaConstants.begin(), ChaChaConstants.end(), input_.begin());
    std::copy(key.begin(), key.end(), input_.begin() + ChaChaKeyAt);
    std::fill(input_.begin() + ChaChaCounterAt, input_.end(), 0U);
    input_[PurposeAt] = ForValues;
}

void RandomSource::MakeBatch(std::span<float, BatchValues> values) {
    RequireKey();
    kernels_.UniformBatch(input_, values);
    input_[ChaChaCounterAt] += BatchBlocks;
    if (input_[ChaChaCounterAt] == 0)
        ++input_[ChaChaCounterAt + 1];
}

} // namespace orvane
