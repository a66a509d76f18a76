#include "memory/memory_table.h"

#include <QDrag>
#include <QDropEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

#include "language/language.h"
#include "memory/channel_delegate.h"
#include "memory/table_clipboard.h"
#include "ui/form_texts.h"
#include "ui/table_font.h"

namespace rqm5 {

MemoryTable::MemoryTable(const CloneImage& image, QWidget* parent)
    : ChannelTable({400, 1035, 480, 705, 555, 390, 675, 705, 540, 870, 2055}, parent),
      image_(image),
      model_(image, nullptr),
      cells_(new ChannelDelegate(image, model_, this))
{
    setObjectName(QStringLiteral("MSFlexGrid1"));
    setAccessibleName(Designed(QT_TR_NOOP("Memory channels")));
    setMouseTracking(true);  // the status bar names what is under the pointer
    ShowPlace();
    setModel(&model_);
    setItemDelegate(cells_);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(EditKeyPressed | AnyKeyPressed);
    setAcceptDrops(true);
    setDropIndicatorShown(false);  // it is as short as a cell
    setDragDropOverwriteMode(false);
    connect(cells_, &CellDelegate::Entered, this, &MemoryTable::LeaveCell);
    // At an edge the rows move along below what is held there.
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (drop_)
            viewport()->update();
    });
    connect(&Language::OfProgram(), &Language::Changed, this, &MemoryTable::ShowPlace);
    ChangeFont(*this);
}

void MemoryTable::UpDateMemData(int selector, RowFilter filter)
{
    Refresh(selector, filter);
    const QModelIndex current = currentIndex();
    if (current.isValid())
        selectionModel()->setCurrentIndex(current.siblingAtColumn(0), QItemSelectionModel::NoUpdate);
}

void MemoryTable::Refresh(int selector, RowFilter filter)
{
    // Another group keeps the place in the table. Of several rows it is the first: there the same rows begin.
    const std::vector<int> selected = SelectedTableRows();
    const std::vector<int> before = model_.Rows();
    const bool isSameGroup = selector == model_.Selector();
    const int row = selected.size() > 1 && !isSameGroup ? selected.front() : CurrentTableRow();
    const std::vector<int> selectedRows = SelectedRows();
    const int current = CurrentRow();
    const int column = currentIndex().column();
    model_.ShowGroup(selector, filter);
    // The current row itself may have been taken out of the selection.
    const bool isSelected = isSameGroup && before == model_.Rows() && currentIndex().isValid() &&
                            selectionModel()->hasSelection();
    if (isSameGroup && model_.IsFiltered() && !isSelected)
        SelectAgain(selectedRows, current, row, column);
    else if (!isSelected)
        SelectTableRow(row);
    ShowPlace();
}

/// After an edit that may have changed which rows a filter leaves: selects what is still shown of the rows
/// that were selected; when nothing is, the place in the table stays.
void MemoryTable::SelectAgain(const std::vector<int>& rows, int current, int tableRow, int column)
{
    if (!SelectRows(rows, column))
        SelectTableRow(tableRow);
    const int place = PlaceOf(current);
    const QModelIndex cell =
        place >= 0 ? model_.index(place, column) : currentIndex().siblingAtColumn(column);
    if (cell.isValid())
        selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
    scrollTo(cell);
}

/// The data row of a memory row, -1 when it is not shown.
int MemoryTable::PlaceOf(int memoryRow) const
{
    const auto place = std::ranges::lower_bound(model_.Rows(), memoryRow);
    const bool isShown = place != model_.Rows().end() && *place == memoryRow;
    return isShown ? static_cast<int>(place - model_.Rows().begin()) : -1;
}

void MemoryTable::SelectMemoryRow(int memoryRow)
{
    if (const int place = PlaceOf(memoryRow); place >= 0)
        SelectTableRow(place + 1);
    scrollTo(currentIndex());
}

void MemoryTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    ChannelTable::currentChanged(current, previous);
    ShowPlace();
}

void MemoryTable::ShowPlace()
{
    const int row = CurrentTableRow();
    const QString place = row > 0 ? model_.Place(row - 1) : QString();
    const QString hint = tr("Enter edits the rows, typing a cell");
    const QString shown = place.isEmpty() ? hint : place;
    if (shown == statusTip())
        return;
    setStatusTip(shown);
    emit HintChanged();
}

bool MemoryTable::SelectRows(const std::vector<int>& rows, int column)
{
    QItemSelection selection;
    QModelIndex first;
    for (const int row : rows) {
        const int place = PlaceOf(row);
        if (place < 0)
            continue;
        const QModelIndex cell = model_.index(place, column);
        selection.merge(QItemSelection(cell, cell), QItemSelectionModel::Select);
        if (!first.isValid())
            first = cell;
    }
    if (!first.isValid())
        return false;
    selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(first);
    return true;
}

std::vector<int> MemoryTable::SelectedRows() const
{
    std::vector<int> rows = SelectedTableRows();
    for (int& row : rows)
        row = model_.MemoryRow(row - 1);
    return rows;
}

int MemoryTable::CurrentRow() const
{
    return currentIndex().isValid() ? model_.MemoryRow(currentIndex().row()) : -1;
}

void MemoryTable::SetCellWriter(CellDelegate::Writer writer)
{
    cells_->SetWriter(std::move(writer));
}

