#include "memory/memory_table.h"

#include <QKeyEvent>
#include <QStyledItemDelegate>

#include "ui/table_font.h"

namespace rqm5 {
namespace {

/// Two parts of the text's colour to one of its ground: paler than a text that is on, still to be read.
QColor Paler(const QColor& text, const QColor& ground)
{
    const auto mix = [](int a, int b) { return (2 * a + b) / 3; };
    return QColor(mix(text.red(), ground.red()), mix(text.green(), ground.green()),
                  mix(text.blue(), ground.blue()));
}

/// Lets a disabled row look disabled while it is selected too: the selection has a text colour of its own,
/// and the row that was just switched off is the selected one.
class ChannelDelegate : public QStyledItemDelegate
{
  public:
    ChannelDelegate(const MemoryTableModel& model, QObject* parent)
        : QStyledItemDelegate(parent), model_(model)
    {
    }

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (model_.IsEnabled(index.row()))
            return;
        const QColor text = option->palette.color(QPalette::HighlightedText);
        const QColor ground = option->palette.color(QPalette::Highlight);
        option->palette.setColor(QPalette::HighlightedText, Paler(text, ground));
    }

  private:
    const MemoryTableModel& model_;
};

}  // namespace

MemoryTable::MemoryTable(const CloneImage& image, QWidget* parent)
    : ChannelTable({400, 1035, 480, 705, 555, 390, 675, 705, 540, 870, 2055}, parent), model_(image, nullptr)
{
    setObjectName(QStringLiteral("MSFlexGrid1"));
    setAccessibleName(tr("Memory channels"));
    setStatusTip(tr("Memory channels; grey ones are disabled. Enter or a double click edits one."));
    setModel(&model_);
    setItemDelegate(new ChannelDelegate(model_, this));
    ChangeFont(*this);
}

void MemoryTable::UpDateMemData(int selector)
{
    const int row = CurrentTableRow();
    model_.ShowGroup(selector);
    SelectTableRow(row);
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
