// Plots as SVG: each routine gives one whole svg element that needs nothing from outside it, at most 640
// wide. Told apart by outline, dash and marker, never by colour, so that a black and white print shows all.
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

/// Bars from zero up. Where the labels of all bars find no room, every n-th is printed. `title` is what a
/// screen reader says of the plot. Requires: at least one bar.
std::string BarChart(const std::string& title, const std::string& xLabel, const std::string& yLabel,
                     const std::vector<Bar>& bars);

struct Series {
    std::string Name;
    std::vector<std::pair<double, double>> Points; ///< x and y, x rising
};

/// Lines through the points of up to six series, each with a dash and a marker of its own, and a legend when
/// there are several. Requires: at least one point in all.
std::string LineChart(const std::string& title, const std::string& xLabel, const std::string& yLabel,
                      const std::vector<Series>& series);

} // namespace orvane::validation
