#include "validation/draws/known_key.h"

#include "validation/lists/session.h"

#include <QString>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <numeric>
#include <set>
#include <string_view>

namespace orvane::validation {
namespace {

using Words = SecondProgram::Words;

void Mix(Words& words, std::size_t a, std::size_t b, std::size_t c, std::size_t d) {
    const auto step = [&words](std::size_t to, std::size_t from, std::size_t turned, int bits) {
        words.at(to) += words.at(from);
        words.at(turned) = std::rotl(words.at(turned) ^ words.at(to), bits);
    };
    step(a, b, d, 16);
    step(c, d, b, 12);
    step(a, b, d, 8);
    step(c, d, b, 7);
}

/// The block function of ChaCha.
Words Cipher(const Words& input, int rounds = 8) {
    Words words = input;
    for (int round = 0; round < rounds; ++round)
        for (std::size_t column = 0; column < 4; ++column) {
            // Odd rounds go along the diagonals.
            const std::size_t right = round % 2 == 0 ? 0 : 1;
            Mix(words, column, 4 + (column + right) % 4, 8 + (column + 2 * right) % 4,
                12 + (column + 3 * right) % 4);
        }
    for (std::size_t word = 0; word < words.size(); ++word)
        words.at(word) += input.at(word);
    return words;
}

double Upper24Bits(std::uint32_t word) {
    return static_cast<double>(word >> 8U) / (1 << 24);
}

/// The values of the words from `first` on. Three words give four values: their upper 24 bits, then the 24
/// bits left over of the three together. What remains at the end gives one value a word.
std::deque<double> ValuesOf(const Words& words, std::size_t first) {
    std::deque<double> values;
    std::uint32_t leftOver = 0;
    for (std::size_t word = first; word < words.size(); ++word) {
        values.push_back(Upper24Bits(words.at(word)));
        leftOver = leftOver << 8U | (words.at(word) & 0xFFU);
        if ((word - first) % 3 == 2)
            values.push_back(Upper24Bits(leftOver << 8U));
    }
    return values;
}

/// At most four decimals, without zeros at the end.
std::string FourDecimals(float value) {
    const double rounded = std::round(static_cast<double>(value) * 10000) / 10000;
    return QString::number(rounded, 'g', 4).toStdString();
}

std::string MessageOf(const std::vector<float>& values) {
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    if (*least == *most)
        return "P value of Runs test = " + FourDecimals(*least);
    return "Runs test:\nMinimum P value = " + FourDecimals(*least) +
           "\nMaximum P value = " + FourDecimals(*most);
}

} // namespace

float RunsTest(const std::vector<int>& numbers) {
    const auto all = static_cast<double>(numbers.size());
    const auto mean = static_cast<float>(std::accumulate(numbers.begin(), numbers.end(), 0) / all);
    double below = 0;
    double runs = 1;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const bool isBelow = static_cast<float>(numbers[i]) < mean;
        below += isBelow ? 1 : 0;
        runs += i > 0 && isBelow != (static_cast<float>(numbers[i - 1]) < mean) ? 1 : 0;
    }
    const double twice = 2 * below * (all - below);
    const auto expected = static_cast<float>(twice / all + 1);
    const double variance = twice * (twice - all) / (all * all * (all - 1));
    return static_cast<float>((runs - static_cast<double>(expected)) / std::sqrt(variance));
}

float HeightOfNormalCurve(float z) {
    return static_cast<float>(0.398942280401433 * std::exp(-0.5 * static_cast<double>(z) * z));
}

SecondProgram::SecondProgram(const QByteArray& key) : input_{0x61707865, 0x3320646E, 0x79622D32, 0x6B206574} {
    std::memcpy(&input_[4], key.constData(), 32);
}

void SecondProgram::Reseed() {
    input_[12] = input_[13] = 0; // the counter of the blocks
    Words input = input_;
    input[14] = std::bit_cast<std::uint32_t>(TimeOfLists());
    input[15] = 1;
    const Words block = Cipher(input);
    std::copy_n(block.begin(), 8, input_.begin() + 4);
    values_ = ValuesOf(block, 8);
}

double SecondProgram::Value() {
    constexpr std::size_t blocksAtOnce = 32;
    if (values_.empty()) {
        // The first value of every block, then the second value of every block, and so on.
        for (std::size_t block = 0; block < blocksAtOnce; ++block) {
            const std::deque<double> values = ValuesOf(Cipher(input_), 0);
            values_.resize(values.size() * blocksAtOnce);
            for (std::size_t i = 0; i < values.size(); ++i)
                values_[i * blocksAtOnce + block] = values[i];
            input_[13] += ++input_[12] == 0 ? 1 : 0;
        }
    }
    const double value = values_.front();
    values_.pop_front();
    return value;
}

std::size_t SecondProgram::Draw(std::size_t highest) {
    // The product is exact. It is rounded to the nearest number, and halves to the even one.
    return static_cast<std::size_t>(std::nearbyint(static_cast<double>(highest) * Value()));
}

