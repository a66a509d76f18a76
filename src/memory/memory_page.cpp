#include "memory/memory_page.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "memory/channel_operations.h"
#include "memory/memory_table.h"
#include "memory/row_names.h"
#include "ui/table_font.h"
#include "ui/tall_area.h"

namespace rqm5 {

struct MemoryPage::Operation
{
    const char* name;
    const char* caption;
    const char* tip;
    void (MemoryPage::*run)();
};

MemoryPage::MemoryPage(CloneImage& image, Dialogs& dialogs, QWidget* parent)
    : QWidget(parent),
      image_(image),
      dialogs_(dialogs),
      cbbBank_(new QComboBox(this)),
      table_(new MemoryTable(image, this))
{
    auto* middle = new QHBoxLayout;
    middle->addWidget(table_, 1);
    auto* operations = new TallArea(BuildOperations(), this);
    operations->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    middle->addWidget(operations);
    auto* page = new QVBoxLayout(this);
    page->addLayout(BuildSelectorRow());
    page->addLayout(middle, 1);
    page->addLayout(BuildTransferRow());
    setTabOrder(cbbBank_, table_);

    connect(table_, &MemoryTable::RowChosen, this,
            [this](int tableRow) { emit ModifyRequested(RowOfSelection(image_, Selector(), tableRow)); });
    connect(table_, &MemoryTable::InsertPressed, this, &MemoryPage::cmbInsert_Click);
    connect(table_, &MemoryTable::DeletePressed, this, &MemoryPage::cmbDelete_Click);
    UpDateMemData();
    GoToFirstRow();
}

QLayout* MemoryPage::BuildSelectorRow()
{
    cbbBank_->setObjectName(QStringLiteral("cbbBank"));
    cbbBank_->setStatusTip(tr("The group of channels that the table shows and a transfer moves"));
    for (int selector = 0; selector < kSelectorEntries; ++selector)
        cbbBank_->addItem(QString::fromStdString(SelectorText(selector)));
    cbbBank_->setMaxVisibleItems(20);
    cbbBank_->installEventFilter(this);
    connect(cbbBank_, &QComboBox::currentIndexChanged, this, &MemoryPage::cbbBank_Click);

    auto* label = new QLabel(tr("Ban&k:"));
    label->setBuddy(cbbBank_);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(cbbBank_);
    row->addStretch();
    return row;
}

void MemoryPage::AddButtons(QBoxLayout& layout, std::span<const Operation> operations)
{
    for (const Operation& operation : operations) {
        auto* button = new QPushButton(tr(operation.caption));
        button->setObjectName(QLatin1String(operation.name));
        button->setStatusTip(tr(operation.tip));
        connect(button, &QPushButton::clicked, this, operation.run);
        layout.addWidget(button);
    }
}

QWidget* MemoryPage::BuildOperations()
{
    static constexpr Operation kOneRow[] = {
        {"cmbEnable", QT_TR_NOOP("E&nable"), QT_TR_NOOP("Enable the selected channel"),
         &MemoryPage::cmbEnable_Click},
        {"cmbDisable", QT_TR_NOOP("&Disable"),
         QT_TR_NOOP("Disable the selected channel; it keeps its contents"), &MemoryPage::cmbDisable_Click},
        {"cmbInsert", QT_TR_NOOP("&Insert"),
         QT_TR_NOOP("Insert an empty row among memory rows 0 to 199; the channel in row 199 is lost"),
         &MemoryPage::cmbInsert_Click},
        {"cmbDelete", QT_TR_NOOP("De&lete"),
         QT_TR_NOOP("Delete a row among memory rows 0 to 199; the rows behind it move up"),
         &MemoryPage::cmbDelete_Click},
        {"cmbClear", QT_TR_NOOP("&Clear"), QT_TR_NOOP("Empty the selected channel"),
         &MemoryPage::cmbClear_Click},
    };
    static constexpr Operation kWholeGroup[] = {
        {"cmbEnAll", QT_TR_NOOP("Ena&ble All"), QT_TR_NOOP("Enable every channel shown"),
         &MemoryPage::cmbEnAll_Click},
        {"cmbDisAll", QT_TR_NOOP("Di&sable All"), QT_TR_NOOP("Disable every channel shown"),
         &MemoryPage::cmbDisAll_Click},
        {"cmbClAll", QT_TR_NOOP("Clear &All"), QT_TR_NOOP("Empty every channel shown"),
         &MemoryPage::cmbClAll_Click},
    };
    auto* one = new QGroupBox(tr("Selected channel"));
    AddButtons(*new QVBoxLayout(one), kOneRow);
    auto* all = new QGroupBox(tr("All channels shown"));
    AddButtons(*new QVBoxLayout(all), kWholeGroup);
    auto* boxes = new QWidget;
    auto* column = new QVBoxLayout(boxes);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(one);
    column->addWidget(all);
    column->addStretch();
    return boxes;
}

QLayout* MemoryPage::BuildTransferRow()
{
    static constexpr Operation kTransfers[] = {
        {"cmbRxData", QT_TR_NOOP("Read &Memory"),
         QT_TR_NOOP("Read the channels of the selected group from the receiver"), &MemoryPage::ReadRequested},
        {"cmbTxData", QT_TR_NOOP("Write Memor&y"),
         QT_TR_NOOP("Write the channels of the selected group to the receiver"), &MemoryPage::WriteRequested},
    };
    auto* row = new QHBoxLayout;
    row->addStretch();
    AddButtons(*row, kTransfers);
    return row;
}

void MemoryPage::UpDateMemData()
{
    table_->UpDateMemData(Selector());
}

void MemoryPage::BuildChannelLabels()
{
    // The model takes labels and rows of a group together, so that they never disagree.
    table_->UpDateMemData(Selector());
}

void MemoryPage::SelectGroup(int selector)
{
    cbbBank_->setCurrentIndex(selector);
}

int MemoryPage::Selector() const
{
    return cbbBank_->currentIndex();
}

int MemoryPage::CurrentTableRow() const
{
    return table_->CurrentTableRow();
}

void MemoryPage::GoToFirstRow()
{
    table_->SelectTableRow(1);
}

void MemoryPage::SetTransferRunning(bool running)
{
    setEnabled(!running);
}

void MemoryPage::FocusSelector()
{
    cbbBank_->setFocus(Qt::OtherFocusReason);
}

bool MemoryPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == cbbBank_ && event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
        cbbBank_LostFocus();
    return QWidget::eventFilter(watched, event);
}

