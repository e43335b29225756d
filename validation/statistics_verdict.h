// What a statistic says of a sample, and how the record shows it.
#pragma once

#include "validation/record.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane::validation {

/// One of the values that are counted.
struct Category {
    std::string Label;
    double Share = 0; ///< of the sample, as expected; those of all categories of one place add up to 1
    std::int64_t Count = 0;
};

/// Counts of one sample.
struct Sample {
    std::string Text; ///< what was drawn, and how many of it
    std::vector<Category> Categories;
    std::int64_t Draws = 0;      ///< at each place
    std::int64_t Impossible = 0; ///< values that no right program gives
    double Freedom = 0;          ///< degrees of freedom of Pearson's statistic
    /// By what Pearson's statistic is multiplied: 1 for independent draws, less where a block fixes how often
    /// a value occurs in it.
    double Factor = 1;
};

/// The chance that a right program fails one of the statistics that have a P value. All statistics of a
/// record together, about twenty, stay below AllFalseAlarms, with room for the error of the chi-square
/// approximation.
inline constexpr double FalseAlarm = 2e-6;
inline constexpr double AllFalseAlarms = 8e-5;

struct Verdict {
    std::string Statistic; ///< its name
    double Value = 0;
    std::string Freedom;    ///< degrees of freedom; empty where the distribution has none
    double PValue = 0;      ///< two-sided
    std::string Acceptance; ///< in words
    double Alarm = 0;       ///< the chance of a false alarm
    bool Passed = false;
};

/// Twice the smaller of the two tails, at most 1: a statistic that is too good is as suspicious as a bad one.
double TwoSided(double lower, double upper);

/// Pearson's chi-square statistic of the counts. Fails as well when there is an impossible value.
Verdict JudgeCounts(const Sample& sample);

/// Whether `count` events are too many or too few where `expected` are expected and each is rare.
Verdict JudgeRareEvents(const std::string& statistic, std::int64_t count, double expected);

/// Passes when there are none; `expected` is how many chance alone gives, far below 1.
Verdict JudgeNone(const std::string& statistic, std::int64_t count, double expected);

/// A P value as the record prints it.
std::string PValueText(double value);

/// Writes hypothesis, sample, statistic, P value, limit and the chance of a false alarm, and fails the check
/// unless the verdict is that of a right program.
void ShowVerdict(Evidence& evidence, const std::string& hypothesis, const std::string& sample,
                 const Verdict& verdict);

/// The same with a plot of the categories, called `what`, such as "arrangement"; categories of one label, as
/// those of the same character at several places, are one bar.
void ShowSample(Evidence& evidence, const std::string& hypothesis, const Sample& sample,
                const std::string& what);

} // namespace orvane::validation
