// A one-line text box without a limit of length.
#pragma once

#include <QLineEdit>

#include <functional>
#include <string>

namespace orvane {

/// Takes any characters but line ends: of a pasted text the first line counts. The got-focus handler runs
/// after the press that brought the focus, which neither places the caret nor starts a selection; it does not
/// run when the window as a whole comes back to the front.
class LineBox : public QLineEdit {
    Q_OBJECT

  public:
    explicit LineBox(QWidget* parent = nullptr);

    [[nodiscard]] std::string Text() const { return text().toStdString(); }
    /// Sets the text to the letter, whatever it holds. Fires textChanged if it differs.
    void SetText(const std::string& text);

    /// The one got-focus handler.
    void OnGotFocus(std::function<void()> handler) { gotFocus_ = std::move(handler); }
    /// Selects the whole text.
    void SelectWholeText() { selectAll(); }
    /// Gives the box the focus; the got-focus handler runs also when it has the focus already.
    void TakeFocus();

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    std::function<void()> gotFocus_;
    bool settingText_ = false;      ///< a text set by the program passes unchanged
    bool pressBringsFocus_ = false; ///< the button that brought the focus is still down
};

} // namespace orvane
