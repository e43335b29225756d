// Conversion of plain text to HTML.
#pragma once

#include <string>
#include <string_view>

namespace orvane::validation {

/// `text` with the special characters of HTML and SVG written as references. Control characters other than
/// line feed and tab, which HTML does not allow, and bytes that are not UTF-8 are replaced by "?".
std::string Escaped(std::string_view text);

} // namespace orvane::validation
