#include "validation/json_record.h"

#include "validation/conclusion.h"
#include "validation/requirements.h"

#include <nlohmann/json.hpp>

namespace orvane::validation {
namespace {

using Json = nlohmann::ordered_json;

Json Checks(const Record& record) {
    Json checks = Json::array();
    for (const Check& check : record.Checks())
        checks.push_back({{"identifier", check.Identifier},
                          {"requirement", check.Requirement},
                          {"title", check.Title},
                          {"result", Name(check.Outcome)},
                          {"reasons", check.Reasons}});
    return checks;
}

Json Requirements(const Record& record) {
    Json requirements = Json::array();
    for (const RequirementGroup& group : AllRequirements())
        for (const Requirement& requirement : group.Requirements) {
            Json checks = Json::array();
            for (const Check* check : ChecksOf(record, requirement.Identifier))
                checks.push_back(check->Identifier);
            requirements.push_back({{"identifier", requirement.Identifier},
                                    {"group", group.Name},
                                    {"text", requirement.Text},
                                    {"checks", checks}});
        }
    return requirements;
}

Json Files(const std::vector<Row>& rows) {
    Json files = Json::array();
    for (const Row& file : rows)
        files.push_back({{"name", file[0]}, {"size", file[1]}, {"sha256", file[2]}});
    return files;
}

Json Libraries(const Identity& what) {
    Json libraries = Json::array();
    for (const Row& library : what.Libraries)
        libraries.push_back({{"name", library[0]}, {"version", library[1]}, {"file", library[2]}});
    return libraries;
}

} // namespace

std::string RecordJson(const Record& record, const Run& run) {
    const Json all{{"program", run.What.Program},
                   {"version", run.What.Version},
                   {"commit", run.What.Commit},
                   {"tree", run.What.Tree},
                   {"date", run.What.Started},
                   {"duration", run.Duration},
                   {"quick", run.Quick},
                   {"conclusion", AllPassed(record) ? "passed" : "failed"},
                   {"checks", Checks(record)},
                   {"requirements", Requirements(record)},
                   {"files", Files(run.What.Files)},
                   {"evidence", Files(run.Evidence)},
                   {"libraries", Libraries(run.What)}};
    constexpr int indent = 2;
    return all.dump(indent, ' ', false, Json::error_handler_t::replace) + "\n";
}

} // namespace orvane::validation
