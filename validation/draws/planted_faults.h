// The statistics judge the real samples with faults in them, and must find every one.
#pragma once

#include <string>
#include <vector>

namespace orvane::validation {

struct Fault;
struct Sample;

extern const Fault LeftAsDealt;
extern const Fault GivenToB;
extern const Fault LevelSizes;
extern const Fault LevelCharacters;
extern const Fault CopiedBlock;
extern const Fault RepeatedList;
extern const Fault NotTested;

/// "5 % of the blocks left as they are dealt"; for a share of 0 "one of the blocks".
std::string ShareText(double share, const Fault& fault);

struct PlantedFault {
    std::string Fault;
    std::string Check; ///< identifier of the check that must find it
    bool Found = false;
};

/// Plants the fault of every statistic into its sample, and judges it as the sample was judged. Throws
/// std::out_of_range if there are no samples.
std::vector<PlantedFault> PlantStatisticalFaults(const std::vector<Sample>& samples);

} // namespace orvane::validation
