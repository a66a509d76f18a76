#include "ui/channel_table.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>

#include "ui/column_widths.h"

namespace rqm5 {
namespace {

constexpr int kNoteColumn = ChannelTable::kColumns - 1;

/// The longest text that a column is made for; the note takes what is left.
constexpr std::array<const char*, ChannelTable::kColumns> kLongestText = {
    "1299.995000", "WFM", "12.5KHz", "Carrier", "16", "3000Hz", "100.0Hz", "+Shift", "99.999999", ""};

}  // namespace

ChannelTable::ChannelTable(const std::array<int, kColumns + 1>& twips, QWidget* parent)
    : QTableView(parent), twips_(twips), widths_(new ColumnWidths(*horizontalHeader(), kColumns))
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(this, &QTableView::doubleClicked, this,
            [this](const QModelIndex& index) { emit RowChosen(index.row() + 1); });
    connect(widths_, &ColumnWidths::Forgotten, this, &ChannelTable::FitToFont);
    connect(widths_, &ColumnWidths::UserResized, this, [this](int column) {
        if (column != kNoteColumn)
            StretchNote();
    });
}

int ChannelTable::CurrentTableRow() const
{
    return currentIndex().isValid() ? currentIndex().row() + 1 : 0;
}

void ChannelTable::SelectTableRow(int tableRow)
{
    const int rows = model()->rowCount();
    if (rows == 0)
        return;
    const int row = std::clamp(tableRow, 1, rows) - 1;
    selectionModel()->setCurrentIndex(model()->index(row, 0),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

std::vector<int> ChannelTable::SelectedTableRows() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row + 1);
    std::ranges::sort(rows);
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void ChannelTable::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const bool isChoice = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_F2;
    if (isChoice && CurrentTableRow() > 0)
        emit RowChosen(CurrentTableRow());
    else
        QTableView::keyPressEvent(event);
}

void ChannelTable::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    switch (event->type()) {
        case QEvent::FontChange:
        case QEvent::StyleChange:
        case QEvent::LanguageChange:  // the titles are other ones
            return FitToFont();
        default:
            return;
    }
}

void ChannelTable::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    StretchNote();
}

void ChannelTable::showEvent(QShowEvent* event)
{
    widths_->Load();
    FitToFont();
    QTableView::showEvent(event);
}

int ChannelTable::Pixels(int twips) const
{
    return (twips * logicalDpiX() + 1439) / 1440;
}

int ChannelTable::ColumnWidth(int column) const
{
    if (const int dragged = widths_->Dragged(column); dragged > 0)
        return dragged;
    constexpr int kCellMargins = 10;
    const auto index = static_cast<std::size_t>(column);
    const int text = fontMetrics().horizontalAdvance(QLatin1String(kLongestText[index])) + kCellMargins;
    const int title = horizontalHeader()->sectionSizeHint(column);
    return std::max({Pixels(twips_[index + 1]), text, title});
}

void ChannelTable::FitToFont()
{
    if (model() == nullptr)
        return;
    // Rows are as far apart as in other lists of the desktop, however small the table's font looks.
    const int text = std::max(fontMetrics().height(), QFontMetrics(QApplication::font()).height());
    verticalHeader()->setDefaultSectionSize(text + 6);
    verticalHeader()->setMinimumWidth(Pixels(twips_[0]));
    for (int column = 0; column < kNoteColumn; ++column)
        SetWidth(column, ColumnWidth(column));
    constexpr int kRowsInSight = 6;
    setMinimumHeight(horizontalHeader()->sizeHint().height() +
                     kRowsInSight * verticalHeader()->defaultSectionSize() + 2 * frameWidth());
    StretchNote();
}

void ChannelTable::StretchNote()
{
    if (model() == nullptr)
        return;
    const int left = viewport()->width() - horizontalHeader()->sectionPosition(kNoteColumn);
    const int usual = ColumnWidth(kNoteColumn);
    // Half of its usual width is enough to have the note in sight without scrolling.
    const int least = widths_->Dragged(kNoteColumn) > 0 ? usual : usual / 2;
    SetWidth(kNoteColumn, left >= least ? left : usual);
}

void ChannelTable::SetWidth(int column, int width)
{
    widths_->SetFitting(true);
    setColumnWidth(column, width);
    widths_->SetFitting(false);
}

}  // namespace rqm5
