#include "engine/subject_codes.h"

#include "engine/numbers.h"
#include "engine/random_draws.h"
#include "platform/failure.h"

#include <algorithm>
#include <unordered_set>

namespace orvane {
namespace {

constexpr std::int16_t LettersInAlphabet = 26;
constexpr std::int16_t MixedCharacters = 36;

/// A code that is already used is drawn again. Even when a single free code is left, it is drawn more often
/// than once in 200,000 draws. So many draws without a free code mean that the source is not random.
constexpr int MostDrawsForOneCode = 5'000'000;

const AlphaNumTable& AlphaNumChar() {
    static const AlphaNumTable table = BuildAlphaNumChar();
    return table;
}

std::int16_t BaseOf(std::int32_t alphaNum) {
    switch (alphaNum) {
    case Alpha:
        return LettersInAlphabet;
    case Numeric:
        return 10;
    default:
        return MixedCharacters;
    }
}

std::string PadLeft(const std::string& text, std::int16_t length, char with) {
    const auto width = static_cast<std::size_t>(std::max<std::int16_t>(length, 0));
    if (text.size() > width)
        throw Failure("A subject code needs more characters than the code length " + std::to_string(length) +
                          " gives. Please choose longer codes.",
                      failure_number::InvalidArgument, "CreateCodeArr");
    return std::string(width - text.size(), with) + text;
}

std::string SequentialCode(std::int16_t position, const ListSettings& settings) {
    switch (settings.CodeAlphaNum) {
    case Alpha:
        return ZeroPad(ConvertToABC(position, settings.CodeLength), settings.CodeLength);
    case Mixed:
        return ZeroPad(ConvertToABC123(position, settings.CodeLength), settings.CodeLength);
    default:
        return ZeroPad(std::to_string(position), settings.CodeLength);
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

AlphaNumTable BuildAlphaNumChar() {
    constexpr int digits = 10;
    constexpr int beforeLetterA = 'A' - digits;
    AlphaNumTable table{};
    for (int i = 0; i < MixedCharacters; ++i)
        table.at(static_cast<std::size_t>(i)) = static_cast<char>(i < digits ? '0' + i : beforeLetterA + i);
    return table;
}

void CreateCodeArr(const ListSettings& settings, ListResults& results, UniformSource& random,
                   TimeOfDay& clock) {
    const std::int16_t listSize = SumArr(results.BlockSizes);
    if (listSize > CodesAvailable(settings.CodeAlphaNum, settings.CodeSeqRandom, settings.CodeLength))
        throw Failure("Code length " + std::to_string(settings.CodeLength) + " is too short for a list of " +
                          std::to_string(listSize) + " subjects",
                      failure_number::TooLarge, "CreateCodeArr");

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

std::int32_t CodesAvailable(std::int32_t alphaNum, std::int32_t seqRandom, std::int16_t length) {
    if (length < 1)
        return 0; // a code is never empty
    const std::int32_t base = BaseOf(alphaNum);
    std::int32_t codes = 1;
    for (std::int16_t i = 0; i < length && codes <= LargestList; ++i)
        codes *= base;
    if (seqRandom != Random)
        --codes;
    return std::min(codes, LargestList + 1);
}

std::string ZeroPad(const std::string& S, std::int16_t L) {
    return PadLeft(S, L, '0');
}

std::string ConvertToABC(std::int16_t n, std::int16_t length) {
    std::string code;
    for (; n != 0; n = static_cast<std::int16_t>(n / LettersInAlphabet))
        code.insert(code.begin(), static_cast<char>('A' + n % LettersInAlphabet));
    return PadLeft(code, length, 'A');
}

std::string ConvertToABC123(std::int16_t n, std::int16_t length) {
    std::string code;
    for (; n != 0; n = static_cast<std::int16_t>(n / MixedCharacters))
        code.insert(code.begin(), AlphaNumChar().at(static_cast<std::size_t>(n % MixedCharacters)));
    return PadLeft(code, length, '0');
}

std::string MakeRandomCode(std::int32_t AlphaNum, std::int16_t Length, UniformSource& random,
                           TimeOfDay& clock) {
    random.UniformReseed(clock.SecondsSinceMidnight());
    std::string code;
    for (std::int16_t i = 0; i < Length; ++i) {
        switch (AlphaNum) {
        case Alpha:
            code += static_cast<char>(DrawRandomInt(random, 'A', 'Z'));
            break;
        case Numeric:
            code += static_cast<char>(DrawRandomInt(random, '0', '9'));
            break;
        default:
            code +=
                AlphaNumChar().at(static_cast<std::size_t>(DrawRandomInt(random, 0, MixedCharacters - 1)));
        }
    }
    return code;
}

} // namespace orvane
