// The one kind of failure of the program: what could not be done, a number, and where it arose.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>

namespace orvane {

/// Numbers of the failures that the program itself finds. Failures of files carry the operating system's
/// own number instead. Each number is only shown, but for `Cancelled`.
namespace failure_number {
inline constexpr std::int32_t Overflow = 20001;
inline constexpr std::int32_t Arithmetic = 20002;
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
/// The user cancelled a file prompt: this and nothing else.
inline constexpr std::int32_t Cancelled = 32755;
} // namespace failure_number

/// Thrown where something cannot be done, caught at the failure paths and there alone.
struct Failure : std::exception {
    Failure(std::string description, std::int32_t number, std::string source)
        : Description(std::move(description)), Number(number), Source(std::move(source)) {}

    [[nodiscard]] const char* what() const noexcept override { return Description.c_str(); }

    std::string Description; ///< in words, for the user
    std::int32_t Number;     ///< see failure_number
    std::string Source;      ///< the routine or the part of the platform in which it arose
};

} // namespace orvane
