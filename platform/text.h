// Characters of UTF-8 text.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace orvane {

/// The number of characters (not bytes) of `text`.
inline std::size_t CharacterCount(std::string_view text) {
    const auto startsCharacter = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), startsCharacter));
}

inline constexpr std::string_view LineEnd = "\r\n";

} // namespace orvane
