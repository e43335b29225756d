// The 8-bit code page of the desktop, from the tables of the C library.
#pragma once

#include "platform/code_page.h"

#include <optional>
#include <string_view>

namespace orvane {

/// The number of the Windows code page of a language such as "de", "sr_RS@latin" or "pl_PL.UTF-8": 1250 to
/// 1258 or 874. None for a language that is not known or has no single-byte page.
std::optional<int> CodePageOfLanguage(std::string_view language);

/// The Windows code page of that number; none if the C library does not have it. A byte that the page leaves
/// undefined stands for the control character of the same number, or, where that number is no control
/// character, for a character of private use, so that no readable character turns into a byte that means
/// nothing.
std::optional<CodePage> CodePageOfNumber(int number);

/// Windows-1252, which needs no table of the C library.
CodePage WesternCodePage();

/// The page of the first of the desktop's languages that is known; Windows-1252 where none is or where its
/// page cannot be had.
CodePage DesktopCodePage();

} // namespace orvane
