// The window that a box or a prompt belongs to.
#pragma once

class QWidget;

namespace orvane {

/// The modal window if there is one, else the active window. If no window is active, as just after another
/// box has closed or while another program is in front, any visible window. Null if there is none.
QWidget* OwnerWindow();

} // namespace orvane
