// The random source: the published cipher, refusal without entropy, and reseeds.
#include "engine/chacha.h"
#include "engine/random_source.h"
#include "output/html_report.h"
#include "output/text_report.h"
#include "platform/failure.h"
#include "platform/linux/linux_entropy.h"
#include "validation/figures.h"
#include "validation/known_answers_parts.h"
#include "validation/memory_desktop.h"

#include <algorithm>
#include <set>
#include <span>

namespace orvane::validation {
namespace {

/// The words in hexadecimal, eight digits each.
template <class Words>
std::string Hex(const Words& words) {
    std::string text;
    for (const std::uint32_t word : words) {
        text += text.empty() ? "" : " ";
        for (int shift = 28; shift >= 0; shift -= 4)
            text += "0123456789abcdef"[(word >> static_cast<unsigned>(shift)) & 15U];
    }
    return text;
}

/// The words of a block's input: constants, the key with the bytes 0, 1, 2, ... or with zeros, then counter
/// and nonce.
ChaChaWords Input(bool countingKey, const std::array<std::uint32_t, 4>& last) {
    ChaChaWords words{};
    std::copy(ChaChaConstants.begin(), ChaChaConstants.end(), words.begin());
    for (std::uint32_t i = 0; countingKey && i < ChaChaKeyWords; ++i)
        words.at(ChaChaKeyAt + i) = 0x03020100U + 0x04040404U * i;
    std::copy(last.begin(), last.end(), words.end() - 4);
    return words;
}

void CompareCipher(Evidence& evidence) {
    std::array<std::uint32_t, 4> quarter{0x11111111, 0x01020304, 0x9b8d6f43, 0x01234567};
    QuarterRound(quarter[0], quarter[1], quarter[2], quarter[3]);
    evidence.Compare("Quarter round", "ea2a92f4 cb1cf8ce 4581472e 5881c4bb", Hex(quarter), "RFC 8439, 2.1.1");
    evidence.Compare("Block of 20 rounds, key of the bytes 0 to 31",
                     "e4e7f110 15593bd1 1fdd0f50 c47120a3 c7f4d1c7 0368c033 9aaa2204 4e6cd4c3 "
                     "466482d2 09aa9f07 05d7c214 a2028bd9 d19c12b5 b94e16de e883d0cb 4e3c50a2",
                     Hex(ChaChaBlock<20>(Input(true, {1, 0x09000000, 0x4a000000, 0}))), "RFC 8439, 2.3.2");
    evidence.Compare("Block of 20 rounds, key of zeros, counter 0",
                     "ade0b876 903df1a0 e56a5d40 28bd8653 b819d2bd 1aed8da0 ccef36a8 c70d778b "
                     "7c5941da 8d485751 3fe02477 374ad8b8 f4b8436a 1ca11815 69b687c3 8665eeb2",
                     Hex(ChaChaBlock<20>(Input(false, {0, 0, 0, 0}))), "RFC 8439, A.1, vector 1");
    evidence.Compare("Block of 20 rounds, key of zeros, counter 1",
                     "bee7079f 7a385155 7c97ba98 0d082d73 a0290fcb 6965e348 3e53c612 ed7aee32 "
                     "7621b729 434ee69c b03371d5 d539d874 281fed31 45fb0a51 1f0ae1ac 6f4d794b",
                     Hex(ChaChaBlock<20>(Input(false, {1, 0, 0, 0}))), "RFC 8439, A.1, vector 2");
    evidence.Compare("Block of 8 rounds, key of zeros, counter 0",
                     "2fef003e d6405f89 e8b85b7f a1a5091f c30e842c 3b7f9ace 88e11b18 1e1a71ef "
                     "72e14c98 416f21b9 6753449f 19566d45 a3424a31 01b086da b8fd7b38 42fe0c0e",
                     Hex(ChaChaBlock<8>(Input(false, {0, 0, 0, 0}))),
                     "draft-strombergson-chacha-test-vectors, TC1, 256 bit key, 8 rounds");
    evidence.Paragraph("The random source of the program uses the block function with 8 rounds.");
}

std::vector<std::uint32_t> BitsOf(RandomSource& source, std::size_t count) {
    std::vector<float> values(count);
    source.UniformFill(values);
    std::vector<std::uint32_t> bits;
    for (const float value : values)
        bits.push_back(static_cast<std::uint32_t>(value * 0x1p24F));
    return bits;
}

void CompareStream(Evidence& evidence) {
    // Without a reseed the source calculates 32 blocks of the cipher together. Its first values are the first
    // ones of each block.
    KnownEntropy entropy;
    RandomSource source(entropy);
    std::vector<std::uint32_t> expected;
    for (std::uint32_t block = 0; block < 8; ++block)
        expected.push_back(ChaChaBlock<8>(Input(true, {block, 0, 0, 0}))[0] >> 8U);
    evidence.Compare("The first 8 values of the source, from a key of the bytes 0 to 31", Hex(expected),
                     Hex(BitsOf(source, expected.size())),
                     "upper 24 bits of the first words of 8 blocks of the cipher of 8 rounds");
    const char* const second = "calculated by a second implementation of the cipher";
    source.UniformReseed(43200.5F);
    evidence.Compare("The first 12 values after a reseed with 43200.5",
                     "00ef6694 00dec3a9 005e8c96 0049abb6 0094bcaf 00bcd419 "
                     "006cec0a 0019f824 0085f9cc 00e665d2 00edb6d2 00ca5f8b",
                     Hex(BitsOf(source, 12)), second);
}

/// Tries to make a list and returns the outcome.
std::string ListWith(Entropy& entropy, const std::function<void(MemoryList&)>& report) {
    RandomSource source(entropy);
    MemoryList list(source, {"Group 1", "Group 2"});
    list.Results.BlockSizes = {0, 4};
    list.Results.CodeArr = {"1", "2", "3", "4"};
    std::string refusal;
    try {
        report(list);
    } catch (const Failure& failure) {
        refusal = failure.Description;
    }
    refusal += list.Desktop.Messages.Take();
    const bool isNamed = refusal.find("gives no random numbers") != std::string::npos;
    for (const auto& [path, content] : list.Desktop.FileSystem.Contents)
        if (content.find("Group") != std::string::npos)
            return "a list";
    return isNamed ? "no assignment, and a message" : "no assignment, and no message";
}

void CompareWithoutEntropy(Evidence& evidence) {
    const std::function<void(MemoryList&)> text = [](MemoryList& list) {
        GenerateText(list.Context, "list.txt");
    };
    const std::function<void(MemoryList&)> page = [](MemoryList& list) {
        GenerateHtm(list.Context, "list.htm");
    };
    NoEntropy none;
    LinuxEntropy real;
    evidence.Compare("Text file without entropy", "no assignment, and a message", ListWith(none, text));
    evidence.Compare("Web page without entropy", "no assignment, and a message", ListWith(none, page));
    evidence.Compare("Text file with the entropy of this machine", "a list", ListWith(real, text));
}

void CompareReseeds(Evidence& evidence) {
    constexpr int reseeds = 10'000;
    std::set<std::vector<std::uint32_t>> different;
    KnownEntropy entropy;
    RandomSource source(entropy);
    for (int i = 0; i < reseeds; ++i) {
        source.UniformReseed(43200.5F);
        different.insert(BitsOf(source, 4));
    }
    evidence.Compare("Different values after each of 10,000 reseeds with the same time", Grouped(reseeds),
                     Grouped(static_cast<std::int64_t>(different.size())), "no state is repeated");

    std::set<std::vector<std::uint32_t>> ofKeys;
    for (int key = 0; key < 256; ++key) {
        KnownEntropy other(static_cast<std::uint8_t>(key));
        RandomSource reseeded(other);
        reseeded.UniformReseed(43200.5F);
        ofKeys.insert(BitsOf(reseeded, 4));
    }
    evidence.Compare("Different values from 256 keys after a reseed with the same time", "256",
                     std::to_string(ofKeys.size()), "the values depend on the key, not only on the time");
}

} // namespace

void CheckKnownSource(Record& record) {
    RunKnown(record, "CON-1.1", "The cipher of the random source", CompareCipher);
    RunKnown(record, "CON-1.3", "The random source uses this cipher", CompareStream);
    RunKnown(record, "CON-2.1", "No list without randomness", CompareWithoutEntropy);
    RunKnown(record, "CON-6.1", "Values after reseeds with a known time", CompareReseeds);
}

} // namespace orvane::validation
