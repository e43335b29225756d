#include "validation/statistics_verdict.h"

#include "validation/figures.h"
#include "validation/plots.h"

#include <boost/math/distributions/chi_squared.hpp>
#include <boost/math/distributions/poisson.hpp>

#include <algorithm>
#include <map>

namespace orvane::validation {
namespace {

Verdict ByPValue(const std::string& statistic, double value, double lower, double upper) {
    Verdict verdict;
    verdict.Statistic = statistic;
    verdict.Value = value;
    verdict.PValue = TwoSided(lower, upper);
    verdict.Acceptance = "a P value above " + Significant(FalseAlarm, 2);
    verdict.Alarm = FalseAlarm;
    verdict.Passed = verdict.PValue > FalseAlarm;
    return verdict;
}

/// One bar for each label; the positions of a code are shown together.
std::vector<Bar> BarsOf(const Sample& sample) {
    std::vector<Bar> bars;
    std::map<std::string, std::size_t> known;
    for (const Category& category : sample.Categories) {
        const auto [found, isNew] = known.emplace(category.Label, bars.size());
        if (isNew)
            bars.push_back({category.Label, 0, 0.0});
        Bar& bar = bars[found->second];
        bar.Value += static_cast<double>(category.Count);
        *bar.Expected += category.Share * static_cast<double>(sample.Draws);
    }
    return bars;
}

} // namespace

double TwoSided(double lower, double upper) {
    return std::min(1.0, 2 * std::min(lower, upper));
}

Verdict JudgeCounts(const Sample& sample) {
    double chiSquare = 0;
    for (const Category& category : sample.Categories) {
        const double expected = category.Share * static_cast<double>(sample.Draws);
        const double off = static_cast<double>(category.Count) - expected;
        chiSquare += off * off / expected;
    }
    chiSquare *= sample.Factor;
    const boost::math::chi_squared distribution(sample.Freedom);
    Verdict verdict = ByPValue("Pearson's chi-square", chiSquare, boost::math::cdf(distribution, chiSquare),
                               boost::math::cdf(boost::math::complement(distribution, chiSquare)));
    verdict.Freedom = Fixed(sample.Freedom, 0);
    verdict.Passed = verdict.Passed && sample.Impossible == 0;
    return verdict;
}

Verdict JudgeRareEvents(const std::string& statistic, std::int64_t count, double expected) {
    const boost::math::poisson distribution(expected);
    const auto found = static_cast<double>(count);
    const double upper = count == 0 ? 1 : boost::math::cdf(boost::math::complement(distribution, found - 1));
    return ByPValue(statistic, found, boost::math::cdf(distribution, found), upper);
}

Verdict JudgeNone(const std::string& statistic, std::int64_t count, double expected) {
    Verdict verdict;
    verdict.Statistic = statistic;
    verdict.Value = static_cast<double>(count);
    verdict.PValue = count == 0 ? 1 : expected;
    verdict.Acceptance = "none";
    verdict.Alarm = expected;
    verdict.Passed = count == 0;
    return verdict;
}

std::string PValueText(double value) {
    return value < 1e-12 ? "below 1e-12" : Significant(value, 3);
}

void ShowVerdict(Evidence& evidence, const std::string& hypothesis, const std::string& sample,
                 const Verdict& verdict) {
    std::vector<Row> rows = {{"Hypothesis", hypothesis},
                             {"Sample", sample},
                             {verdict.Statistic, Fixed(verdict.Value, verdict.Freedom.empty() ? 0 : 2)}};
    if (!verdict.Freedom.empty())
        rows.push_back({"Degrees of freedom", verdict.Freedom});
    rows.push_back({"P value, two-sided", PValueText(verdict.PValue)});
    rows.push_back({"Accepted", verdict.Acceptance});
    rows.push_back({"Probability of a false alarm", Significant(verdict.Alarm, 2)});
    evidence.Table({"Statistic", "Finding"}, rows);
    evidence.Demand(verdict.Passed, verdict.Statistic + " is " + Fixed(verdict.Value, 2) +
                                        ", with a P value of " + PValueText(verdict.PValue));
}

void ShowSample(Evidence& evidence, const std::string& hypothesis, const Sample& sample,
                const std::string& what) {
    const std::vector<Bar> bars = BarsOf(sample);
    ShowVerdict(evidence, hypothesis, sample.Text, JudgeCounts(sample));
    evidence.Demand(sample.Impossible == 0,
                    Grouped(sample.Impossible) + " values of the sample are impossible");
    evidence.Plot(
        BarChart("How often each " + what + " was drawn, and the expected number", what, "drawn", bars),
        "How often each " + what + " was drawn. The lines show the expected number.");
}

} // namespace orvane::validation
