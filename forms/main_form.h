// The main window of the program.
#pragma once

#include "platform/common_dialog.h"
#include "platform/platform.h"

#include <QMainWindow>

#include <memory>

namespace orvane {

/// Makes the main window, in which the user enters the number of groups, their names and the sample size, and
/// from which all other functions are reached. It owns the list settings, of which there is one object in the
/// program. It opens as soon as the event loop runs, and then loads the settings of the last run. `CMDialog`
/// is the prompt for lists and settings, `outputDialog` that of the output window.
std::unique_ptr<QMainWindow> MakeMainForm(Platform& desktop, CommonDialog& CMDialog,
                                          CommonDialog& outputDialog);

} // namespace orvane
