// The distributions of the program's random choices, on long lists that it makes with the entropy of this
// machine.
#pragma once

#include "validation/draws/planted_faults.h"
#include "validation/lists/session.h"
#include "validation/record.h"

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace orvane::validation {

/// What is kept of a list.
struct LongList {
    std::vector<std::string> Blocks{}; ///< the groups of each block in list order, such as "ABBA"
    std::vector<std::string> Codes{};  ///< none if they are sequential
};

/// Lists of one set-up.
struct Sample {
    ListSetup Setup;
    int FullLists = 0; ///< number in a full validation
    int QuickLists = 0;
    std::vector<LongList> Lists{};
};

/// The probabilities of one result of a draw.
struct Chance {
    double Right = 0;
    double Faulty = 0; ///< if every draw had the fault of the statistic
};

/// What a right program gives. A result that is not named is impossible.
struct Law {
    std::map<std::string, Chance> Results{};
    /// Degrees of freedom of Pearson's statistic. If 0, only an impossible result is a fault.
    double Freedom = 0;
    /// Factor of Pearson's statistic: less than 1 if a block settles how often a group occurs in it.
    double Factor = 1;
};

struct Statistic {
    std::string Identifier; ///< of its check
    std::string Hypothesis;
    std::size_t Kind = 0; ///< of its sample
    Law (*LawOf)(const ListSetup&) = nullptr;
    /// Calls the function with the result of every draw.
    void (*Count)(const Sample&, const std::function<void(const std::string&)>&) = nullptr;
    std::string Unit; ///< what is drawn, such as "blocks"
    const validation::Fault* Fault = nullptr;
};

struct Verdict {
    std::int64_t Draws = 0;
    double Value = 0;         ///< of Pearson's statistic
    double PValue = 0;        ///< of the upper tail: counts that are too even are no fault
    double SmallestShare = 0; ///< of faulty draws that is found with 99 per cent; 0: a single one
    bool Passed = false;
};

const std::vector<Statistic>& AllStatistics();
Verdict Judge(const Statistic& statistic, const Sample& sample);

/// A block before it is shuffled: "ABAB".
std::string Dealt(int size, int groups);

/// Two significant digits, the same in every locale: "2.5e-07".
std::string Significant(double value);

/// Makes long lists and judges them: ASG-6.1 with one table, and a check for each statistic. Returns the
/// samples of all kinds, or none if a list could not be made. Of each kind the last list is kept as a file.
/// `library` is that of known_key.h, for starts at one time of day.
std::vector<Sample> CheckStatistics(Record& record, Session& session, const std::filesystem::path& library,
                                    const Scale& scale);

} // namespace orvane::validation
