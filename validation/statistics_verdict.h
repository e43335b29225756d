// The result of a statistic for a sample, and its presentation in the record.
#pragma once

#include "validation/record.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane::validation {

/// One of the values that are counted.
struct Category {
    std::string Label;
    double Share = 0; ///< expected share; the shares of one position add up to 1
    std::int64_t Count = 0;
};

/// Counts of one sample.
struct Sample {
    std::string Text; ///< what was drawn, and how many of it
    std::vector<Category> Categories;
    std::int64_t Draws = 0;      ///< at each place
    std::int64_t Impossible = 0; ///< values that a correct program cannot give
    double Freedom = 0;          ///< degrees of freedom of Pearson's statistic
    /// Factor of Pearson's statistic: 1 for independent draws; less than 1 if a block determines how often a
    /// value occurs in it.
    double Factor = 1;
};

/// The probability that a correct program fails one statistic that has a P value. For all statistics of a
/// record together, about twenty, it is below AllFalseAlarms, which allows for the error of the chi-square
/// approximation.
inline constexpr double FalseAlarm = 2e-6;
inline constexpr double AllFalseAlarms = 8e-5;

struct Verdict {
    std::string Statistic; ///< its name
    double Value = 0;
    std::string Freedom;    ///< degrees of freedom; empty if the distribution has none
    double PValue = 0;      ///< two-sided
    std::string Acceptance; ///< in words
    double Alarm = 0;       ///< probability of a false alarm
    bool Passed = false;
};

/// Twice the smaller of the two tail probabilities, at most 1. Both too much and too little variation are
/// faults.
double TwoSided(double lower, double upper);

/// Pearson's chi-square statistic of the counts. Also fails if there is an impossible value.
Verdict JudgeCounts(const Sample& sample);

/// Fails if `count` rare events are too many or too few. `expected` is their expected number.
Verdict JudgeRareEvents(const std::string& statistic, std::int64_t count, double expected);

/// Passes if `count` is 0. `expected` is the number expected by chance.
/// Requires: `expected` far below 1.
Verdict JudgeNone(const std::string& statistic, std::int64_t count, double expected);

/// A P value as the record prints it.
std::string PValueText(double value);

/// Writes hypothesis, sample, statistic, P value, limit and the probability of a false alarm. The check fails
/// unless the verdict has passed.
void ShowVerdict(Evidence& evidence, const std::string& hypothesis, const std::string& sample,
                 const Verdict& verdict);

/// The same with a plot of the categories. `what` says what they are, such as "arrangement". Categories with
/// the same label, such as one character at several positions, are one bar.
void ShowSample(Evidence& evidence, const std::string& hypothesis, const Sample& sample,
                const std::string& what);

} // namespace orvane::validation
