// The list as a web page.
#pragma once

#include "output/report_context.h"

#include <string>

namespace orvane {

/// Writes the list into the file `S`, replacing it, and opens it in its associated program. Throws whatever
/// fails; the lines written by then stay, and no program is started.
void GenerateHtm(const ReportContext& context, const std::string& S);

} // namespace orvane
