// The icon of the program.
#pragma once

#include <QIcon>

namespace orvane {

/// 32 by 32 pixels in two colours: a standing man and a standing woman.
QIcon ApplicationIcon();

} // namespace orvane
