// The list as text on the clipboard.
#pragma once

#include "output/report_context.h"

namespace orvane {

/// Builds the list as one text and puts it on the clipboard, each cell filled up to the width of its column.
/// Reports a failure itself and returns normally; the clipboard is then as it was, or empty if it did not
/// take the finished text.
void OutputToClipBoard(const ReportContext& context);

} // namespace orvane
