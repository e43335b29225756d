// The record as one page for A4.
#pragma once

#include "validation/identity.h"
#include "validation/record.h"

#include <string>
#include <vector>

namespace orvane::validation {

struct Run {
    Identity What;
    bool Quick = false;
    std::string Duration;      ///< of all checks, in words
    std::vector<Row> Evidence; ///< of each file that is kept as evidence the name, the size and the SHA-256
};

/// The whole record as one HTML page that needs no other file.
std::string RecordPage(const Record& record, const Run& run);

/// The style sheet of the page, in page_style.cpp. `footer` is printed at the foot of every page.
std::string PageStyle(const std::string& footer);

} // namespace orvane::validation
