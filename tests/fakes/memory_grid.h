// A grid without a window.
#pragma once

#include "platform/ms_flex_grid.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace orvane::fakes {

/// Two columns; row 0 and the rows of the groups.
class MemoryGrid : public MSFlexGrid {
  public:
    explicit MemoryGrid(const std::vector<std::string>& names = {"Group 1", "Group 2"}) { Name(names); }

    /// One row for each name, numbered, the current cell untouched.
    void Name(const std::vector<std::string>& names) {
        cells_.assign(names.size() + 1, {});
        for (std::size_t g = 1; g <= names.size(); ++g)
            cells_[g] = {std::to_string(g), names[g - 1]};
    }
    /// The names of all groups.
    [[nodiscard]] std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (std::size_t g = 1; g < cells_.size(); ++g)
            names.push_back(cells_[g][1]);
        return names;
    }

    [[nodiscard]] std::int16_t Rows() const override { return static_cast<std::int16_t>(cells_.size()); }
    void SetRows(std::int16_t rows) override {
        cells_.resize(static_cast<std::size_t>(rows));
        if (row_ >= rows)
            Select(static_cast<std::int16_t>(rows - 1), col_);
    }
    [[nodiscard]] std::int16_t Row() const override { return row_; }
    void SetRow(std::int16_t row) override { Select(row, col_); }
    [[nodiscard]] std::int16_t Col() const override { return col_; }
    void SetCol(std::int16_t col) override { Select(row_, col); }
    [[nodiscard]] std::string Text() const override { return TextMatrix(row_, col_); }
    void SetText(const std::string& text) override {
        cells_.at(static_cast<std::size_t>(row_)).at(static_cast<std::size_t>(col_)) = text;
    }
    [[nodiscard]] std::string TextMatrix(std::int16_t row, std::int16_t col) const override {
        return cells_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(col));
    }
    void OnRowColChange(std::function<void()> handler) override { handler_ = std::move(handler); }

  private:
    void Select(std::int16_t row, std::int16_t col) {
        if (row == row_ && col == col_)
            return;
        row_ = row;
        col_ = col;
        if (handler_)
            handler_();
    }

    std::vector<std::array<std::string, 2>> cells_;
    std::int16_t row_ = 0;
    std::int16_t col_ = 1;
    std::function<void()> handler_;
};

} // namespace orvane::fakes
