// A one-line text box without a limit of length.
#pragma once

#include <QLineEdit>

#include <string>

namespace orvane {

/// Takes any characters but line ends: of a pasted text the first line counts. Its whole text is selected
/// when it gets the focus, so that typing replaces the text; the mouse press that brings the focus neither
/// places the caret nor starts a selection. The selection stays as it is when the window as a whole comes
/// back to the front.
class LineBox : public QLineEdit {
    Q_OBJECT

  public:
    explicit LineBox(QWidget* parent = nullptr);

    [[nodiscard]] std::string Text() const { return text().toStdString(); }
    /// Sets the text to the letter, whatever it holds. Fires textChanged if it differs.
    void SetText(const std::string& text);

    /// Gives the box the focus and selects the whole text, also when it has the focus already.
    void TakeFocus();

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    bool settingText_ = false;      ///< a text set by the program passes unchanged
    bool pressBringsFocus_ = false; ///< the button that brought the focus is still down
};

} // namespace orvane
