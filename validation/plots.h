// Plots as SVG. Each routine returns one complete, self-contained svg element, at most 640 units wide. Series
// differ by outline, dash and marker, never by colour alone, so that they can be distinguished in black and
// white.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace orvane::validation {

struct Bar {
    std::string Label;
    double Value = 0;               ///< 0 or above
    std::optional<double> Expected; ///< 0 or above; drawn as a heavy line across the bar
};

/// A bar chart; the axis starts at 0. If there is no room for the labels of all bars, only every n-th is
/// printed. Screen readers read `title`.
/// Requires: at least one bar.
std::string BarChart(const std::string& title, const std::string& xLabel, const std::string& yLabel,
                     const std::vector<Bar>& bars);

struct Series {
    std::string Name;
    std::vector<std::pair<double, double>> Points; ///< x and y, sorted by x
};

/// A line chart of up to six series, each with its own dash and marker, with a legend if there are several
/// series.
/// Requires: at least one point in total.
std::string LineChart(const std::string& title, const std::string& xLabel, const std::string& yLabel,
                      const std::vector<Series>& series);

} // namespace orvane::validation
