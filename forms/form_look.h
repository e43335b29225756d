// What the windows have in common: their font and their place on the screen.
#pragma once

#include <QWidget>

namespace orvane {

/// The text size of the forms. Controls that are made later write in it too.
/// Requires: `window` has no controls yet, since each would load the toolkit's own size first.
void UseFormFont(QWidget& window);

/// Puts `window`, frame included, in the middle of the screen of `there`. The frame is known only once the
/// window is on the screen, so the window is placed at this call and again at its first picture.
/// Requires: the window has its size and is not shown yet.
void CentreOnScreen(QWidget& window, const QWidget& there);

} // namespace orvane
