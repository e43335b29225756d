#include "validation/plots.h"

#include "validation/figures.h"
#include "validation/html_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

namespace orvane::validation {
namespace {

// Units of the view box. A capital letter of the labels is about 7 wide.
constexpr double Width = 640;
constexpr double Left = 84;
constexpr double Right = 628;
constexpr double Top = 30;
constexpr double PlotHeight = 190;
constexpr double Bottom = Top + PlotHeight;
constexpr double CharacterWidth = 7;

std::string At(const char* name, double value) {
    return std::string(" ") + name + "='" + Fixed(value, 1) + "'";
}

/// The scale of an axis and its tick marks.
struct Scaling {
    double Low = 0;
    double High = 1;
    double Step = 1;

    [[nodiscard]] std::vector<double> Ticks() const {
        std::vector<double> ticks;
        for (int i = 0; Low + i * Step < High + Step / 2; ++i)
            ticks.push_back(Low + i * Step);
        return ticks;
    }
    [[nodiscard]] std::string Text(double tick) const {
        if (Step >= 1)
            return Grouped(std::llround(tick));
        const int decimals = static_cast<int>(std::ceil(-std::log10(Step) - 1e-9));
        return Fixed(tick, decimals);
    }
};

/// A scale that covers `low` to `high` in about five steps of 1, 2 or 5 times a power of ten.
Scaling RoundScaling(double low, double high) {
    if (high - low < 1e-12)
        high = low + 1;
    const double rough = (high - low) / 5;
    const double power = std::pow(10, std::floor(std::log10(rough)));
    double step = 10 * power;
    for (const double factor : {5.0, 2.0, 1.0})
        if (factor * power >= rough * 0.999)
            step = factor * power;
    return {std::floor(low / step + 1e-9) * step, std::ceil(high / step - 1e-9) * step, step};
}

class Drawing {
  public:
    void Line(double x1, double y1, double x2, double y2, double width, const std::string& more = "") {
        body_ += "<line" + At("x1", x1) + At("y1", y1) + At("x2", x2) + At("y2", y2) +
                 " stroke='#000' stroke-width='" + Fixed(width, 1) + "'" + more + "/>\n";
    }
    void Text(double x, double y, const std::string& anchor, const std::string& text,
              const std::string& more = "") {
        body_ += "<text" + At("x", x) + At("y", y) + " text-anchor='" + anchor + "'" + more + '>' +
                 Escaped(text) + "</text>\n";
    }
    void Add(const std::string& element) { body_ += element + '\n'; }

    [[nodiscard]] std::string Svg(const std::string& title, double height) const {
        const std::string size = Fixed(Width, 0) + ' ' + Fixed(height, 0);
        return "<svg xmlns='http://www.w3.org/2000/svg' role='img' viewBox='0 0 " + size +
               "' width='640' height='" + Fixed(height, 0) +
               "' style='max-width:100%;height:auto;font:11px sans-serif;fill:#000'>\n<title>" +
               Escaped(title) + "</title>\n" + body_ + "</svg>\n";
    }

