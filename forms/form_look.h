// Font and position that the windows have in common.
#pragma once

#include <QWidget>

namespace orvane {

/// Sets the text size of the forms. Controls that are created later inherit it.
/// Requires: `window` has no controls yet; each would first load the toolkit's default font.
void UseFormFont(QWidget& window);

/// Centres `window`, including its frame, on the screen of `there`. The size of the frame is known only when
/// the window is on the screen, so the window is positioned by this call and again when it is first exposed.
/// Requires: the window has its final size and is not shown yet.
void CentreOnScreen(QWidget& window, const QWidget& there);

} // namespace orvane
