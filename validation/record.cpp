#include "validation/record.h"

namespace orvane::validation {

void Evidence::Compare(const std::string& what, const std::string& expected, const std::string& observed) {
    const bool equal = expected == observed;
    exhibits_.front().Rows.push_back({what, expected, observed, equal ? "equal" : "NOT EQUAL"});
    Demand(equal, what + ": expected \"" + expected + "\", observed \"" + observed + "\"");
}

void Evidence::Demand(bool right, const std::string& what) {
    judged_ = true;
    if (!right)
        faults_.push_back(what);
}

std::vector<std::string> Evidence::Faults() const {
    return judged_ ? faults_ : std::vector<std::string>{"the check judged nothing"};
}

void Record::Run(const std::string& identifier, const std::string& title, Chapter place,
                 const std::function<void(Evidence&)>& check) {
    Evidence evidence;
    try {
        check(evidence);
    } catch (const std::exception& error) {
        evidence.Demand(false, error.what());
    }
    const std::string requirement = identifier.substr(0, identifier.rfind('.'));
    checks_.push_back({identifier, requirement, title, place, evidence.Faults(), evidence.Exhibits()});
}

} // namespace orvane::validation
