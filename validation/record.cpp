#include "validation/record.h"

#include <exception>

namespace orvane::validation {

void Check::Demand(bool right, const std::string& what) {
    ++Demands;
    if (!right)
        Faults.push_back(what);
}

void Check::Compare(const std::string& what, const std::string& expected, const std::string& observed) {
    const bool equal = expected == observed;
    Comparisons.push_back({what, expected, observed, equal ? "equal" : "NOT EQUAL"});
    Demand(equal, what + ": expected \"" + expected + "\", observed \"" + observed + "\"");
}

void Record::Run(const std::string& identifier, const std::string& title, Chapter place,
                 const std::function<void(Check&)>& judge) {
    Checks.push_back({identifier, title, place});
    Check& check = Checks.back();
    try {
        judge(check);
        check.Demand(check.Demands > 0, "the check judged nothing");
    } catch (const std::exception& error) {
        check.Demand(false, error.what());
    }
}

} // namespace orvane::validation
