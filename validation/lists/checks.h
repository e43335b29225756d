// The checks of the lists, of what the program refuses, and of its settings files.
#pragma once

#include "validation/lists/session.h"
#include "validation/record.h"

#include <filesystem>
#include <vector>

namespace orvane::validation {

/// Chapters 3 and 4: the lists of the table, in a quick validation only the first ones, made from known keys
/// and held against the rules and against the second program. Returns the lists.
/// `library` is that of known_key.h, here and below.
std::vector<MadeList> CheckLists(Record& record, Session& session, const SetupTable& table,
                                 const std::filesystem::path& library, const Scale& scale);

/// Chapter 5: starts without entropy, input that must be refused, characters that a file cannot hold, and
/// settings saved, loaded and damaged.
void CheckRefusals(Record& record, Session& session, const SetupTable& table,
                   const std::filesystem::path& library, const Scale& scale);

/// Chapter 8: every rule finds the fault that breaks it alone, and the rules find every changed byte.
/// Requires: lists of all forms, block options and kinds of codes.
void CheckRulesFindFaults(Record& record, const std::vector<MadeList>& lists);

} // namespace orvane::validation
