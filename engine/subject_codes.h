// The subject codes of a whole list.
#pragma once

#include "engine/list_settings.h"
#include "platform/time_of_day.h"
#include "platform/uniform_source.h"

#include <cstdint>
#include <string>

namespace orvane {

/// "0" to "9", then "A" to "Z".
AlphaNumTable BuildAlphaNumChar();

/// Fills results.CodeArr with one code of settings.CodeLength characters for each position of
/// results.BlockSizes, no two alike. Random codes reseed the source once an attempt at a code.
/// Throws a TooLarge failure, CodeArr untouched, when the list needs more codes than the length gives, and an
/// Overflow failure for a list above LargestList.
void CreateCodeArr(const ListSettings& settings, ListResults& results, UniformSource& random,
                   TimeOfDay& clock);

/// How many different codes of `length` characters the settings allow: base to the power of length, less 1
/// for sequential codes, which start at 1; LargestList + 1 stands for any number above LargestList.
std::int32_t CodesAvailable(std::int32_t alphaNum, std::int32_t seqRandom, std::int16_t length);

/// `S` with "0" added on the left up to `L` characters; a longer S is an InvalidArgument failure.
std::string ZeroPad(const std::string& S, std::int16_t L);

/// `n` in base 26 with the digits "A" to "Z", filled up on the left with "A" to `length` characters. A number
/// that needs more digits is an InvalidArgument failure.
/// Requires: n at least 0.
std::string ConvertToABC(std::int16_t n, std::int16_t length);

/// The same in base 36 with the digits of AlphaNumChar, filled up with "0".
std::string ConvertToABC123(std::int16_t n, std::int16_t length);

/// Reseeds the source with the time and draws `Length` characters of the alphabet `AlphaNum`.
std::string MakeRandomCode(std::int32_t AlphaNum, std::int16_t Length, UniformSource& random,
                           TimeOfDay& clock);

} // namespace orvane
