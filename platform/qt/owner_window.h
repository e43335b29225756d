// The window that a box or a prompt belongs to.
#pragma once

class QWidget;

namespace orvane {

/// The window that the user works in: the modal one, else the active one. In the moment in which none is
/// active, such as right behind another box or while another program is in front, one that is on the screen.
/// Null when there is none.
QWidget* OwnerWindow();

} // namespace orvane
