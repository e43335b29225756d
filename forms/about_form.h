// The About box.
#pragma once

#include "platform/platform.h"

class QWidget;

namespace orvane {

/// Shows the box in front of `owner` and returns when it has closed.
void ShowAboutForm(Platform& desktop, QWidget& owner);

} // namespace orvane
