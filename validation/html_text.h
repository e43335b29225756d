// Text as it stands in a page.
#pragma once

#include <string>
#include <string_view>

namespace orvane::validation {

/// `text` with the characters that mean something in HTML and SVG written as references. Control characters
/// other than line feed and tab, which no page may hold, and bytes that are no UTF-8 are shown as "?".
std::string Escaped(std::string_view text);

} // namespace orvane::validation
