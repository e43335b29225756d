// The file prompts of lists: where a new list goes, and which saved list is shown.
#pragma once

#include "lists/reports.h"
#include "platform/common_dialog.h"

namespace orvane {

/// Asks for a file and writes the list there, as a web page or as text by the last three characters of the
/// name. Asks again for a file that cannot be used. Reports a failure itself; after a cancel nothing happens.
void OutputToFile(const ReportContext& context, CommonDialog& CMDialog);

/// Asks for a saved list and shows it: a web page in its associated program, any other file in the output
/// window. Reports a failure itself.
void DisplayRandomFile(const ReportContext& context, CommonDialog& CMDialog, OutputWindow& window);

} // namespace orvane
