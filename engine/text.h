// Characters of UTF-8 text.
#pragma once

#include <cstddef>
#include <string_view>

namespace orvane {

/// The number of characters (not bytes) of `text`.
std::size_t CharacterCount(std::string_view text);

inline constexpr std::string_view LineEnd = "\r\n";

} // namespace orvane
