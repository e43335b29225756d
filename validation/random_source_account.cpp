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

/// Passes on the operating system's random bytes and counts the requests.
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

/// Gives a key of zeros with one bit set, or with none if `bit` is -1.
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

/// The number of positions at which two samples have the same value. By chance 0.0006 are expected; three or
/// more have a probability below 1e-9.
std::size_t Same(const std::vector<float>& a, const std::vector<float>& b) {
    std::size_t same = 0;
    for (std::size_t at = 0; at < a.size(); ++at)
        same += a[at] == b[at] ? 1 : 0;
    return same;
}
constexpr std::size_t MostSame = 2;

void CheckKey(Record& record) {
    record.Run("CON-1.9", "CON-1",
               "The key is 256 bits from the operating system, and each bit changes the values",
               Chapter::Concealment, [](Evidence& evidence) {
                   CountedEntropy entropy;
                   RandomSource source(entropy);
                   evidence.Compare("Bytes taken before the first value is requested", "0",
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
                   evidence.Paragraph(
                       "Each of the 256 bits of a key was changed in turn. With the changed keys, at most " +
                       std::to_string(most) +
                       " of 10,000 values were equal to the value at the same position; at most " +
                       std::to_string(MostSame) + " were accepted.");
               });
}

void CheckReseed(Record& record) {
    record.Run(
        "CON-6.9", "CON-6", "A reseed with a known value does not reveal the values before or after it",
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
                            "A second reseed with the same value repeats earlier values.");
            evidence.Paragraph(
                "Two sources with different keys were reseeded with the same time of day. At most " +
                std::to_string(MostSame) +
                " of their 10,000 values were equal at the same position. The same was true of one source "
                "before a reseed, after it, and after a second reseed with the same time.");
        });
}

void Explain(Record& record) {
    record.Run(
        "CON-6.8", "CON-6", "What the security of the random source depends on", Chapter::Concealment,
        [](Evidence& evidence) {
            LinuxEntropy system;
            RandomSource one(system);
            RandomSource other(system);
            const std::size_t same = Same(Next(one), Next(other));
            evidence.Demand(same <= MostSame, "Two starts of the source have " + std::to_string(same) +
                                                  " of 10,000 values in common.");
            evidence.Paragraph(
                "The key. At its first use the source takes 256 bits from the operating system's random "
                "generator. If the operating system cannot supply them, no list is made; there is no weaker "
                "substitute. No key is saved, so no list can be made a second time, and the values of two "
                "starts of the program are independent (observed: " +
                std::to_string(same) + " of 10,000 values equal, at most " + std::to_string(MostSame) +
                " accepted).");
            evidence.Paragraph("The values. The source encrypts a counter with ChaCha with 8 rounds, the "
                               "cipher of D. J. Bernstein. Every random choice of the program is made from "
                               "this output. Somebody who knows any number of earlier assignments, block "
                               "sizes and codes cannot calculate the next value without breaking the cipher. "
                               "No attack on it is known that is better than trying all 2^256 keys.");
            evidence.Paragraph("The time of day. It is mixed into the key before each block, each list of "
                               "block sizes and each random code. The time is not secret and need not be "
                               "secret: the new key is a block of the cipher under the old key. So knowing "
                               "or choosing the time does not help to guess the new key, and reading the "
                               "program's memory after a reseed does not reveal what was drawn before it.");
            evidence.Paragraph(
                "Assumptions. First, the operating system's random generator is sound. Second, the output of "
                "ChaCha with 8 rounds cannot be distinguished from random bits. Third, nobody reads the "
                "memory of the running program or the finished list. The same cipher with 20 rounds protects "
                "much of today's encrypted traffic; the best published attacks reach 7 rounds. The third "
                "assumption is the responsibility of those who administer the machine and keep the list.");
        });
}

} // namespace

void CheckSourceAccount(Record& record) {
    Explain(record);
    CheckKey(record);
    CheckReseed(record);
}

} // namespace orvane::validation
