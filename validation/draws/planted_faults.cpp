#include "validation/draws/statistics.h"

#include <QString>

#include <algorithm>

namespace orvane::validation {

std::string ShareText(double share, const Fault& fault) {
    const std::string text = share == 0 ? "one" : QString::number(100 * share, 'g', 2).toStdString() + " %";
    return text + " of the " + fault.Words;
}

Sample Planted(const Fault& fault, double share, Sample sample) {
    std::mt19937 random{1}; // NOLINT: the same faults at every validation
    std::bernoulli_distribution isHit(share);
    Texts& texts = sample.*fault.Place;
    std::string before = texts.at(0);
    for (std::string& text : texts) {
        if (share == 0 ? &text == &texts.back() : isHit(random))
            fault.Change({text, before, sample.Setup, random});
        before = text;
    }
    return sample;
}

void CheckStatisticsFindFaults(Record& record, const Samples& samples) {
    const auto judge = [&](Check& check) {
        std::vector<Row> rows;
        for (const Statistic& statistic : AllStatistics()) {
            const Fault& fault = statistic.Fault;
            const Sample sample = Planted(fault, fault.Share, samples.at(statistic.Sample));
            const bool found = Judge(statistic, sample).PValue <= FalseAlarm;
            const std::string text = ShareText(fault.Share, fault);
            check.Demand(found, text + " is not found by " + statistic.Identifier);
            rows.push_back({text, statistic.Identifier, found ? "found" : "NOT FOUND"});
        }
        check.Exhibits.push_back(
            {"Real samples with faults in them", {"Fault", "Check that must find it", "Result"}, rows});
    };
    record.Run("REC-1.3", "Every statistic finds the fault in its sample", Chapter::PlantedFaults, judge);
}

} // namespace orvane::validation
