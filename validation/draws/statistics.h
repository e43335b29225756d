// The distributions of the program's random choices, on long lists that it makes with the entropy of this
// machine; and the faults that the statistics must find.
#pragma once

#include "validation/lists/setup.h"
#include "validation/record.h"

#include <map>
#include <random>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace orvane::validation {

using Texts = std::vector<std::string>;

/// What is kept of the lists of one set-up, in their order.
struct Sample {
    ListSetup Setup;
    Texts Blocks{}; ///< the groups of each block, such as "ABBA"
    Texts Codes{};  ///< none if they are sequential
};

using Samples = std::map<QString, Sample>; ///< by the names that the table samples.csv gives them

/// A block or a code of a sample, and the one before it.
struct Spot {
    std::string& Text;
    const std::string& Before;
    const ListSetup& Setup;
    std::mt19937& Random;
};

struct Fault {
    std::string Words;
    double Share = 0; ///< that is planted; 0 for a single one, at the end of the sample
    Texts Sample::*Place = nullptr;
    void (*Change)(const Spot&) = nullptr;
};

/// "5 % of the blocks left as they are dealt"; for a share of 0 "one of the blocks".
std::string ShareText(double share, const Fault& fault);

/// Puts the fault into this share of the sample, at the same places at every run.
Sample Planted(const Fault& fault, double share, Sample sample);

/// The results of the last one of the texts that a sample has up to there.
using ResultsOf = Texts (*)(std::span<const std::string> texts);

/// What a right program gives.
struct Law {
    /// With their probabilities. Any other result is impossible.
    std::unordered_map<std::string, double> Results{};
    /// Degrees of freedom of Pearson's statistic. If 0, only an impossible result is a fault.
    double Freedom = 0;
    /// Factor of Pearson's statistic: less than 1 if a block settles how often a group occurs in it.
    double Factor = 1;
};

struct Statistic {
    std::string Identifier; ///< of its check
    std::string Hypothesis;
    QString Sample; ///< its name
    Law (*LawOf)(const ListSetup&, ResultsOf) = nullptr;
    ResultsOf Results = nullptr;
    std::string Unit;        ///< what is drawn, such as "blocks"
    validation::Fault Fault; ///< at the texts that give the results
};

const std::vector<Statistic>& AllStatistics();

/// The probability that a right program fails one statistic: the P value at which it fails.
constexpr double FalseAlarm = 2e-8;

struct Verdict {
    double Draws = 0;
    double Freedom = 0; ///< that of the law
    double Value = 0;   ///< of Pearson's statistic
    double PValue = 0;  ///< of the upper tail: counts that are too even are no fault
};

/// Throws std::runtime_error if the sample is empty.
Verdict Judge(const Statistic& statistic, const Sample& sample);

/// REC-1.3: every statistic judges its sample with a fault in it, and must find it.
void CheckStatisticsFindFaults(Record& record, const Samples& samples);

/// A block before it is shuffled: "ABAB".
std::string Dealt(int size, int groups);

} // namespace orvane::validation
