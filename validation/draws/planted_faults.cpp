#include "validation/draws/planted_faults.h"

#include "validation/draws/statistics.h"

#include <algorithm>
#include <random>

namespace orvane::validation {

/// A fault of blocks or of codes.
struct Fault {
    const char* Words;
    double Share; ///< that is planted; 0 for a single one, at the end of the sample
    std::vector<std::string> LongList::*Place;
    void (*Change)(std::string& text, const std::string& before, const ListSetup& setup,
                   std::mt19937& random);
};

namespace {

void LeaveAsDealt(std::string& block, const std::string&, const ListSetup& setup, std::mt19937&) {
    block = Dealt(static_cast<int>(block.size()), setup.GroupCount());
}

void GiveToB(std::string& block, const std::string&, const ListSetup&, std::mt19937&) {
    std::ranges::replace(block, 'A', 'B');
}

void DrawSize(std::string& block, const std::string&, const ListSetup& setup, std::mt19937& random) {
    block = Dealt(setup.ListedSizes.at(random() % setup.ListedSizes.size()), setup.GroupCount());
}

void DrawCode(std::string& code, const std::string&, const ListSetup& setup, std::mt19937& random) {
    const std::string characters = CharactersOf(setup.Characters);
    for (char& character : code)
        character = characters.at(random() % characters.size());
}

void Copy(std::string& text, const std::string& before, const ListSetup&, std::mt19937&) {
    text = before;
}

void Shuffle(std::string& block, const std::string&, const ListSetup&, std::mt19937& random) {
    std::ranges::shuffle(block, random);
}

/// Puts the fault into its share of the sample, at the same places at every run.
void Plant(const Fault& fault, Sample& sample) {
    std::mt19937 random{1}; // NOLINT: the same faults at every validation
    std::bernoulli_distribution isHit(fault.Share);
    const std::string& last = (sample.Lists.back().*fault.Place).back();
    std::string before = (sample.Lists.front().*fault.Place).front();
    for (LongList& list : sample.Lists)
        for (std::string& text : list.*fault.Place) {
            if (fault.Share == 0 ? &text == &last : isHit(random))
                fault.Change(text, before, sample.Setup, random);
            before = text;
        }
}

} // namespace

const Fault LeftAsDealt = {"blocks left as they are dealt", 0.05, &LongList::Blocks, LeaveAsDealt};
const Fault GivenToB = {"subjects of group A given to group B", 0.1, &LongList::Blocks, GiveToB};
const Fault LevelSizes = {"sizes drawn with the ends as likely as the others", 0.5, &LongList::Blocks,
                          DrawSize};
const Fault LevelCharacters = {"characters drawn with the ends as likely as the others", 0.2,
                               &LongList::Codes, DrawCode};
const Fault CopiedBlock = {"blocks copied from the one before", 0.05, &LongList::Blocks, Copy};
const Fault RepeatedList = {"lists that another start has made", 0, &LongList::Blocks, Copy};
const Fault NotTested = {"blocks not tested", 0.05, &LongList::Blocks, Shuffle};

std::string ShareText(double share, const Fault& fault) {
    const std::string text = share == 0 ? "one" : Significant(100 * share) + " %";
    return text + " of the " + fault.Words;
}

std::vector<PlantedFault> PlantStatisticalFaults(const std::vector<Sample>& samples) {
    std::vector<PlantedFault> planted;
    for (const Statistic& statistic : AllStatistics()) {
        Sample sample = samples.at(statistic.Kind);
        Plant(*statistic.Fault, sample);
        planted.push_back({ShareText(statistic.Fault->Share, *statistic.Fault), statistic.Identifier,
                           !Judge(statistic, sample).Passed});
    }
    return planted;
}

} // namespace orvane::validation
