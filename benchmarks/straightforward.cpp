#include "straightforward.h"

#include "engine/subject_codes.h"
#include "engine/vector_kernels.h"
#include "lists/cell_walk.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <fstream>
#include <utility>

namespace orvane::straightforward {

Source::Source(Entropy& entropy) {
    std::copy(ChaChaConstants.begin(), ChaChaConstants.end(), input_.begin());
    entropy.Fill(std::as_writable_bytes(std::span(input_).subspan<ChaChaKeyAt, ChaChaKeyWords>()));
    PrepareBatch();
}

float Source::UniformNext() {
    if (next_ == prepared_.size())
        PrepareBatch();
    return prepared_[next_++];
}

void Source::UniformFill(std::span<float> values) {
    for (float& value : values)
        value = UniformNext();
}

void Source::UniformReseed(float value) {
    input_[ChaChaKeyAt] ^= std::bit_cast<std::uint32_t>(value);
    PrepareBatch();
}

void Source::PrepareBatch() {
    for (std::size_t at = 0; at < prepared_.size(); at += input_.size()) {
        const ChaChaWords block = ChaChaBlock<SourceRounds>(input_);
        ++input_[ChaChaCounterAt];
        for (std::size_t word = 0; word < block.size(); ++word)
            prepared_[at + word] = UniformValue(block[word]);
    }
    next_ = 0;
}

std::int16_t Draw(UniformSource& random, std::int16_t Lo, std::int16_t Hi) {
    const double width = Hi - Lo;
    return static_cast<std::int16_t>(Lo + std::lrint(width * random.UniformNext()));
}

void Shuffle(UniformSource& random, std::span<std::string> names, std::int64_t exchanges) {
    const auto N = static_cast<std::int16_t>(names.size());
    for (std::int64_t i = 0; i < exchanges; ++i) {
        const auto A = static_cast<std::size_t>(Draw(random, 1, N));
        const auto B = static_cast<std::size_t>(Draw(random, 1, N));
        std::swap(names[A - 1], names[B - 1]);
    }
}

std::vector<std::string> RandomCodes(std::size_t count, std::int16_t length, UniformSource& random,
                                     TimeOfDay& clock) {
    const std::string_view characters = AlphaNumChar;
    std::vector<std::string> codes;
    while (codes.size() < count) {
        random.UniformReseed(clock.SecondsSinceMidnight());
        std::string code;
        for (std::int16_t i = 0; i < length; ++i)
            code += characters.at(static_cast<std::size_t>(Draw(random, 0, 35)));
        if (std::find(codes.begin(), codes.end(), code) == codes.end())
            codes.push_back(code);
    }
    return codes;
}

void WriteList(const ListSettings& settings, const std::vector<std::int16_t>& blockSizes,
               const std::vector<std::string>& groupNames, UniformSource& random, TimeOfDay& clock,
               const std::string& path) {
    constexpr std::size_t columnDistance = 20;
    std::size_t total = 0;
    for (const std::int16_t size : blockSizes)
        total += static_cast<std::size_t>(size);
    const std::vector<std::string> codes = RandomCodes(total, settings.CodeLength, random, clock);
    const std::string rule(static_cast<std::size_t>(GetMaxEq(settings.Columns)), '=');

    std::ofstream file(path, std::ios::binary);
    std::size_t subject = 0;
    for (const std::int16_t size : blockSizes) {
        std::vector<std::string> names;
        for (std::int16_t i = 0; i < size; ++i)
            names.push_back(groupNames[static_cast<std::size_t>(i) % groupNames.size()]);
        random.UniformReseed(clock.SecondsSinceMidnight());
        Shuffle(random, names, std::int64_t{10} * size * size);
        std::string line;
        for (std::size_t column = 0; column < static_cast<std::size_t>(settings.Columns); ++column) {
            line.resize(column * columnDistance, ' ');
            line += column < names.size() ? codes[subject++] + ": " + names[column] : " ";
        }
        file << line << "\r\n" << rule << "\r\n";
    }
}

} // namespace orvane::straightforward
