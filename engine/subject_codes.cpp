#include "engine/subject_codes.h"

#include "engine/numbers.h"
#include "engine/random_draws.h"
#include "platform/failure.h"

#include <cstddef>
#include <unordered_set>

namespace orvane {
namespace {

/// A code that is already used is drawn again. Even when a single free code is left, it is drawn more often
/// than once in 200,000 draws. So many draws without a free code mean that the source is not random.
constexpr int MostDrawsForOneCode = 5'000'000;

constexpr std::string_view Digits = AlphaNumChar.substr(0, 10);
constexpr std::string_view Letters = AlphaNumChar.substr(10);

/// The characters of an alphabet, the one for zero first.
std::string_view CharactersOf(std::int32_t alphaNum) {
    switch (alphaNum) {
    case Alpha:
        return Letters;
    case Numeric:
        return Digits;
    default:
        return AlphaNumChar;
    }
}

std::string PadLeft(std::string text, std::int16_t length, char with) {
    while (static_cast<std::ptrdiff_t>(text.size()) < length)
        text.insert(text.begin(), with);
    return text;
}

/// `n` in the number system of these digits, filled up with the digit for zero.
std::string Number(std::int16_t n, std::string_view digits, std::int16_t length) {
    const auto base = static_cast<std::int16_t>(digits.size());
    std::string code;
    for (; n != 0; n = static_cast<std::int16_t>(n / base))
        code.insert(code.begin(), digits[static_cast<std::size_t>(n % base)]);
    return PadLeft(code, length, digits.front());
}

std::string SequentialCode(std::int16_t position, const ListSettings& settings) {
    switch (settings.CodeAlphaNum) {
    case Alpha:
        return ConvertToABC(position, settings.CodeLength);
    case Numeric:
        return ZeroPad(std::to_string(position), settings.CodeLength);
    default:
        return ConvertToABC123(position, settings.CodeLength);
    }
}

/// Draws codes until one is not in `taken`, and adds it there.
std::string NewRandomCode(const ListSettings& settings, std::unordered_set<std::string>& taken,
                          UniformSource& random, TimeOfDay& clock) {
    for (int draw = 0; draw < MostDrawsForOneCode; ++draw) {
        std::string code = MakeRandomCode(settings.CodeAlphaNum, settings.CodeLength, random, clock);
        if (taken.insert(code).second)
            return code;
    }
    throw Failure("The random source gives the same subject codes again and again.",
                  failure_number::Unexpected, "CreateCodeArr");
}

} // namespace

void CreateCodeArr(const ListSettings& settings, ListResults& results, UniformSource& random,
                   TimeOfDay& clock) {
    const std::int16_t listSize = SumArr(results.BlockSizes);
    if (const auto refusal = CodesRefusal(settings, listSize))
        throw Failure(*refusal, failure_number::TooLarge, "CreateCodeArr");

    std::vector<std::string> codes;
    codes.reserve(static_cast<std::size_t>(listSize));
    std::unordered_set<std::string> taken;
    taken.reserve(static_cast<std::size_t>(listSize));
    for (std::int16_t i = 0; i < listSize; ++i) {
        if (settings.CodeSeqRandom == Random)
            codes.push_back(NewRandomCode(settings, taken, random, clock));
        else
            codes.push_back(SequentialCode(static_cast<std::int16_t>(i + 1), settings));
    }
    results.CodeArr = std::move(codes);
}

std::optional<std::string> CodesRefusal(const ListSettings& settings, std::int32_t subjects) {
    const auto base = static_cast<std::int32_t>(CharactersOf(settings.CodeAlphaNum).size());
    std::int32_t codes = settings.CodeLength < 1 ? 0 : 1; // a code is never empty
    for (std::int16_t i = 0; i < settings.CodeLength && codes <= LargestList; ++i)
        codes *= base;
    if (settings.CodeSeqRandom != Random)
        --codes;
    if (subjects <= codes)
        return std::nullopt;
    return "code length " + std::to_string(settings.CodeLength) + " is too short for a list of " +
           std::to_string(subjects) + " subjects, please choose longer codes or a smaller sample size";
}

std::string ZeroPad(const std::string& S, std::int16_t L) {
    return PadLeft(S, L, '0');
}

std::string ConvertToABC(std::int16_t n, std::int16_t length) {
    return Number(n, Letters, length);
}

std::string ConvertToABC123(std::int16_t n, std::int16_t length) {
    return Number(n, AlphaNumChar, length);
}

std::string MakeRandomCode(std::int32_t AlphaNum, std::int16_t Length, UniformSource& random,
                           TimeOfDay& clock) {
    random.UniformReseed(clock.SecondsSinceMidnight());
    const std::string_view characters = CharactersOf(AlphaNum);
    const auto last = static_cast<std::int16_t>(characters.size() - 1);
    std::string code;
    for (std::int16_t i = 0; i < Length; ++i)
        code += characters[static_cast<std::size_t>(DrawRandomInt(random, 0, last))];
    return code;
}

} // namespace orvane
