// A one-line text box without a length limit.
#pragma once

#include <QLineEdit>

#include <string>

namespace orvane {

/// Accepts all characters except line ends: only the first line of a pasted text is inserted. The whole text
/// is selected when the box gets the focus, so that typing replaces it; the mouse press that gives the focus
/// neither places the caret nor starts a selection. The selection does not change when the box gets the focus
/// back because its window becomes active again.
class LineBox : public QLineEdit {
    Q_OBJECT

  public:
    explicit LineBox(QWidget* parent = nullptr);

    [[nodiscard]] std::string Text() const { return text().toStdString(); }
    /// Sets exactly this text, including any line ends. Emits textChanged if the text is a new one.
    void SetText(const std::string& text);

    /// Gives the box the focus and selects the whole text, also when it has the focus already.
    void TakeFocus();

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    bool settingText_ = false; ///< the program sets the text: nothing is cut
    bool pressBringsFocus_{};  ///< the button that gave the focus is still down
};

} // namespace orvane
