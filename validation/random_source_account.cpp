#include "validation/random_source_account.h"

#include "engine/random_source.h"
#include "platform/linux/linux_entropy.h"
#include "validation/figures.h"

#include <algorithm>
#include <set>
#include <vector>

namespace orvane::validation {
namespace {

constexpr std::size_t Values = 10000;

/// Hands on the randomness of the operating system and counts what was asked for.
class CountedEntropy : public Entropy {
  public:
    void Fill(std::span<std::byte> bytes) override {
        ++Requests;
        Bytes += bytes.size();
        system_.Fill(bytes);
    }
    int Requests = 0;
    std::size_t Bytes = 0;

  private:
    LinuxEntropy system_;
};

/// A key of zeros with one bit set, or none for a bit of -1.
class OneBit : public Entropy {
  public:
    explicit OneBit(int bit) : bit_(bit) {}
    void Fill(std::span<std::byte> bytes) override {
        std::fill(bytes.begin(), bytes.end(), std::byte{0});
        if (bit_ >= 0)
            bytes[static_cast<std::size_t>(bit_) / 8] =
                static_cast<std::byte>(1U << (static_cast<unsigned>(bit_) % 8));
    }

  private:
    int bit_;
};

std::vector<float> Next(RandomSource& source) {
    std::vector<float> values(Values);
    source.UniformFill(values);
    return values;
}

/// Places at which two samples have the same value. By chance 0.0006 are expected, and three or more come up
/// in fewer than one of a thousand million.
std::size_t Same(const std::vector<float>& a, const std::vector<float>& b) {
    std::size_t same = 0;
    for (std::size_t at = 0; at < a.size(); ++at)
        same += a[at] == b[at] ? 1 : 0;
    return same;
}
constexpr std::size_t MostSame = 2;

void CheckKey(Record& record) {
    record.Run("CON-1.9", "CON-1", "The key is 256 bits of the operating system, and each bit of it counts",
               Chapter::Concealment, [](Evidence& evidence) {
                   CountedEntropy entropy;
                   RandomSource source(entropy);
                   evidence.Compare("Bytes taken before the first value is asked for", "0",
                                    std::to_string(entropy.Bytes));
                   Next(source);
                   source.UniformReseed(0);
                   Next(source);
                   evidence.Compare("Bytes taken after 20,000 values and a reseed", "32",
                                    std::to_string(entropy.Bytes));

                   OneBit none(-1);
                   RandomSource zero(none);
                   const std::vector<float> reference = Next(zero);
                   std::size_t most = 0;
                   constexpr int bits = 256;
                   for (int bit = 0; bit < bits; ++bit) {
                       OneBit one(bit);
                       RandomSource other(one);
                       most = std::max(most, Same(reference, Next(other)));
                   }
                   evidence.Demand(most <= MostSame, "A key that differs in one bit gives " +
                                                         std::to_string(most) + " equal values of 10,000.");
                   evidence.Paragraph("Keys that differ in one bit, each of the 256 in turn, gave at most " +
                                      std::to_string(most) +
                                      " equal values of 10,000 at the same place; at most " +
                                      std::to_string(MostSame) + " were accepted.");
               });
}

void CheckReseed(Record& record) {
    record.Run(
        "CON-6.9", "CON-6", "A reseed with a known value opens no way to the values before or after it",
        Chapter::Concealment, [](Evidence& evidence) {
            OneBit none(-1);
            OneBit one(0);
            RandomSource first(none);
            RandomSource second(one);
            const std::vector<float> before = Next(first);
            for (RandomSource* source : {&first, &second})
                source->UniformReseed(43200.5F);
            const std::vector<float> after = Next(first);
            evidence.Demand(Same(after, Next(second)) <= MostSame,
                            "Two keys and the same reseed give the same values.");
            evidence.Demand(Same(before, after) <= MostSame, "A reseed repeats values from before it.");
            first.UniformReseed(43200.5F);
            const std::vector<float> again = Next(first);
            evidence.Demand(Same(again, after) <= MostSame && Same(again, before) <= MostSame,
                            "A second reseed with the same value leads back to values from before.");
            evidence.Paragraph(
                "Two sources with different keys were given the same time of day and had at most " +
                std::to_string(MostSame) +
                " of 10,000 values in common, as had one source before a reseed, after it, and "
                "after a second one with the same time.");
        });
}

void Explain(Record& record) {
    record.Run("CON-6.8", "CON-6", "What the source of the draws rests on", Chapter::Concealment,
               [](Evidence& evidence) {
                   LinuxEntropy system;
                   RandomSource one(system);
                   RandomSource other(system);
                   const std::size_t same = Same(Next(one), Next(other));
                   evidence.Demand(same <= MostSame, "Two starts of the source have " + std::to_string(same) +
                                                         " of 10,000 values in common.");
                   evidence.Paragraph(
                       "The key. At its first use the source takes 256 bits from the operating system's "
                       "random generator. If "
                       "there are none, no list is made; there is no weaker start. No key is saved, so no "
                       "list can be made "
                       "again, and two starts of the program have nothing in common (observed: " +
                       std::to_string(same) + " of 10,000 values equal, at most " + std::to_string(MostSame) +
                       " accepted).");
                   evidence.Paragraph("The values. ChaCha with 8 rounds, the cipher of D. J. Bernstein, is "
                                      "run over a counter, and every "
                                      "choice of the program is made from its output. Whoever has seen any "
                                      "number of assignments, block sizes "
                                      "and codes has seen values that are spent; to find the next one is to "
                                      "break the cipher, for which no "
                                      "way better than trying the 2^256 keys is known.");
                   evidence.Paragraph("The time of day. It is mixed in before each block, each list of block "
                                      "sizes and each random code. It is no "
                                      "secret and is not needed as one: the new key is a block of the cipher "
                                      "under the old key, so knowing "
                                      "or choosing the time does not help to guess it, and reading the "
                                      "program's memory after a reseed "
                                      "does not tell what was drawn before it.");
                   evidence.Paragraph("What this rests on. That the operating system's random generator is "
                                      "sound, that the output of ChaCha with "
                                      "8 rounds cannot be told from random, and that nobody reads the memory "
                                      "of the running program or the "
                                      "finished list. The same cipher with 20 rounds protects much of "
                                      "today's encrypted traffic; the best "
                                      "published attacks reach 7 rounds. The third point is up to those who "
                                      "keep the machine and the "
                                      "list.");
               });
}

} // namespace

void CheckSourceAccount(Record& record) {
    Explain(record);
    CheckKey(record);
    CheckReseed(record);
}

} // namespace orvane::validation
