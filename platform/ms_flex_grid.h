// A table of text cells with a current cell.
#pragma once

#include <cstdint>
#include <string>

namespace orvane {

/// Rows and columns count from 0. When the current cell changes, the change handler of the grid has run
/// before the operation returns; it does not run if the cell is already current.
class MSFlexGrid {
  public:
    virtual ~MSFlexGrid() = default;

    /// Removes rows with their texts, or adds empty rows. If the current cell is removed, the current cell
    /// moves to the last row.
    virtual void SetRows(std::int16_t rows) = 0;

    [[nodiscard]] virtual std::int16_t Row() const = 0;
    virtual void SetRow(std::int16_t row) = 0;
    [[nodiscard]] virtual std::int16_t Col() const = 0;
    virtual void SetCol(std::int16_t col) = 0;

    /// The text of the current cell.
    [[nodiscard]] virtual std::string Text() const = 0;
    virtual void SetText(const std::string& text) = 0;

    /// The text of any cell. The current cell stays the same.
    [[nodiscard]] virtual std::string TextMatrix(std::int16_t row, std::int16_t col) const = 0;
};

} // namespace orvane
