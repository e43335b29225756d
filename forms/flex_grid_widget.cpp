#include "forms/flex_grid_widget.h"

#include "forms/qt_text.h"
#include "platform/failure.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

constexpr int FontPixels = 13;
constexpr int FixedColumnPixels = 64;
constexpr int CellMargin = 3;
/// Characters of a text that are measured and drawn. More do not fit into a cell and would take time.
constexpr int LongestShown = 500;
constexpr int LongestTip = 1000;
constexpr std::int16_t FixedColumn = 0;
constexpr std::int16_t PickedColumn = 1;

class CellPainter : public QStyledItemDelegate {
  public:
    explicit CellPainter(FlexGridWidget& grid) : QStyledItemDelegate(&grid), grid_(grid) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const auto [background, foreground] = Colours(option.palette, index);
        const QString text = index.data().toString().left(LongestShown);
        const QRect inside = Inside(option.rect);
        painter->save();
        painter->fillRect(option.rect, background);
        painter->setPen(Qt::lightGray);
        painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
        painter->drawLine(option.rect.topRight(), option.rect.bottomRight());
        painter->setPen(foreground);
        painter->setFont(option.font);
        painter->drawText(inside, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                          option.fontMetrics.elidedText(text, Qt::ElideRight, inside.width()));
        painter->restore();
    }

    /// Shows the whole text as a tool tip if the cell shows only its start.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
        if (event->type() != QEvent::ToolTip)
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        const QString text = index.data().toString();
        const bool shownInFull = text.size() <= LongestShown &&
                                 view->fontMetrics().horizontalAdvance(text) <= Inside(option.rect).width();
        QToolTip::showText(event->globalPos(), shownInFull ? QString() : Plain(text), view);
        return true;
    }

  private:
    static QRect Inside(const QRect& cell) { return cell.adjusted(CellMargin, 0, -CellMargin - 1, -1); }
    /// Escaped, because a tool tip would interpret tags in the text as HTML.
    static QString Plain(const QString& text) {
        return QStringLiteral("<p>%1</p>").arg(text.left(LongestTip).toHtmlEscaped());
    }

    struct CellColours {
        QColor background;
        QColor foreground;
    };
    [[nodiscard]] CellColours Colours(const QPalette& palette, const QModelIndex& index) const {
        if (index.row() == grid_.Row() && index.column() == grid_.Col())
            return {Qt::red, palette.color(QPalette::Active, QPalette::HighlightedText)};
        if (index.column() == FixedColumn)
            return {palette.color(QPalette::Active, QPalette::Button),
                    palette.color(QPalette::Active, QPalette::ButtonText)};
        return {palette.color(QPalette::Active, QPalette::Base),
                palette.color(QPalette::Active, QPalette::Text)};
    }

    const FlexGridWidget& grid_;
};

} // namespace

FlexGridWidget::FlexGridWidget(QWidget* parent) : QTableWidget(parent) {
    QFont cells("Arial");
    cells.setPixelSize(FontPixels);
    setFont(cells);
    setItemDelegate(new CellPainter(*this));
    // The style's own frame loses its top and bottom lines on screens with a fractional scale factor.
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, colours.color(QPalette::Dark));
    setPalette(colours);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    viewport()->setBackgroundRole(QPalette::Button);
    setShowGrid(false);
    setWordWrap(false);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setTabKeyNavigation(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    horizontalHeader()->hide();
    horizontalHeader()->setDefaultSectionSize(FixedColumnPixels);
    horizontalHeader()->setStretchLastSection(true);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 2);
}

void FlexGridWidget::SetRows(std::int16_t rows) {
    if (rows < 1)
        throw Failure("A grid cannot have " + std::to_string(rows) + " rows", failure_number::OutOfRange,
                      "SetRows");
    const int before = rowCount();
    setRowCount(rows);
    // Assistive programs read these row headers. The default ones give row 0 the number 1.
    for (int row = before; row < rows; ++row)
        setVerticalHeaderItem(row, new QTableWidgetItem(QString::number(row)));
    if (row_ >= rows)
        SelectCell(static_cast<std::int16_t>(rows - 1), col_);
    else
        ShowCurrentCell();
}

void FlexGridWidget::SetText(const std::string& text) {
    RequireCell(row_, col_);
    if (item(row_, col_) == nullptr)
        setItem(row_, col_, new QTableWidgetItem);
    item(row_, col_)->setText(ToQString(text));
}

std::string FlexGridWidget::TextMatrix(std::int16_t row, std::int16_t col) const {
    RequireCell(row, col);
    const QTableWidgetItem* cell = item(row, col);
    return cell == nullptr ? std::string() : cell->text().toStdString();
}

void FlexGridWidget::SelectCell(std::int16_t row, std::int16_t col) {
    RequireCell(row, col);
    if (row == row_ && col == col_)
        return;
    row_ = row;
    col_ = col;
    ShowCurrentCell();
    Q_EMIT RowColChange();
}

void FlexGridWidget::PickRow(int row) {
    const int nearest = std::clamp(row, 0, rowCount() - 1);
    SelectCell(static_cast<std::int16_t>(nearest), PickedColumn);
}

void FlexGridWidget::ShowCurrentCell() {
    setCurrentCell(row_, col_, QItemSelectionModel::NoUpdate);
    scrollTo(model()->index(row_, col_));
    viewport()->update();
}

void FlexGridWidget::RequireCell(std::int16_t row, std::int16_t col) const {
    if (!model()->hasIndex(row, col))
        throw Failure("The grid has no cell in row " + std::to_string(row) + ", column " +
                          std::to_string(col),
                      failure_number::OutOfRange, "FlexGridWidget");
}

int FlexGridWidget::RowsOnAPage() const {
    return viewport()->height() / verticalHeader()->defaultSectionSize();
}

void FlexGridWidget::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
        return PickRow(row_ - 1);
    case Qt::Key_Down:
        return PickRow(row_ + 1);
    case Qt::Key_Left:
    case Qt::Key_Right:
        return PickRow(row_);
    case Qt::Key_PageUp:
        return PickRow(row_ - RowsOnAPage());
    case Qt::Key_PageDown:
        return PickRow(row_ + RowsOnAPage());
    case Qt::Key_Home:
        return PickRow(0);
    case Qt::Key_End:
        return PickRow(rowCount());
    default:
        event->ignore();
    }
}

void FlexGridWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    pressed_ = true;
    const int row = rowAt(event->position().toPoint().y());
    const bool belowTheRows = row < 0;
    if (!belowTheRows)
        PickRow(row);
}

void FlexGridWidget::mouseMoveEvent(QMouseEvent* /*event*/) {
    // Dragging the mouse does not select rows.
}

void FlexGridWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !std::exchange(pressed_, false))
        return;
    if (viewport()->rect().contains(event->position().toPoint()))
        Q_EMIT Click();
}

} // namespace orvane
