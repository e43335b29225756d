#include "engine/text.h"

#include <algorithm>

namespace orvane {

std::size_t CharacterCount(std::string_view text) {
    constexpr unsigned char markMask = 0xC0;
    constexpr unsigned char continuation = 0x80;
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & markMask) != continuation;
    }));
}

} // namespace orvane
