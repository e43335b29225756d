// A table of text cells with a current cell.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace orvane {

/// Rows and columns count from 0. Selecting a cell other than the current one runs the change handler inside
/// the selecting step, and what it throws comes out of that step; selecting the current cell runs nothing.
class MSFlexGrid {
  public:
    virtual ~MSFlexGrid() = default;

    [[nodiscard]] virtual std::int16_t Rows() const = 0;
    /// Rows that fall away take their texts with them, rows that come are empty. A current cell that falls
    /// away moves to the last row, which is a selection.
    virtual void SetRows(std::int16_t rows) = 0;

    [[nodiscard]] virtual std::int16_t Row() const = 0;
    virtual void SetRow(std::int16_t row) = 0;
    [[nodiscard]] virtual std::int16_t Col() const = 0;
    virtual void SetCol(std::int16_t col) = 0;

    /// The text of the current cell.
    [[nodiscard]] virtual std::string Text() const = 0;
    virtual void SetText(const std::string& text) = 0;

    /// The text of a cell by its row and column, without selecting it.
    [[nodiscard]] virtual std::string TextMatrix(std::int16_t row, std::int16_t col) const = 0;

    /// The one change handler.
    virtual void OnRowColChange(std::function<void()> handler) = 0;
};

} // namespace orvane
