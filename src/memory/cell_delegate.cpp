#include "memory/cell_delegate.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>

#include "ui/key_filter.h"

namespace rqm5 {
namespace {

constexpr int kNumberLength = 20;
constexpr int kNoteLength = 255;

QComboBox* MakeList(const CellEdit& edit, QWidget* parent)
{
    auto* list = new QComboBox(parent);
    list->setObjectName(QStringLiteral("cbbCell"));
    for (const CellChoice& choice : edit.choices)
        list->addItem(QString::fromStdString(choice.text), choice.value);
    return list;
}

QLineEdit* MakeBox(const CellEdit& edit, QWidget* parent)
{
    auto* box = new QLineEdit(parent);
    box->setObjectName(QStringLiteral("txtCell"));
    box->setFrame(false);
    if (edit.kind == CellKind::Number) {
        box->setMaxLength(kNumberLength);
        new KeyFilter(*box, KeySet::Decimal);
    } else {
        // A note from a file may be longer than what may be typed; it must not lose its end here.
        box->setMaxLength(std::max(kNoteLength, static_cast<int>(edit.text.size())));
    }
    return box;
}

}  // namespace

CellDelegate::CellDelegate(const CloneImage& image, const MemoryTableModel& model, QObject* parent)
    : QStyledItemDelegate(parent), image_(image), model_(model)
{
}

CellEdit CellDelegate::EditOf(const QModelIndex& index) const
{
    return EditorOfCell(image_, model_.MemoryRow(index.row()), static_cast<Column>(index.column()));
}

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                    const QModelIndex& index) const
{
    const CellEdit edit = EditOf(index);
    if (edit.kind == CellKind::Fixed)
        return nullptr;
    QWidget* editor = edit.kind == CellKind::Choice ? static_cast<QWidget*>(MakeList(edit, parent))
                                                    : static_cast<QWidget*>(MakeBox(edit, parent));
    editor->setAccessibleName(model_.headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString());
    editor->setAutoFillBackground(true);
    return editor;
}

void CellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const CellEdit edit = EditOf(index);
    if (auto* list = qobject_cast<QComboBox*>(editor))
        list->setCurrentIndex(list->findData(edit.value));
    else if (auto* box = qobject_cast<QLineEdit*>(editor))
        box->setText(QString::fromStdString(edit.text));
}

void CellDelegate::setModelData(QWidget* editor, QAbstractItemModel* /*model*/,
                                const QModelIndex& index) const
{
    const CellEdit before = EditOf(index);
    enteredRow_ = model_.MemoryRow(index.row());
    CellInput input;
    bool isSame = true;
    if (const auto* list = qobject_cast<QComboBox*>(editor)) {
        input.choice = list->currentData().toInt();
        isSame = input.choice == before.value;
    } else if (const auto* box = qobject_cast<QLineEdit*>(editor)) {
        input.text = box->text().toStdString();
        isSame = input.text == before.text;
    }
    // A cell that was only looked at is no edit.
    isRefused_ = !isSame && before.kind != CellKind::Fixed && writer_ &&
                 !writer_(model_.MemoryRow(index.row()), static_cast<Column>(index.column()), input);
}

void CellDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex& /*index*/) const
{
    // A list needs room for its arrow, a small cell or not.
    QRect place = option.rect;
    if (qobject_cast<QComboBox*>(editor) != nullptr)
        place.setWidth(std::max(place.width(), editor->sizeHint().width()));
    editor->setGeometry(place);
}

void CellDelegate::Commit(QWidget* editor, int rows, int columns)
{
    isRefused_ = false;
    emit commitData(editor);
    // A table that has lost rows to a filter has closed it already.
    if (!editor->isHidden())
        emit closeEditor(editor, NoHint);
    if (!isRefused_)
        emit Entered(rows, columns);
}

bool CellDelegate::eventFilter(QObject* object, QEvent* event)
{
    auto* editor = qobject_cast<QWidget*>(object);
    if (editor == nullptr || event->type() != QEvent::KeyPress)
        return QStyledItemDelegate::eventFilter(object, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            Commit(editor, 1, 0);
            return true;
        case Qt::Key_Tab:
            Commit(editor, 0, 1);
            return true;
        case Qt::Key_Backtab:
            Commit(editor, 0, -1);
            return true;
        default:
            return QStyledItemDelegate::eventFilter(object, event);
    }
}

}  // namespace rqm5
