// The chapters of the page.
#pragma once

#include "validation/page.h"
#include "validation/record.h"

#include <string>
#include <vector>

namespace orvane::validation {

struct ChapterHead {
    std::string Anchor;
    std::string Title;
};

/// The chapters in the order of the page.
const std::vector<ChapterHead>& ChapterHeads();

std::string AllChapters(const Record& record, const Run& run);

/// A table of names and values.
std::string FactsTable(const std::vector<Row>& rows, const std::string& caption);

/// The identifier of a check, as a link to the check.
std::string CheckLink(const Check& check);

/// A list of what the checks of this record do not cover.
std::string NotCovered();

/// A table with space for names, dates and signatures.
std::string Signatures();

} // namespace orvane::validation
