// The subject codes of a whole list.
#pragma once

#include "engine/list_settings.h"
#include "platform/time_of_day.h"
#include "platform/uniform_source.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvane {

/// The characters of mixed codes: "0" to "9", then "A" to "Z".
inline constexpr std::string_view AlphaNumChar = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";

/// Fills results.CodeArr with one code of settings.CodeLength characters for each position of
/// results.BlockSizes, no two alike. Random codes reseed the source once an attempt at a code.
/// Throws a TooLarge failure, CodeArr untouched, for a list that CodesRefusal refuses, and an Overflow
/// failure for a list above LargestList.
void CreateCodeArr(const ListSettings& settings, ListResults& results, UniformSource& random,
                   TimeOfDay& clock);

/// Why a list of so many subjects cannot have codes of settings.CodeLength characters, as a message for the
/// user; nothing when it can. There are base to the power of the length random codes, and one less that are
/// sequential, because these start at 1.
std::optional<std::string> CodesRefusal(const ListSettings& settings, std::int32_t subjects);

/// `S` with "0" added on the left up to `L` characters; a longer S stays as it is.
std::string ZeroPad(const std::string& S, std::int16_t L);

/// `n` in base 26 with the digits "A" to "Z", filled up on the left with "A" to `length` characters.
/// Requires: n at least 0.
std::string ConvertToABC(std::int16_t n, std::int16_t length);

/// The same in base 36 with the digits of AlphaNumChar, filled up with "0".
std::string ConvertToABC123(std::int16_t n, std::int16_t length);

/// Reseeds the source with the time and draws `Length` characters of the alphabet `AlphaNum`.
std::string MakeRandomCode(std::int32_t AlphaNum, std::int16_t Length, UniformSource& random,
                           TimeOfDay& clock);

} // namespace orvane