void MemoryTable::LeaveCell(int rows, int columns)
{
    if (model_.rowCount() == 0)
        return;
    // When a filter has taken the row away, the one behind it stands there already.
    if (PlaceOf(cells_->EnteredRow()) < 0)
        rows = std::min(rows, 0);
    const int row = std::clamp(currentIndex().row() + rows, 0, model_.rowCount() - 1);
    const int column = std::clamp(currentIndex().column() + columns, 0, model_.columnCount() - 1);
    selectionModel()->setCurrentIndex(model_.index(row, column),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void MemoryTable::ShowHint(const QString& text)
{
    QToolTip::showText(viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()), text, this);
}

void MemoryTable::keyboardSearch(const QString& /*search*/)
{
    // What is typed belongs into the cell; where it cannot go there, it must not go to another row either.
    if (!currentIndex().isValid())
        return;
    const bool isEmpty = !image_.MemData(CurrentRow()).HasChannel();
    ShowHint(isEmpty ? tr("An empty row begins with its frequency") : tr("This model does not have it"));
}

void MemoryTable::keyPressEvent(QKeyEvent* event)
{
    // Keys that an open cell has no use for come here too.
    const bool isPlain =
        (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier && state() != EditingState;
    if (isPlain && event->key() == Qt::Key_Insert)
        emit InsertPressed();
    else if (isPlain && event->key() == Qt::Key_Delete)
        emit DeletePressed();
    else if (isPlain && event->key() == Qt::Key_Space)
        emit TogglePressed();
    else if (event->key() == Qt::Key_F2)
        QTableView::keyPressEvent(event);  // NOLINT(bugprone-parent-virtual-call): it opens the editor
    else
        ChannelTable::keyPressEvent(event);
}

void MemoryTable::mousePressEvent(QMouseEvent* event)
{
    // A drag moves rows that are selected already, and selects rows from any other on.
    const QModelIndex index = indexAt(event->position().toPoint());
    const bool isSelected = index.isValid() && selectionModel()->isRowSelected(index.row(), QModelIndex());
    setDragEnabled(isSelected && (event->modifiers() & Qt::ShiftModifier) == 0);
    ChannelTable::mousePressEvent(event);
}

void MemoryTable::startDrag(Qt::DropActions /*actions*/)
{
    const std::vector<int> rows = SelectedRows();
    if (rows.empty())
        return;
    // Another program asks for the data after the drop: Qt keeps the drag as long as that takes.
    auto* drag = new QDrag(this);
    drag->setMimeData(ClipOf(image_, rows));
    drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
}

bool MemoryTable::IsOwnMove(const QDropEvent& event) const
{
    return event.source() == this && (event.modifiers() & Qt::ControlModifier) == 0;
}

bool MemoryTable::CanTake(const QDropEvent& event) const
{
    // Rows that a filter hides would be moved or overwritten out of sight.
    if (model_.Rows().empty() || model_.IsFiltered())
        return false;
    // The view of all rows is no group in which rows could change their places.
    return IsOwnMove(event) ? model_.Selector() != kSelectAll : MayHoldChannels(*event.mimeData());
}

/// The memory row that rows are moved to before, or that a list is written from on.
int MemoryTable::RowOfDrop(const DropPlace& drop) const
{
    const QModelIndex index = indexAt(drop.position);
    const int end = model_.Rows().back() + (drop.isMove ? 1 : 0);
    if (!index.isValid())
        return end;
    const bool isBelow = drop.position.y() > visualRect(index).center().y();
    return std::min(end, model_.MemoryRow(index.row()) + (isBelow ? 1 : 0));
}

void MemoryTable::dragEnterEvent(QDragEnterEvent* event)
{
    ChannelTable::dragEnterEvent(event);
    event->setAccepted(CanTake(*event));
}

void MemoryTable::dragMoveEvent(QDragMoveEvent* event)
{
    ChannelTable::dragMoveEvent(event);
    event->setDropAction(IsOwnMove(*event) ? Qt::MoveAction : Qt::CopyAction);
    event->setAccepted(CanTake(*event));
    const DropPlace drop{event->position().toPoint(), IsOwnMove(*event)};
    ShowDropLine(event->isAccepted() ? std::optional(drop) : std::nullopt);
}

void MemoryTable::dragLeaveEvent(QDragLeaveEvent* event)
{
    ChannelTable::dragLeaveEvent(event);
    ShowDropLine(std::nullopt);
}

void MemoryTable::ShowDropLine(std::optional<DropPlace> drop)
{
    drop_ = drop;
    viewport()->update();
}

void MemoryTable::paintEvent(QPaintEvent* event)
{
    ChannelTable::paintEvent(event);
    if (!drop_ || model_.Rows().empty())
        return;
    constexpr int kThickness = 3;
    const int last = model_.rowCount() - 1;
    const int place = PlaceOf(RowOfDrop(*drop_));
    const int top = place >= 0 ? rowViewportPosition(place) : rowViewportPosition(last) + rowHeight(last);
    QPainter(viewport()).fillRect(0, std::max(0, top - 2), viewport()->width(), kThickness, palette().text());
}

void MemoryTable::dropEvent(QDropEvent* event)
{
    stopAutoScroll();
    setState(NoState);
    ShowDropLine(std::nullopt);
    if (!CanTake(*event)) {
        event->ignore();
        return;
    }
    const bool isMove = IsOwnMove(*event);
    const int row = RowOfDrop({event->position().toPoint(), isMove});
    event->setDropAction(isMove ? Qt::MoveAction : Qt::CopyAction);
    event->accept();
    if (isMove)
        emit RowsDragged(row);
    else
        emit Dropped(*event->mimeData(), row);
}

}  // namespace rqm5
