#include "memory/memory_table.h"

#include <QKeyEvent>
#include <algorithm>

#include "memory/channel_delegate.h"
#include "ui/table_font.h"

namespace rqm5 {

MemoryTable::MemoryTable(const CloneImage& image, QWidget* parent)
    : ChannelTable({400, 1035, 480, 705, 555, 390, 675, 705, 540, 870, 2055}, parent), model_(image, nullptr)
{
    setObjectName(QStringLiteral("MSFlexGrid1"));
    setAccessibleName(tr("Memory channels"));
    setMouseTracking(true);  // the status bar names what is under the pointer
    ShowHint();
    setModel(&model_);
    setItemDelegate(new ChannelDelegate(model_, this));
    ChangeFont(*this);
}

void MemoryTable::UpDateMemData(int selector, RowFilter filter)
{
    const int row = CurrentTableRow();
    model_.ShowGroup(selector, filter);
    SelectTableRow(row);
    ShowHint();
}

int MemoryTable::MemoryRow(int tableRow) const
{
    return model_.Rows().at(static_cast<std::size_t>(tableRow - 1));
}

void MemoryTable::SelectMemoryRow(int memoryRow)
{
    const auto place = std::ranges::find(model_.Rows(), memoryRow);
    if (place != model_.Rows().end())
        SelectTableRow(static_cast<int>(place - model_.Rows().begin()) + 1);
    scrollTo(currentIndex());
}

void MemoryTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    ChannelTable::currentChanged(current, previous);
    ShowHint();
}

void MemoryTable::ShowHint()
{
    const int row = CurrentTableRow();
    const QString place = row > 0 ? model_.Place(row - 1) : QString();
    const QString hint = tr("Memory channels; grey ones are disabled. Enter or a double click edits one.");
    const QString shown = place.isEmpty() ? hint : place;
    if (shown == statusTip())
        return;
    setStatusTip(shown);
    emit HintChanged();
}

void MemoryTable::keyPressEvent(QKeyEvent* event)
{
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (isPlain && event->key() == Qt::Key_Insert)
        emit InsertPressed();
    else if (isPlain && event->key() == Qt::Key_Delete)
        emit DeletePressed();
    else
        ChannelTable::keyPressEvent(event);
}

}  // namespace rqm5
