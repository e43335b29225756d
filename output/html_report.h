// The list as a web page.
#pragma once

#include "output/report_context.h"

#include <string>

namespace orvane {

/// Writes the list into the file `S`, replacing it, and opens it in its associated program. Throws every
/// failure; the file then contains the lines written so far, and no program is started.
void GenerateHtm(const ReportContext& context, const std::string& S);

} // namespace orvane
