// Writes the bits of the random source to standard output, three bytes a value, for test batteries such as
// dieharder. The first argument is the number of values; without it, writes until the reader closes the
// pipe.
#include "engine/random_source.h"
#include "platform/linux/linux_entropy.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <vector>

int main(int argc, char* argv[]) {
    using namespace orvane;
    auto left =
        argc > 1 ? std::strtoull(argv[1], nullptr, 10) : std::numeric_limits<unsigned long long>::max();
    LinuxEntropy entropy;
    RandomSource source(entropy);
    std::array<float, 16 * BatchValues> values{};
    std::vector<unsigned char> bytes;
    while (left > 0) {
        const auto next =
            std::span(values).first(left < values.size() ? static_cast<std::size_t>(left) : values.size());
        source.UniformFill(next);
        bytes.clear();
        for (const float value : next) {
            const auto bits = static_cast<std::uint32_t>(value * 0x1p24F);
            for (const unsigned shift : {0U, 8U, 16U})
                bytes.push_back(static_cast<unsigned char>(bits >> shift & 255U));
        }
        if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) != bytes.size())
            return 0;
        left -= next.size();
    }
    return 0;
}
