// A table of text cells with a current cell.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace orvane {

/// Rows and columns count from 0. SetRow and SetCol call the change handler before they return if the
/// current cell changes, and throw what the handler throws. They do not call it if the cell is already
/// current.
class MSFlexGrid {
  public:
    virtual ~MSFlexGrid() = default;

    [[nodiscard]] virtual std::int16_t Rows() const = 0;
    /// Removes rows with their texts, or adds empty rows. If the current cell is removed, the current cell
    /// moves to the last row, and the change handler is called.
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

    /// Sets the change handler; there is one, a later call replaces it.
    virtual void OnRowColChange(std::function<void()> handler) = 0;
};

} // namespace orvane
