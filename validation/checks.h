// The checks, chapter by chapter. Each adds its findings to the record.
#pragma once

#include "validation/lists/session.h"
#include "validation/record.h"

#include <vector>

namespace orvane::validation {

/// Chapters 3 and 4: the lists of the table, in a quick validation only the first ones, made from known keys
/// and held against the rules and against the second program. Chapter 8: every rule finds the fault that
/// breaks it alone, and the rules find every changed byte.
void CheckLists(Record& record, Session& session);

/// CON-1.1: published figures beside those of the second program.
void CheckSecondProgram(Record& record);

/// Chapter 5: starts without entropy, input that must be refused, characters that a file cannot hold, and
/// settings saved, loaded and damaged.
void CheckRefusals(Record& record, Session& session);

/// Chapter 6: ASG-6.1 with one table, and a check for each statistic. Of each kind of sample the last list is
/// kept as a file. Chapter 8: every statistic finds the fault in its sample.
void CheckStatistics(Record& record, Session& session);

/// Chapter 7: for each block option how often an investigator guesses the next assignment right.
void CheckGuessing(Record& record);

} // namespace orvane::validation