void MemoryPage::cbbBank_Click()
{
    UpDateMemData();
    emit SelectorChanged();
}

void MemoryPage::cbbBank_LostFocus()
{
    BuildChannelLabels();
    ChangeFont(*table_);
    UpDateMemData();
}

RowRange MemoryPage::SelectedRow() const
{
    const int tableRow = CurrentTableRow();
    return tableRow == 0 ? RowRange{} : RowRange{RowOfSelection(image_, Selector(), tableRow), 1};
}

bool MemoryPage::IsShiftable() const
{
    return CurrentTableRow() >= 1 && CurrentTableRow() <= kShiftedRows;
}

bool MemoryPage::Confirm(const QString& title, const QString& text, const QString& details)
{
    return dialogs_.Ask(this, {.title = title,
                               .text = text,
                               .details = details,
                               .icon = QMessageBox::Warning,
                               .buttons = QMessageBox::Ok | QMessageBox::Cancel,
                               .defaultButton = QMessageBox::Cancel}) == QMessageBox::Ok;
}

void MemoryPage::FinishOperation(bool refresh)
{
    image_.DataChanged = true;
    if (refresh)
        UpDateMemData();
    table_->setFocus(Qt::OtherFocusReason);
    emit Edited();
}

void MemoryPage::cmbClear_Click()
{
    const RowRange row = SelectedRow();
    if (row.count == 0 || !Confirm(tr("CLEAR OK"), tr("Clear cannot be undone.\n"
                                                      "Are you sure that you want to do the clear?")))
        return;
    ClearRows(image_, row);
    FinishOperation();
}

void MemoryPage::cmbClAll_Click()
{
    const RowRange rows = Group();
    if (rows.count == 0 || !Confirm(tr("CLEAR OK"), tr("Clear cannot be undone.\n"
                                                       "Are you sure that you want to clear all memory?")))
        return;
    ClearRows(image_, rows);
    FinishOperation();
}

void MemoryPage::cmbDelete_Click()
{
    if (!IsShiftable())
        return;
    // The row goes by its number in the table, whatever group is shown, so the question names it.
    const int row = CurrentTableRow() - 1;
    const auto& frequency = image_.MemText[static_cast<std::size_t>(row)][kFrequency];
    const QString details =
        tr("This deletes %1, %2.")
            .arg(QString::fromStdString(RowName(image_, row)),
                 frequency.empty() ? tr("which is empty") : QString::fromStdString(frequency + " MHz"));
    if (!Confirm(tr("DELETE OK"),
                 tr("Delete cannot be undone.\nAre you sure that you want to do the delete?"), details))
        return;
    DeleteTableRow(image_, row + 1);
    FinishOperation();
}

void MemoryPage::cmbInsert_Click()
{
    if (!IsShiftable())
        return;
    InsertTableRow(image_, CurrentTableRow());
    FinishOperation();
}

void MemoryPage::cmbEnable_Click()
{
    const RowRange row = SelectedRow();
    if (row.count == 0)
        return;
    const bool isEnabled = EnableRow(image_, row.first);
    FinishOperation(isEnabled);
}

void MemoryPage::cmbDisable_Click()
{
    if (SelectedRow().count == 0)
        return;
    DisableRows(image_, SelectedRow());
    FinishOperation();
}

void MemoryPage::cmbEnAll_Click()
{
    if (Group().count == 0)
        return;
    EnableRows(image_, Group());
    FinishOperation();
}

void MemoryPage::cmbDisAll_Click()
{
    if (Group().count == 0)
        return;
    DisableRows(image_, Group());
    FinishOperation();
}

}  // namespace rqm5
