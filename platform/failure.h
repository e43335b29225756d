// The exception type of the program: what could not be done, an error number, and where it was detected.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>

namespace orvane {

/// Numbers of failures that the program itself detects. Failures of files have the number of the operating
/// system. The numbers are only shown to the user; only `Cancelled` is compared.
namespace failure_number {
inline constexpr std::int32_t Overflow = 20001;
inline constexpr std::int32_t InvalidArgument = 20003;
inline constexpr std::int32_t OutOfRange = 20004;
inline constexpr std::int32_t EndOfFile = 20005;
inline constexpr std::int32_t NotARegularFile = 20006;
inline constexpr std::int32_t UnmappableCharacter = 20007;
inline constexpr std::int32_t CannotPassRunsTest = 20008;
inline constexpr std::int32_t NoEntropy = 20009;
inline constexpr std::int32_t OutOfMemory = 20010;
inline constexpr std::int32_t NoClipboard = 20011;
inline constexpr std::int32_t TooLarge = 20012;
inline constexpr std::int32_t CannotStart = 20013;
inline constexpr std::int32_t Unexpected = 20099;
/// The user cancelled a file prompt. Not used for anything else.
inline constexpr std::int32_t Cancelled = 32755;
} // namespace failure_number

/// Thrown where something cannot be done. Caught where it is reported to the user, and where a comment says
/// that a failure is ignored or counts as a result.
struct Failure : std::exception {
    Failure(std::string description, std::int32_t number, std::string source)
        : Description(std::move(description)), Number(number), Source(std::move(source)) {}

    [[nodiscard]] const char* what() const noexcept override { return Description.c_str(); }

    std::string Description; ///< text for the user
    std::int32_t Number;     ///< see failure_number
    std::string Source;      ///< the routine or the part of the platform that detected it
};

} // namespace orvane
