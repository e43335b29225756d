// The grid on the screen.
#pragma once

#include "platform/ms_flex_grid.h"

#include <QTableWidget>

#include <cstdint>
#include <string>

namespace orvane {

/// A table without headers and without editing in place. Its first column is fixed: the program can select a
/// cell there, but a click or key of the user always selects the cell in the second column of the row.
class FlexGridWidget : public QTableWidget, public MSFlexGrid {
    Q_OBJECT

  public:
    explicit FlexGridWidget(QWidget* parent = nullptr);

    void SetRows(std::int16_t rows) override;
    [[nodiscard]] std::int16_t Row() const override { return row_; }
    /// Throws an OutOfRange failure, and changes nothing, if the grid has no such row or column.
    void SetRow(std::int16_t row) override { SelectCell(row, col_); }
    [[nodiscard]] std::int16_t Col() const override { return col_; }
    void SetCol(std::int16_t col) override { SelectCell(row_, col); }
    [[nodiscard]] std::string Text() const override { return TextMatrix(row_, col_); }
    void SetText(const std::string& text) override;
    [[nodiscard]] std::string TextMatrix(std::int16_t row, std::int16_t col) const override;

  Q_SIGNALS:
    /// Another cell has become the current one.
    void RowColChange();
    /// The user has clicked the cells or the area below them.
    void Click();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }

  private:
    void SelectCell(std::int16_t row, std::int16_t col);
    void PickRow(int row);
    void ShowCurrentCell();
    void RequireCell(std::int16_t row, std::int16_t col) const;
    [[nodiscard]] int RowsOnAPage() const;

    std::int16_t row_ = 0;
    std::int16_t col_ = 1;
    bool pressed_ = false;
};

} // namespace orvane
