// The grid on the screen.
#pragma once

#include "platform/ms_flex_grid.h"

#include <QTableWidget>

#include <cstdint>
#include <functional>
#include <string>

namespace orvane {

/// A table without headers and without editing in place. Its first column is fixed: the program can select a
/// cell there, but a click or key of the user always selects the cell in the second column of the row. The
/// change handler is called directly and not through a signal, so that its exceptions reach the caller.
class FlexGridWidget : public QTableWidget, public MSFlexGrid {
    Q_OBJECT

  public:
    explicit FlexGridWidget(QWidget* parent = nullptr);

    [[nodiscard]] std::int16_t Rows() const override { return static_cast<std::int16_t>(rowCount()); }
    void SetRows(std::int16_t rows) override;
    [[nodiscard]] std::int16_t Row() const override { return row_; }
    /// Throws an OutOfRange failure, and changes nothing, if the grid has no such row or column.
    void SetRow(std::int16_t row) override { SelectCell(row, col_); }
    [[nodiscard]] std::int16_t Col() const override { return col_; }
    void SetCol(std::int16_t col) override { SelectCell(row_, col); }
    [[nodiscard]] std::string Text() const override { return TextMatrix(row_, col_); }
    void SetText(const std::string& text) override;
    [[nodiscard]] std::string TextMatrix(std::int16_t row, std::int16_t col) const override;
    void OnRowColChange(std::function<void()> handler) override { rowColChange_ = std::move(handler); }

    /// The only handler of a click on the cells or on the area below them.
    void OnClick(std::function<void()> handler) { click_ = std::move(handler); }
    /// Events that the user causes run inside `guard`.
    /// Requires: `guard` does not throw.
    void RunUserEventsIn(std::function<void(const std::function<void()>&)> guard) {
        guard_ = std::move(guard);
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }

  private:
    void DrawPlainFrame();
    void SelectCell(std::int16_t row, std::int16_t col);
    void PickRow(int row);
    void ShowCurrentCell();
    void RequireCell(std::int16_t row, std::int16_t col) const;
    [[nodiscard]] int RowsOnAPage() const;

    std::int16_t row_ = 0;
    std::int16_t col_ = 1;
    bool pressed_ = false;
    std::function<void()> rowColChange_;
    std::function<void()> click_;
    std::function<void(const std::function<void()>&)> guard_ = [](const auto& event) { event(); };
};

} // namespace orvane