  private:
    std::string body_;
};

double OnAxis(const Scaling& scaling, double value, double from, double to) {
    return from + (value - scaling.Low) / (scaling.High - scaling.Low) * (to - from);
}

void DrawVerticalAxis(Drawing& drawing, const Scaling& scaling, const std::string& label) {
    for (const double tick : scaling.Ticks()) {
        const double y = OnAxis(scaling, tick, Bottom, Top);
        drawing.Add("<line" + At("x1", Left) + At("y1", y) + At("x2", Right) + At("y2", y) +
                    " stroke='#ccc' stroke-width='0.7'/>");
        drawing.Text(Left - 6, y + 4, "end", scaling.Text(tick));
    }
    const double middle = (Top + Bottom) / 2;
    drawing.Text(14, middle, "middle", label, " transform='rotate(-90 14 " + Fixed(middle, 1) + ")'");
}

void DrawFrame(Drawing& drawing) {
    drawing.Line(Left, Top, Left, Bottom, 1);
    drawing.Line(Left, Bottom, Right, Bottom, 1);
}

/// Draws the labels under the bars and returns their height.
double DrawBarLabels(Drawing& drawing, const std::vector<Bar>& bars) {
    std::size_t longest = 1;
    for (const Bar& bar : bars)
        longest = std::max(longest, bar.Label.size());
    const double slot = (Right - Left) / static_cast<double>(bars.size());
    const double labelWidth = static_cast<double>(longest) * CharacterWidth + 12;
    const bool slanted = labelWidth > slot && slot >= 16;
    const double room = slanted ? slot : labelWidth;
    const auto every = static_cast<std::size_t>(std::max(1.0, std::ceil(room / slot - 1e-9)));
    for (std::size_t i = 0; i < bars.size(); i += every) {
        const double x = Left + (static_cast<double>(i) + 0.5) * slot;
        const double y = Bottom + 14;
        if (slanted)
            drawing.Text(x + 4, y, "end", bars[i].Label,
                         " transform='rotate(-40" + (' ' + Fixed(x + 4, 1)) + ' ' + Fixed(y, 1) + ")'");
        else
            drawing.Text(x, y, "middle", bars[i].Label);
    }
    return slanted ? 14 + labelWidth * 0.65 : 16;
}

/// A heavy line across the slot of a bar, with a white edge so that it is visible on the bar too.
void DrawExpected(Drawing& drawing, double x1, double x2, double y) {
    drawing.Add("<line" + At("x1", x1) + At("y1", y) + At("x2", x2) + At("y2", y) +
                " stroke='#fff' stroke-width='3.4'/>");
    drawing.Line(x1, y, x2, y, 1.8);
}

void DrawBarLegend(Drawing& drawing) {
    drawing.Add("<rect x='" + Fixed(Right - 190, 1) +
                "' y='8' width='12' height='10' fill='#bbb' stroke='#000' stroke-width='0.7'/>");
    drawing.Text(Right - 173, 17, "start", "observed");
    drawing.Line(Right - 92, 13, Right - 70, 13, 1.8);
    drawing.Text(Right - 64, 17, "start", "expected");
}

constexpr std::size_t Kinds = 6;
constexpr std::array<const char*, Kinds> Dashes{"", "6 3", "2 3", "8 3 2 3", "12 4", "4 2 1 2 1 2"};

/// Draws a filled or open circle, square or triangle.
void DrawMarker(Drawing& drawing, std::size_t kind, double x, double y) {
    const std::string fill = kind % 2 == 0 ? "#000" : "#fff";
    const std::string paint = " fill='" + fill + "' stroke='#000'/>";
    if (kind / 2 % 3 == 0)
        drawing.Add("<circle" + At("cx", x) + At("cy", y) + " r='3.5'" + paint);
    else if (kind / 2 % 3 == 1)
        drawing.Add("<rect" + At("x", x - 3.2) + At("y", y - 3.2) + " width='6.4' height='6.4'" + paint);
    else
        drawing.Add("<path d='M" + Fixed(x, 1) + ' ' + Fixed(y - 4, 1) + " l4 7.5 h-8 z'" + paint);
}

std::string DashOf(std::size_t kind) {
    const std::string dash = Dashes.at(kind % Kinds);
    return dash.empty() ? "" : " stroke-dasharray='" + dash + "'";
}

/// Draws the legend below the plot, one entry a line, and returns its height.
double DrawLegend(Drawing& drawing, const std::vector<Series>& series, double top) {
    constexpr double line = 17;
    for (std::size_t kind = 0; kind < series.size(); ++kind) {
        const double y = top + line * (static_cast<double>(kind) + 0.5);
        drawing.Line(Left, y, Left + 44, y, 1.4, DashOf(kind));
        DrawMarker(drawing, kind % Kinds, Left + 22, y);
        drawing.Text(Left + 52, y + 4, "start", series[kind].Name);
    }
    return line * static_cast<double>(series.size());
}

/// A scale from the lowest to the highest value, or from 0 if that wastes less than half of the plot.
Scaling ScalingOf(const std::vector<Series>& series, bool vertical) {
    double low = std::numeric_limits<double>::max();
    double high = std::numeric_limits<double>::lowest();
    for (const Series& line : series)
        for (const auto& [x, y] : line.Points) {
            low = std::min(low, vertical ? y : x);
            high = std::max(high, vertical ? y : x);
        }
    if (low > high)
        low = high = 0;
    if (low > 0 && low < high / 2)
        low = 0;
    return RoundScaling(low, high);
}

void DrawSeries(Drawing& drawing, const Series& line, std::size_t kind, const Scaling& across,
                const Scaling& up) {
    std::string points;
    for (const auto& [x, y] : line.Points)
        points += Fixed(OnAxis(across, x, Left, Right), 1) + ',' + Fixed(OnAxis(up, y, Bottom, Top), 1) + ' ';
    drawing.Add("<polyline fill='none' stroke='#000' stroke-width='1.4' points='" + points + "'" +
                DashOf(kind) + "/>");
    // With many points, a marker at each would hide the curve.
    const std::size_t every = 1 + line.Points.size() / 25;
    for (std::size_t i = 0; i < line.Points.size(); i += every)
        DrawMarker(drawing, kind % Kinds, OnAxis(across, line.Points[i].first, Left, Right),
                   OnAxis(up, line.Points[i].second, Bottom, Top));
}

} // namespace

std::string BarChart(const std::string& title, const std::string& xLabel, const std::string& yLabel,
                     const std::vector<Bar>& bars) {
    double highest = 0;
    bool isExpected = false;
    for (const Bar& bar : bars) {
        highest = std::max({highest, bar.Value, bar.Expected.value_or(0)});
        isExpected = isExpected || bar.Expected.has_value();
    }
    const Scaling up = RoundScaling(0, highest);
    Drawing drawing;
    DrawVerticalAxis(drawing, up, yLabel);
    const double slot = (Right - Left) / static_cast<double>(bars.size());
    // With outlines, many narrow bars would look like one black area.
    const std::string paint = slot < 8 ? " fill='#999'/>" : " fill='#bbb' stroke='#000' stroke-width='0.7'/>";
    for (std::size_t i = 0; i < bars.size(); ++i) {
        const double left = Left + static_cast<double>(i) * slot;
        const double top = OnAxis(up, bars[i].Value, Bottom, Top);
        const double gap = std::min(slot * 0.15, 14.0);
        drawing.Add("<rect" + At("x", left + gap) + At("y", top) + At("width", slot - 2 * gap) +
                    At("height", Bottom - top) + paint);
        if (bars[i].Expected)
            DrawExpected(drawing, left, left + slot, OnAxis(up, *bars[i].Expected, Bottom, Top));
    }
    DrawFrame(drawing);
    if (isExpected)
        DrawBarLegend(drawing);
    const double below = Bottom + DrawBarLabels(drawing, bars) + 16;
    drawing.Text((Left + Right) / 2, below, "middle", xLabel);
    return drawing.Svg(title, below + 8);
}

std::string LineChart(const std::string& title, const std::string& xLabel, const std::string& yLabel,
                      const std::vector<Series>& series) {
    const Scaling across = ScalingOf(series, false);
    const Scaling up = ScalingOf(series, true);
    Drawing drawing;
    DrawVerticalAxis(drawing, up, yLabel);
    for (const double tick : across.Ticks()) {
        const double x = OnAxis(across, tick, Left, Right);
        drawing.Line(x, Bottom, x, Bottom + 4, 1);
        drawing.Text(x, Bottom + 16, "middle", across.Text(tick));
    }
    for (std::size_t kind = 0; kind < series.size(); ++kind)
        DrawSeries(drawing, series[kind], kind, across, up);
    DrawFrame(drawing);
    double below = Bottom + 32;
    drawing.Text((Left + Right) / 2, below, "middle", xLabel);
    if (series.size() > 1)
        below += 6 + DrawLegend(drawing, series, below + 6);
    return drawing.Svg(title, below + 8);
}

} // namespace orvane::validation
