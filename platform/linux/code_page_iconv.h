// The 8-bit code page of the desktop's language, built with iconv.
#pragma once

#include "platform/code_page.h"

#include <optional>
#include <string_view>

namespace orvane {

/// The number of the Windows code page of a language such as "de", "sr_RS@latin" or "pl_PL.UTF-8": 1250 to
/// 1258 or 874. None if the language is unknown or has no single-byte page.
std::optional<int> CodePageOfLanguage(std::string_view language);

/// The Windows code page with this number; none if iconv does not know it. A byte that the page leaves
/// undefined stands for the control character with its number or, where that is not a control character, for
/// a character of the private use area. So no readable character is ever written as an undefined byte.
std::optional<CodePage> CodePageOfNumber(int number);

/// Windows-1252. Does not need iconv.
CodePage WesternCodePage();

/// The page of the first language in the desktop's list that is known; Windows-1252 if none is known or if
/// iconv does not have its page.
CodePage DesktopCodePage();

} // namespace orvane