std::vector<int> SecondProgram::BlockSizes(const ListSetup& setup) {
    const bool isDrawn = setup.Blocks == BlockOption::Listed || setup.Blocks == BlockOption::RandomSizes;
    const std::vector<int> allowed = AllowedSizes(setup);
    std::vector<int> sizes;
    if (isDrawn)
        Reseed();
    while (std::accumulate(sizes.begin(), sizes.end(), 0) < Enough(setup))
        sizes.push_back(allowed.at(isDrawn ? Draw(allowed.size() - 1) : 0));
    return sizes;
}

std::vector<std::string> SecondProgram::Codes(const ListSetup& setup, std::size_t count,
                                              std::size_t& drawnAgain) {
    const std::string characters = CharactersOf(setup.Characters);
    std::vector<std::string> codes;
    std::set<std::string> taken;
    while (codes.size() < count) {
        std::string code(static_cast<std::size_t>(setup.CodeLength), characters.front());
        if (setup.RandomCodes) {
            Reseed();
            for (char& character : code)
                character = characters.at(Draw(characters.size() - 1));
        } else {
            std::size_t number = codes.size() + 1;
            for (auto digit = code.rbegin(); number > 0; ++digit, number /= characters.size())
                *digit = characters.at(number % characters.size());
        }
        if (taken.insert(code).second)
            codes.push_back(code);
        else
            ++drawnAgain;
    }
    return codes;
}

void SecondProgram::Shuffle(std::vector<int>& groups) {
    Reseed();
    for (std::size_t exchange = 0; exchange < 10 * groups.size() * groups.size(); ++exchange) {
        const std::size_t first = Draw(groups.size() - 1);
        const std::size_t second = Draw(groups.size() - 1);
        std::swap(groups[first], groups[second]);
    }
}

Prediction SecondProgram::Make(const ListSetup& setup) {
    Prediction list;
    const std::vector<int> sizes = BlockSizes(setup);
    const auto subjects = static_cast<std::size_t>(std::accumulate(sizes.begin(), sizes.end(), 0));
    const std::vector<std::string> codes = Codes(setup, subjects, list.CodesDrawnAgain);
    if (setup.Output == Form::Window)
        for (int character = 0; character < 8; ++character)
            Value(); // the name of the temporary file
    auto code = codes.begin();
    Blocks blocks;
    std::vector<float> pValues;
    for (const int size : sizes) {
        std::vector<int> groups(static_cast<std::size_t>(size));
        for (int position = 0; int& group : groups)
            group = position++ % setup.GroupCount() + 1;
        do {
            Shuffle(groups);
            ++list.Shuffles;
        } while (setup.RunsTest() && HeightOfNormalCurve(RunsTest(groups)) <= std::stof(setup.Level));
        pValues.push_back(HeightOfNormalCurve(RunsTest(groups)));
        auto& block = blocks.emplace_back();
        for (const int group : groups)
            block.push_back({*code++, group});
    }
    list.Bytes = WriteList(blocks, setup);
    if (setup.RunsTest())
        list.RunsMessage = MessageOf(pValues);
    return list;
}

std::string DifferenceFromPrediction(const MadeList& list) {
    const std::string& right = list.Predicted.Bytes;
    const auto [expected, observed] = std::ranges::mismatch(right, list.Bytes);
    if (expected != right.end() || observed != list.Bytes.end())
        return "byte " + std::to_string(expected - right.begin() + 1) + " of " +
               std::to_string(list.Bytes.size()) + " differs";
    return "";
}

namespace {

/// z of the Runs test as published.
void CompareRuns(Check& check, const char* source, std::string_view letters, const char* published) {
    const auto z = static_cast<double>(RunsTest({letters.begin(), letters.end()}));
    check.Compare(source, published, QString::number(z, 'f', 5).toStdString());
}

} // namespace

void CheckSecondProgram(Record& record) {
    const auto judge = [](Check& check) {
        const Words block = Cipher({0x61707865, 0x3320646E, 0x79622D32, 0x6B206574, 0x03020100, 0x07060504,
                                    0x0B0A0908, 0x0F0E0D0C, 0x13121110, 0x17161514, 0x1B1A1918, 0x1F1E1D1C,
                                    0x00000001, 0x09000000, 0x4A000000},
                                   20);
        const auto bytes = std::bit_cast<std::array<char, sizeof(Words)>>(block);
        check.Compare("RFC 8439, section 2.3.2: ChaCha with 20 rounds",
                      "10f1e7e4d13b5915500fdd1fa32071c4c7d1f4c733c068030422aa9ac3d46c4e"
                      "d2826446079faa0914c2d705d98b02a2b5129cd1de164eb9cbd083e8a2503c4e",
                      QByteArray(bytes.data(), bytes.size()).toHex().toStdString());
        CompareRuns(check, "Wald and Wolfowitz 1940, 6 and 10 with 11 runs: z", "BBBAABABABBBABAB",
                    "1.38675");
        CompareRuns(check, "Wald and Wolfowitz 1940, 11 and 8 with 2 runs: z", "AAAAABBBBBBCCCCCCCC",
                    "-4.00710");
        check.Compare("Height of the normal curve at 1", "0.242", FourDecimals(HeightOfNormalCurve(1)));
    };
    record.Run("CON-1.1", "The second program agrees with published figures", Chapter::KnownKey, judge);
}

} // namespace orvane::validation
