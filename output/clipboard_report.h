// The list as text on the clipboard.
#pragma once

#include "output/report_context.h"

namespace orvane {

/// Builds the list as one text, each cell padded with spaces to the width of its column, and puts it on the
/// clipboard. Reports a failure itself and returns normally. After a failure the clipboard is unchanged, or
/// empty if it refused the finished text.
void OutputToClipBoard(const ReportContext& context);

} // namespace orvane
